#pragma once
// The board of a fraction of a number, "What is 2/3 of 12?": the amount over
// a bar cut into as many equal boxes as the bottom number, and one box for
// the answer. The hint writes the share in every box of the bar and shades
// the boxes the top number counts. The same board serves Year 3 and Year 5,
// each with its own ranges, and can stand on any screen beside other boards:
// it reaches nothing outside itself.
#include "fractions/fractionof.h"
#include "kit/kitboard.h"
#include "worksheets/generatedsheet.h"

class AnswerChain;
class BarModel;
class QLineEdit;

class FractionOfBoard : public KitBoard {
    Q_OBJECT
public:
    explicit FractionOfBoard(const FractionOf::Ranges& ranges, QWidget* parent = nullptr);

    BarModel* Bar1;   // the amount over the bar
    QLineEdit* Text1; // the answer
    const FractionOf::Question& question() const { return m_question; }

    // 12 fresh questions of each year's ranges, each with its bar, and
    // their answers.
    static Worksheets::Sheet year3Sheet(Random::Source& rnd);
    static Worksheets::Sheet year5Sheet(Random::Source& rnd);

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
    static Worksheets::Sheet sheet(const FractionOf::Ranges& ranges, const QString& title, Random::Source& rnd);

    FractionOf::Ranges m_ranges;
    AnswerChain* m_chain;
    FractionOf::Question m_question;
    bool m_asked = false;
};
