#pragma once
// How Many?'s board: the number drawn large, and one box for how many
// tenths, hundredths or thousandths it holds. The hint (and the checked
// answer) puts the number into place-value columns, written to the place
// counted, with the digits that make the count in colour.
#include "fractions/howmany.h"
#include "kit/kitboard.h"
#include "worksheets/generatedsheet.h"

class AnswerChain;
class PlaceValueTable;
class QLineEdit;

class HowManyBoard : public KitBoard {
    Q_OBJECT
public:
    explicit HowManyBoard(QWidget* parent = nullptr);

    PlaceValueTable* Picture2; // the number, and its columns for the hint
    QLineEdit* Text1;          // the answer
    const HowMany::Question& question() const { return m_question; }

    // 12 fresh questions and their answers.
    static Worksheets::Sheet worksheet(Random::Source& rnd);

    void pose(Random::Source& rnd) override;
    QString instruction() const override;
    Verdict check() override;
    QString hint() override;
    void setAnswering(bool on) override;
    void focusAnswer() override;
    void showChecked(const Verdict&) override;
    void giveRightAnswer() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showColumns();

    AnswerChain* m_chain;
    HowMany::Question m_question;
    bool m_asked = false;
};
