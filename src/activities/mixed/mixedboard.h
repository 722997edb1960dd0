#pragma once
// The mixed-numbers question as a kit board, for screens that run on the
// kit (the Year 5 review): an improper fraction to be typed as a mixed
// number, or a mixed number to be typed as an improper fraction, on the same
// panels as the mixed-numbers screen, each answer a chain of boxes filled one
// after another. The range says which way it asks and with which numbers.
#include "fractions/mixedquestion.h"
#include "kit/kitboard.h"
#include "worksheets/generatedsheet.h"

class AnswerChain;
class QFrame;
class QLabel;
class QLineEdit;

class MixedBoard : public KitBoard {
    Q_OBJECT
public:
    explicit MixedBoard(const MixedQuestion::Range& range, QWidget* parent = nullptr);

    // An improper fraction shown; a mixed number typed.
    QFrame* Picture2;
    QLabel* Label7; // numerator
    QLabel* Label9; // denominator
    QLineEdit* Text1; // whole number
    QLineEdit* Text4; // numerator
    QLineEdit* Text2; // denominator
    // A mixed number shown; an improper fraction typed.
    QFrame* Picture3;
    QLabel* Label19; // whole number
    QLabel* Label16; // numerator
    QLabel* Label15; // denominator
    QLineEdit* Text3; // numerator
    QLineEdit* Text5; // denominator
    QLabel* Label20; // the hint's product: "2 x 4 = 8"

    const MixedQuestion& question() const { return m_question; }
    // Puts this question on the board (pose() draws one; tests give their own).
    void showQuestion(const MixedQuestion& question);

    // 12 questions of the range, with their answers, under this title.
    static Worksheets::Sheet worksheet(Random::Source& rnd, const MixedQuestion::Range& range, const QString& title);

    void pose(Random::Source& rnd) override;
    QString instruction() const override;
    Verdict check() override;
    QString hint() override;
    void setAnswering(bool on) override;
    void focusAnswer() override;
    void giveRightAnswer() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    AnswerChain* chain() const;

    MixedQuestion::Range m_range;
    AnswerChain* m_toMixed;
    AnswerChain* m_toImproper;
    MixedQuestion m_question;
    bool m_asked = false;
};
