#pragma once
// Rounding's board: the number line between the two numbers the number can
// round to, the number pinned below it, and one box for the rounded number.
#include "decimalboard.h"
#include "fractions/rounding.h"
#include "worksheets/generatedsheet.h"

class RoundingBoard : public DecimalBoard {
    Q_OBJECT
public:
    explicit RoundingBoard(QWidget* parent = nullptr);

    const Rounding::Question& question() const { return m_question; }

    // 12 fresh questions, each with its number line, and their answers.
    static Worksheets::Sheet worksheet(Random::Source& rnd);

    void pose(Random::Source& rnd) override;
    QString instruction() const override;
    Verdict check() override;
    QString hint() override;
    void giveRightAnswer() override;

private:
    Rounding::Question m_question;
    bool m_asked = false;
};
