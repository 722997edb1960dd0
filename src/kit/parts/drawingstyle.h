#pragma once
// The look every drawing of the activity kit shares: a cream board with dark
// blue ink, strong outlines, a small cheerful palette, and digits in bold
// Arial that grow with the space they are given. Everything is measured from
// the widget's own size, so a drawing is as sharp at twice the size.
#include "shell/module1.h"

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>
#include <QStringList>

class QPainter;

namespace DrawingStyle {

// The board behind a drawing and the ink of its lines and digits: the
// program's cream panel and its dark blue.
inline const QColor& kBoard = Module1::kPanelPaper;
inline const QColor& kInk = Module1::kPanelInk;
// Plain boxes and bricks that are not shaded.
extern const QColor kEmpty;

// Ten colours a child tells apart at a glance, used in this order.
constexpr int kPaletteSize = 10;
QColor colour(int index); // full strength; any index wraps round
QColor soft(int index);   // a pale tint of it, for backgrounds
QColor deep(int index);   // a darker shade of it, for rings and edges

// Bold Arial digits of the given pixel size.
QFont digitFont(double pixelSize);
// The largest pixel size, at most `largest`, at which every one of `texts`
// fits inside `box` in the digit font.
double fittingSize(const QStringList& texts, const QSizeF& box, double largest);

// A fraction written top over bottom with a line between, as large as fits
// in `box`, centred in it; and the pixel size its digits would have. Over
// a bottom of 1 only the top is written, as a whole number.
double fractionSize(const QSizeF& box, int top, int bottom);
void paintFraction(QPainter& painter, const QRectF& box, int top, int bottom, double pixelSize);

// The thickness of the lines round and inside a part (a bar, a row of
// bricks) `height` pixels high; a part's outer edge is drawn thicker.
double outlineWidth(double height);

// The cream board with its rounded corners, filling `area`.
void paintBoard(QPainter& painter, const QRectF& area);

} // namespace DrawingStyle
