#pragma once
// Decimals Between's board: the number line from the smaller number to the
// larger, and one box for a decimal that lies between them.
#include "decimalboard.h"
#include "fractions/decimalsbetween.h"
#include "worksheets/generatedsheet.h"

class BetweenBoard : public DecimalBoard {
    Q_OBJECT
public:
    explicit BetweenBoard(QWidget* parent = nullptr);

    const DecimalsBetween::Question& question() const { return m_question; }

    // 12 fresh questions, each with its number line, and an answer for each.
    static Worksheets::Sheet worksheet(Random::Source& rnd);

    void pose(Random::Source& rnd) override;
    QString instruction() const override;
    Verdict check() override;
    QString hint() override;
    void giveRightAnswer() override;

private:
    DecimalsBetween::Question m_question;
    bool m_asked = false;
};
