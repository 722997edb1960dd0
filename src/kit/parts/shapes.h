#pragma once
// The shapes a child colours or reads a fraction from, cut into equal parts.
// Pure geometry: no widgets, so the boards, the worksheets and the tests all
// cut a shape the same way.
#include "fractions/shapekind.h"

#include <QPainterPath>
#include <QRectF>
#include <QString>
#include <QVector>

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

