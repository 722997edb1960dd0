#include "sheetpictures.h"

#include "kit/parts/drawingstyle.h"

#include <QPainter>

namespace {
constexpr double kRowGapShare = 0.5;    // between wall rows, of a row's height
constexpr double kWallLine = 15;        // twips: the lines between bricks
const QColor kSheetShade{190, 190, 190}; // grey prints on every printer
constexpr double kNumberShare = 0.3;    // a choice's number, of its place's height
constexpr double kFractionShare = 0.38; // a choice's digits, of its place's height
} // namespace

namespace SheetPictures {

void wall(QPainter& painter, const QRectF& box, const QVector<FractionWall::Row>& rows)
{
    if (rows.isEmpty())
        return;
    const int n = int(rows.size());
    const double rowHeight = box.height() / (n + (n - 1) * kRowGapShare);
    painter.save();
    painter.setPen(QPen(Qt::black, kWallLine));
    for (int r = 0; r < n; ++r) {
        const double y = box.top() + r * rowHeight * (1 + kRowGapShare);
        const double step = box.width() / rows[r].bottom;
        for (int b = 0; b < rows[r].bottom; ++b) {
            painter.setBrush(b < rows[r].shaded ? kSheetShade : QColor(Qt::white));
            painter.drawRect(QRectF(box.left() + b * step, y, step, rowHeight));
        }
    }
    painter.restore();
}

void choices(QPainter& painter, const QRectF& box, const QVector<Fraction>& fractions)
{
    if (fractions.isEmpty())
        return;
    const double width = box.width() / fractions.size();
    painter.save();
    painter.setFont(DrawingStyle::digitFont(box.height() * kNumberShare));
    for (int i = 0; i < fractions.size(); ++i) {
        const QRectF place(box.left() + i * width, box.top(), width, box.height());
        const QRectF number(place.left(), place.top(), place.width() / 3, place.height() * kNumberShare);
        painter.drawText(number, Qt::AlignLeft | Qt::AlignTop, QStringLiteral("%1)").arg(i + 1));
        DrawingStyle::paintFraction(painter, place, fractions[i].top, fractions[i].bottom,
                                    box.height() * kFractionShare);
    }
    painter.restore();
}

} // namespace SheetPictures
