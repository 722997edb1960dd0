#pragma once
// The board of Equivalent Fractions 3: four cards, one of them equal to the
// fraction asked about. A card is chosen by a click or its key 1 to 4. The
// hint draws the fraction and the right card as bars of the same length;
// after Check the bars show the fraction and the card chosen.
#include "fractions/equivalentfractions.h"
#include "kit/kitboard.h"
#include "worksheets/generatedsheet.h"

class ChoiceCards;
class FractionWall;

class ChoiceBoard : public KitBoard {
    Q_OBJECT
public:
    explicit ChoiceBoard(QWidget* parent = nullptr);

    ChoiceCards* Cards;     // the four cards
    FractionWall* Picture3; // the bars, for the hint and after Check

    const Equivalent::Choice& question() const { return m_question; }
    int chosen() const { return m_chosen; }

    // 12 fresh questions, each with its four fractions, and their answers.
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
    void showBars(int card);

    Equivalent::Choice m_question;
    bool m_asked = false;
    int m_chosen = -1;
};
