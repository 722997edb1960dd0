#pragma once
// Digits' board: the number drawn large with one digit in colour, and four
// cards naming a value for it ("3 tenths (0.3)"), chosen by a click or the
// keys 1 to 4. The hint (and the checked answer) puts the number into its
// place-value columns under their heads.
#include "fractions/digitvalue.h"
#include "kit/kitboard.h"
#include "worksheets/generatedsheet.h"

class ChoiceCards;
class PlaceValueTable;

class DigitsBoard : public KitBoard {
    Q_OBJECT
public:
    explicit DigitsBoard(QWidget* parent = nullptr);

    PlaceValueTable* Picture2; // the number, and its columns for the hint
    ChoiceCards* Cards1;       // the four values to choose from
    const Digits::Question& question() const { return m_question; }
    int chosen() const { return m_chosen; }

    // 12 fresh questions and their answers.
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
    Digits::Question m_question;
    int m_chosen = -1;
    bool m_asked = false;
};
