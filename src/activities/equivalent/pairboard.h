#pragma once
// The board of Equivalent Fractions 1 and 2: two equal fractions written
// large with one box in the missing number's place. On the wall (Equivalent
// Fractions 1) a fraction wall stands below: a row for the first bottom
// with its top shaded, a row for the second; after Check the second row
// shades what was typed, and the hint shades the right number of bricks.
#include "fractions/equivalentfractions.h"
#include "kit/kitboard.h"
#include "worksheets/generatedsheet.h"

class AnswerChain;
class EquationPanel;
class FractionWall;
class QLineEdit;

class PairBoard : public KitBoard {
    Q_OBJECT
public:
    enum class Kind { OnWall, Anywhere };
    explicit PairBoard(Kind kind, QWidget* parent = nullptr);

    EquationPanel* Picture2; // the two fractions
    QLineEdit* Text1;        // the missing number, over its place
    FractionWall* Picture3;  // the wall; nullptr when the board has none

    const Equivalent::Pair& question() const { return m_question; }

    // 12 fresh questions and their answers: on the wall with each wall
    // drawn, or anywhere.
    static Worksheets::Sheet wallWorksheet(Random::Source& rnd);
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
    void showWall(int shadedBelow);
    void placeBox();

    Kind m_kind;
    AnswerChain* m_chain;
    Equivalent::Pair m_question;
    bool m_asked = false;
};
