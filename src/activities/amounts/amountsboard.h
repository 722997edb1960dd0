#pragma once
// Finding Amounts' board: the amount over a bar cut into the parts the
// question needs (tenths for 1% to 20%, quarters, halves, or the fraction's
// own parts), and one box with the unit beside it ("£ [box]", "[box] kg").
// The hint (and the checked answer) writes what each box holds and shades
// the boxes asked for.
#include "fractions/findingamounts.h"
#include "kit/kitboard.h"
#include "worksheets/generatedsheet.h"

class AnswerChain;
class BarModel;
class QLabel;
class QLineEdit;

class AmountsBoard : public KitBoard {
    Q_OBJECT
public:
    explicit AmountsBoard(QWidget* parent = nullptr);

    BarModel* Picture2; // the amount as a bar
    QLineEdit* Text1;   // the answer
    QLabel* Label1;     // the unit before the box (£)
    QLabel* Label2;     // the unit after the box (kg, m)
    const Amounts::Question& question() const { return m_question; }

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
    void showWorking();

    AnswerChain* m_chain;
    Amounts::Question m_question;
    bool m_asked = false;
};
