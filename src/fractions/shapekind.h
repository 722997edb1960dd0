#pragma once
// The shapes the activities cut into equal parts, as plain data: which
// shape and how it is cut. The drawing of each is the kit's.
#include <QString>

enum class ShapeKind {
    Circle,          // sectors, clockwise from twelve o'clock
    SquareAcross,    // 2 halves, one above the other
    SquareDown,      // 2 halves, side by side
    SquareCorners,   // 2 halves, corner to corner
    SquareGrid,      // 4 quarters, 2 x 2
    SquareStrips,    // 4 upright strips
    SquareTriangles, // 4 triangles meeting in the middle
    Strip,           // a long bar cut into pieces side by side
    TwoRowRectangle, // a rectangle of 2 rows
};

// The shape's name in a sentence: "circle", "square", "strip", "rectangle".
QString shapeNoun(ShapeKind kind);
