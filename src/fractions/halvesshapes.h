#pragma once
// Halves and Quarters 2: colour a fraction of a shape cut into 2 or 4 equal
// parts. The question, its check and its hint, free of widgets.
#include "shapekind.h"
#include "verdict.h"

#include <QString>

namespace Random {
class Source;
}

namespace HalvesShapes {

struct Question {
    ShapeKind kind = ShapeKind::Circle;
    int parts = 2; // 2 or 4
    int top = 1;   // the fraction asked for, of the whole shape:
    int bottom = 2; // 1/2, or with 4 parts 1/4, 2/4, 3/4 or 1/2

    // The parts to colour: 1 of 2, or 1, 2, 3 or 2 of 4.
    int partsToColour() const { return parts * top / bottom; }
    // "Colour three quarters of the square."
    QString instruction() const;
    // The fraction in words: "one half", "two quarters".
    QString fractionWords() const;

    friend bool operator==(const Question& a, const Question& b)
    {
        return a.kind == b.kind && a.parts == b.parts && a.top == b.top && a.bottom == b.bottom;
    }
};

// The shapes and cuts the questions use, each with its number of parts.
struct Cut {
    ShapeKind kind;
    int parts;
};
inline constexpr Cut kCuts[] = {
    {ShapeKind::Circle, 2},       {ShapeKind::Circle, 4},         {ShapeKind::SquareAcross, 2},
    {ShapeKind::SquareDown, 2},   {ShapeKind::SquareCorners, 2},  {ShapeKind::SquareGrid, 4},
    {ShapeKind::SquareStrips, 4}, {ShapeKind::SquareTriangles, 4}, {ShapeKind::Strip, 2},
    {ShapeKind::Strip, 4},
};

// A question unlike the one before (nullptr for the first).
Question draw(Random::Source& rnd, const Question* last);

// Right when the coloured parts make the fraction asked; nothing coloured
// cannot be checked.
Verdict check(const Question& q, int coloured);

// "The square is cut into 4 equal parts. Three quarters is 3 of them. You
// have coloured 1."
QString hint(const Question& q, int coloured);

} // namespace HalvesShapes
