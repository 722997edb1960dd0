#pragma once
// Place-value columns, drawn: a row of column heads, each in a rounded box
// (a word such as "units" or "tens", or a fraction "1/10" drawn stacked,
// the top number over a line over the bottom one), and a row of digits with
// each digit in its own column and the point on the edge between the ones
// and the tenths. The help screen of Place In Order and the place-value
// table of the Year 6 boards both draw their columns with these.
#include <QColor>
#include <QStringList>

class QFont;
class QPainter;
class QRectF;

namespace PlaceValueDrawing {

struct HeadsLook {
    QColor ink;          // the words, fractions and box edges
    QColor fill;         // inside each box
    double line = 1.5;   // the box edges and fraction lines
    double insetX = 3;   // between a box and its column's edges
    double insetY = 2;
    double corner = 8;   // the boxes' rounded corners
    double gap = 1;      // between a fraction's numbers and its line
    int highlighted = -1;   // a column whose box is filled with `highlight`
    QColor highlight;
};

// The heads across `row`, one column each, as wide as the row shares out.
void paintHeads(QPainter& painter, const QRectF& row, const QStringList& heads, const QFont& font,
                const HeadsLook& look);

struct DigitsLook {
    QColor ink;
    int columns = 1;      // the columns `row` is shared into
    int pointAfter = -1;  // the column the point follows; -1: no point
    int markedFrom = -1;  // columns drawn in `mark` instead of `ink`
    int markedTo = -1;
    QColor mark;
};

// `digits`, one per column from the first (an empty string leaves a column
// blank), each centred in its column; the point on the edge after
// `pointAfter`. The painter's font is used.
void paintDigits(QPainter& painter, const QRectF& row, const QStringList& digits, const DigitsLook& look);

} // namespace PlaceValueDrawing
