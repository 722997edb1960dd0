#include "drawingstyle.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>
#include <algorithm>

namespace DrawingStyle {

const QColor kEmpty{255, 255, 255};

namespace {
// Sky, sunflower, grass, coral, tangerine, grape, teal, rose, lime, cocoa.
const QColor kPalette[kPaletteSize] = {
    {66, 165, 245}, {255, 202, 40}, {102, 187, 106}, {239, 83, 80},  {255, 138, 40},
    {171, 71, 188}, {38, 166, 154}, {240, 98, 146}, {175, 196, 40},  {161, 120, 96},
};
constexpr int kSoftPercent = 28;   // how much of the colour stays in the tint
constexpr int kDeepFactor = 145;   // QColor::darker() percentage
constexpr double kReferencePixels = 100.0;
constexpr double kOutlineShare = 0.025; // of the part's height
constexpr double kThinnestOutline = 1.5;
constexpr double kBoardCornerShare = 0.04;
// A written fraction: two lines of digits and the space the line between takes.
constexpr double kFractionLines = 2.3;
constexpr double kFractionBarShare = 0.08; // the line's thickness, of the digit size
constexpr double kFractionBarOverhang = 0.15;

int wrapped(int index)
{
    return ((index % kPaletteSize) + kPaletteSize) % kPaletteSize;
}
} // namespace

QColor colour(int index)
{
    return kPalette[wrapped(index)];
}

QColor soft(int index)
{
    const QColor c = colour(index);
    auto mix = [](int channel) { return 255 - (255 - channel) * kSoftPercent / 100; };
    return QColor(mix(c.red()), mix(c.green()), mix(c.blue()));
}

QColor deep(int index)
{
    return colour(index).darker(kDeepFactor);
}

QFont digitFont(double pixelSize)
{
    QFont font(QStringLiteral("Arial"));
    font.setBold(true);
    font.setPixelSize(std::max(1, int(pixelSize)));
    return font;
}

double fittingSize(const QStringList& texts, const QSizeF& box, double largest)
{
    // Text grows in proportion to its pixel size, so one measure at a known
    // size tells the size that fills the box.
    const QFontMetricsF metrics(digitFont(kReferencePixels));
    double size = largest;
    for (const QString& text : texts) {
        const double width = metrics.horizontalAdvance(text);
        if (width > 0)
            size = std::min(size, kReferencePixels * box.width() / width);
    }
    size = std::min(size, kReferencePixels * box.height() / metrics.height());
    return std::max(1.0, size);
}

double fractionSize(const QSizeF& box, int top, int bottom)
{
    return fittingSize({QString::number(top), QString::number(bottom)},
                       QSizeF(box.width(), box.height() / kFractionLines), box.height());
}

void paintFraction(QPainter& painter, const QRectF& box, int top, int bottom, double pixelSize)
{
    const QFont font = digitFont(pixelSize);
    const QFontMetricsF metrics(font);
    const QString upper = QString::number(top);
    const QString lower = QString::number(bottom);
    const double lineWidth = std::max(metrics.horizontalAdvance(upper), metrics.horizontalAdvance(lower))
        + 2 * kFractionBarOverhang * pixelSize;
    const QPointF centre = box.center();
    if (bottom == 1) {
        painter.save();
        painter.setFont(font);
        painter.drawText(box, Qt::AlignCenter, upper);
        painter.restore();
        return;
    }
    const double gap = (kFractionLines - 2) * metrics.height() / 2;
    painter.save();
    painter.setFont(font);
    painter.drawText(QRectF(box.left(), centre.y() - gap - metrics.height(), box.width(), metrics.height()),
                     Qt::AlignCenter, upper);
    painter.drawText(QRectF(box.left(), centre.y() + gap, box.width(), metrics.height()), Qt::AlignCenter, lower);
    painter.setPen(QPen(painter.pen().color(), std::max(1.0, pixelSize * kFractionBarShare), Qt::SolidLine,
                        Qt::RoundCap));
    painter.drawLine(QPointF(centre.x() - lineWidth / 2, centre.y()), QPointF(centre.x() + lineWidth / 2, centre.y()));
    painter.restore();
}

double outlineWidth(double height)
{
    return std::max(kThinnestOutline, height * kOutlineShare);
}

void paintBoard(QPainter& painter, const QRectF& area)
{
    const double corner = std::min(area.width(), area.height()) * kBoardCornerShare;
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(kBoard);
    painter.drawRoundedRect(area, corner, corner);
    painter.restore();
}

} // namespace DrawingStyle
