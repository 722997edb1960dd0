#include "placevaluedrawing.h"

#include <QFontMetricsF>
#include <QPainter>

namespace PlaceValueDrawing {

void paintHeads(QPainter& painter, const QRectF& row, const QStringList& heads, const QFont& font,
                const HeadsLook& look)
{
    // Each head in a rounded box; the fractions stacked, a line between.
    if (heads.isEmpty())
        return;
    const double pitch = row.width() / heads.size();
    painter.setFont(font);
    const QFontMetricsF metrics(font);
    for (int c = 0; c < heads.size(); ++c) {
        const QRectF box(row.left() + c * pitch + look.insetX, row.top() + look.insetY, pitch - 2 * look.insetX,
                         row.height() - 2 * look.insetY);
        painter.setPen(QPen(look.ink, look.line));
        painter.setBrush(c == look.highlighted ? look.highlight : look.fill);
        painter.drawRoundedRect(box, look.corner, look.corner);
        const QStringList parts = heads[c].split(QLatin1Char('/'));
        if (parts.size() == 1) {
            painter.drawText(box, Qt::AlignCenter, heads[c]);
            continue;
        }
        const double barWidth = metrics.horizontalAdvance(parts[1]) + 2 * look.insetX;
        const double mid = box.center().y();
        painter.drawText(QRectF(box.left(), mid - metrics.height() - look.gap, box.width(), metrics.height()),
                         Qt::AlignCenter, parts[0]);
        painter.drawLine(QPointF(box.center().x() - barWidth / 2, mid), QPointF(box.center().x() + barWidth / 2, mid));
        painter.drawText(QRectF(box.left(), mid + look.gap, box.width(), metrics.height()), Qt::AlignCenter, parts[1]);
    }
}

void paintDigits(QPainter& painter, const QRectF& row, const QStringList& digits, const DigitsLook& look)
{
    const double pitch = row.width() / look.columns;
    for (int c = 0; c < digits.size() && c < look.columns; ++c) {
        const bool marked = c >= look.markedFrom && c <= look.markedTo;
        painter.setPen(marked ? look.mark : look.ink);
        painter.drawText(QRectF(row.left() + c * pitch, row.top(), pitch, row.height()), Qt::AlignCenter, digits[c]);
    }
    if (look.pointAfter < 0)
        return;
    painter.setPen(look.ink);
    const double edge = row.left() + (look.pointAfter + 1) * pitch;
    painter.drawText(QRectF(edge - pitch / 4, row.top(), pitch / 2, row.height()), Qt::AlignCenter,
                     QStringLiteral("."));
}

} // namespace PlaceValueDrawing
