#pragma once
// What the mixed-numbers screen and the mixed-numbers board share: the
// panel a question stands on, its numbers in large figures (a fraction being
// a numerator cell over a bar over a denominator cell), where each cell
// stands in a row "improper fraction = mixed number" or "mixed number =
// improper fraction", and the look of the answer boxes.
#include <QColor>
#include <QString>
#include <Qt>

class QFrame;
class QLabel;
class QWidget;

namespace MixedPanel {

// A panel, in twips.
constexpr int kWidth = 3420;
constexpr int kHeight = 2880;

// The numbers: a cell holds one or two figures; an improper numerator of
// three figures (Year 6) has a wider cell.
constexpr double kNumberPoints = 32;
constexpr int kCellWidth = 780;
constexpr int kWideCellWidth = 1080;
constexpr int kCellHeight = 960;
constexpr int kBarGap = 60;
constexpr int kBarThickness = 60;
constexpr int kEqualsWidth = 360;
constexpr int kFractionHeight = 2 * kCellHeight + 2 * kBarGap + kBarThickness;
constexpr int kNumeratorTop = (kHeight - kFractionHeight) / 2;
constexpr int kBarTop = kNumeratorTop + kCellHeight + kBarGap;
constexpr int kDenominatorTop = kBarTop + kBarThickness + kBarGap;
// A whole number and the "=" stand level with the bar.
constexpr int kBesideTop = kBarTop + kBarThickness / 2 - kCellHeight / 2;

// The width of the cell of an improper numerator with this many figures.
int improperCellWidth(int figures);

// Where the cells of a row stand, from the left of the panel.
struct Row {
    int improper = 0; // the improper fraction
    int equals = 0;
    int whole = 0;    // the mixed number's whole number
    int fraction = 0; // and its fraction
};
// "11/4 = 2 3/4": the improper fraction first.
Row toMixedRow(int improperWidth);
// "2 3/4 = 11/4": the improper fraction last.
Row toImproperRow(int improperWidth);

// A panel in the question's colours.
QFrame* panel(QWidget* parent, const char* name, int left, int top, int width, int height, const QColor& back);
// A number on a panel, in the panel's colours.
QLabel* number(QWidget* panel, const char* name, int left, int top, int width = kCellWidth,
               Qt::Alignment align = Qt::AlignCenter);
// An "=" level with the bar.
QLabel* equals(QWidget* panel, const char* name, int left);
// A fraction bar.
QFrame* bar(QWidget* panel, const char* name, int left, int width = kCellWidth);

// A colour as a style sheet writes it.
QString rgb(const QColor& c);

// The answer boxes look like the numbers they stand for, inside a coloured
// edge: orange where the child types next, faint while still to come.
QString boxStyle();

} // namespace MixedPanel
