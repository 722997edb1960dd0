#pragma once
// Equivalent Fractions' board: a chain of four equal fractions written one
// after another, with a box for the missing number in each of the last
// three. The boxes are filled left to right, Enter moving on, and checked
// all at once; the hint writes the multipliers under the fractions.
//
// The board stands on its own: any screen may show it.
#include "fractions/equivalentchain.h"
#include "kit/kitboard.h"
#include "worksheets/generatedsheet.h"

class AnswerChain;
class FractionLine;
class QLineEdit;

class ChainBoard : public KitBoard {
    Q_OBJECT
public:
    explicit ChainBoard(QWidget* parent = nullptr);

    FractionLine* Picture2; // the chain
    QLineEdit* Text1;       // the missing numbers, left to right
    QLineEdit* Text2;
    QLineEdit* Text3;

    const EquivalentChain::Question& question() const { return m_question; }
    // Puts this question on the board (pose() draws one and calls this).
    void showQuestion(const EquivalentChain::Question& question);

    // 12 fresh chains and their answers.
    static Worksheets::Sheet worksheet(Random::Source& rnd);

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
    QList<int> missingNumbers() const;

    AnswerChain* m_chain;
    EquivalentChain::Question m_question;
    bool m_asked = false;
};
