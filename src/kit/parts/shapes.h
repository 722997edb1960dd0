#pragma once
// The shapes a child colours or reads a fraction from, cut into equal parts.
// Pure geometry: no widgets, so the boards, the worksheets and the tests all
// cut a shape the same way.
#include <QPainterPath>
#include <QRectF>
#include <QString>
#include <QVector>

enum class ShapeKind {
    Circle,          // sectors from 12 o'clock, clockwise
    SquareAcross,    // 2 halves, one above the other
    SquareDown,      // 2 halves, side by side
    SquareCorners,   // 2 triangles either side of a diagonal
    SquareGrid,      // 4 quarters, 2 x 2
    SquareStrips,    // 4 upright strips
    SquareTriangles, // 4 triangles meeting at the centre
    Strip,           // 2..12 pieces side by side in a long bar
    TwoRowRectangle, // 4..12 (even) pieces in 2 rows
};

// Every kind, for tables and tests.
QVector<ShapeKind> allShapeKinds();

// The numbers of parts a kind can be cut into, smallest first.
QVector<int> shapePartCounts(ShapeKind kind);
bool shapeAllows(ShapeKind kind, int parts);

// The equal parts, inside box, in reading order (left to right, top to
// bottom; a circle's sectors clockwise from 12 o'clock). Square kinds use the
// largest centred square of box, the circle the largest centred circle, the
// strip and the rectangle the largest centred rectangle of their own
// proportions. Empty when the kind cannot be cut into that many parts.
QVector<QPainterPath> shapeParts(ShapeKind kind, int parts, const QRectF& box);

// The whole shape's edge, the same shape the parts fill.
QPainterPath shapeOutline(ShapeKind kind, int parts, const QRectF& box);

// The word for the shape in a sentence: "circle", "square", "strip",
// "rectangle" ("Colour one half of the circle.").
QString shapeNoun(ShapeKind kind);
