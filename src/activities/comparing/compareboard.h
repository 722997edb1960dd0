#pragma once
// More Than, Less Than's board: two fractions side by side and three cards,
// "is less than", "is equal to", "is more than" (keys <, = and >). The hint
// draws both as bars of the same length, shaded.
#include "fractions/comparefractions.h"
#include "kit/kitboard.h"
#include "worksheets/generatedsheet.h"

class ChoiceCards;
class FractionPair;
class FractionWall;

class CompareBoard : public KitBoard {
    Q_OBJECT
public:
    explicit CompareBoard(QWidget* parent = nullptr);

    FractionPair* Fractions1; // the two fractions
    FractionWall* Wall1;      // the hint's two bars
    ChoiceCards* Cards1;      // the three answers
    const CompareFractions::Question& question() const { return m_question; }
    int chosen() const { return m_chosen; }

    // 12 fresh pairs to compare, each with its answer.
    static Worksheets::Sheet worksheet(Random::Source& rnd);

    void pose(Random::Source& rnd) override;
    QString instruction() const override;
    Verdict check() override;
    QString hint() override;
    void setAnswering(bool on) override;
    void focusAnswer() override;
    void showChecked(const Verdict& verdict) override;
    void giveRightAnswer() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    CompareFractions::Question m_question;
    bool m_asked = false;
    int m_chosen = -1;
};
