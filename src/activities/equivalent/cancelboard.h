#pragma once
// Cancelling's board: the fraction to cancel, "=", and two boxes for the
// top and the bottom of its simplest form. The hint writes the division
// under the answer's place.
//
// The board stands on its own: any screen may show it.
#include "fractions/cancelling.h"
#include "kit/kitboard.h"
#include "worksheets/generatedsheet.h"

class AnswerChain;
class FractionLine;
class QLineEdit;

class CancelBoard : public KitBoard {
    Q_OBJECT
public:
    explicit CancelBoard(QWidget* parent = nullptr);

    FractionLine* Picture2; // the fraction = the answer
    QLineEdit* Text1;       // the answer's top
    QLineEdit* Text2;       // the answer's bottom

    const Cancelling::Question& question() const { return m_question; }
    // Puts this question on the board (pose() draws one and calls this).
    void showQuestion(const Cancelling::Question& question);

    // 12 fresh fractions to cancel and their simplest forms.
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
    AnswerChain* m_chain;
    Cancelling::Question m_question;
    bool m_asked = false;
};
