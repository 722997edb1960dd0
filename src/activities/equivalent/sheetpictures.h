#pragma once
// The pictures on the printed Equivalent Fractions sheets, drawn with any
// painter into the box the sheet gives (in twips): a fraction wall of plain
// bricks, and a row of fractions to choose from.
#include "kit/parts/fractionwall.h"

#include <QVector>

class QPainter;
class QRectF;

namespace SheetPictures {

// Rows of the same length, each cut into its bricks, the first ones shaded grey.
void wall(QPainter& painter, const QRectF& box, const QVector<FractionWall::Row>& rows);

// Fractions side by side, each numbered as its card is, in equal places.
struct Fraction {
    int top;
    int bottom;
};
void choices(QPainter& painter, const QRectF& box, const QVector<Fraction>& fractions);

} // namespace SheetPictures
