#pragma once
// Halves and Quarters 2's board: one shape cut into 2 or 4 equal parts,
// drawn large, whose parts the child colours to make the fraction asked.
#include "fractions/halvesshapes.h"
#include "kit/kitboard.h"
#include "worksheets/generatedsheet.h"

class ShapeBoard;

class ShapesBoard : public KitBoard {
    Q_OBJECT
public:
    explicit ShapesBoard(QWidget* parent = nullptr);

    ShapeBoard* Shape1; // the shape the child colours
    const HalvesShapes::Question& question() const { return m_question; }

    // 12 fresh questions, each with its shape to colour, and their answers.
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
    HalvesShapes::Question m_question;
    bool m_asked = false;
};
