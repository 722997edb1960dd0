#include "barmodel.h"

#include "drawingstyle.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace {
// The drawing's height is shared out, top to bottom, between the amount, a
// space and the bar; a wide bar never grows taller than a share of its width.
constexpr double kAmountShare = 0.36;
constexpr double kSpaceShare = 0.1;
constexpr double kBarShare = 0.54;
constexpr double kTallestForWidth = 0.45;
constexpr double kMarginShare = 0.07;    // of the widget's smaller side
// How much of its band or box the text may fill.
constexpr double kAmountTextWidth = 0.5;
constexpr double kAmountTextHeight = 0.9;
constexpr double kBoxTextWidth = 0.72;
constexpr double kBoxTextHeight = 0.62;
constexpr double kBarOutlineFactor = 2.0; // the bar's edge against its inner lines
constexpr double kCornerShare = 0.12;     // of the bar's height
constexpr int kShadeInPalette = 4; // tangerine
constexpr QSize kPreferredSize{420, 220};
constexpr QSize kSmallestSize{140, 80};
} // namespace

BarModel::BarModel(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("BarModel"));
    describe();
}

void BarModel::setBar(int amount, int parts)
{
    m_amount = amount;
    m_parts = std::clamp(parts, 1, kMostParts);
    m_working = false;
    m_perPart = 0;
    m_shaded = 0;
    describe();
    update();
}

void BarModel::showWorking(int perPart, int shadedParts)
{
    m_working = true;
    m_perPart = perPart;
    m_shaded = std::clamp(shadedParts, 0, m_parts);
    describe();
    update();
}

void BarModel::clearWorking()
{
    m_working = false;
    m_perPart = 0;
    m_shaded = 0;
    describe();
    update();
}

QColor BarModel::shadeColour()
{
    return DrawingStyle::colour(kShadeInPalette);
}

namespace {
struct Bands {
    QRectF amount;
    QRectF bar;
};

Bands bands(const QRect& whole)
{
    const double margin = std::min(whole.width(), whole.height()) * kMarginShare;
    const QRectF area = QRectF(whole).adjusted(margin, margin, -margin, -margin);
    const double height = std::min(area.height(), area.width() * kTallestForWidth / kBarShare);
    const double top = area.top() + (area.height() - height) / 2;
    Bands b;
    b.amount = QRectF(area.left(), top, area.width(), height * kAmountShare);
    b.bar = QRectF(area.left(), top + height * (kAmountShare + kSpaceShare), area.width(), height * kBarShare);
    return b;
}
} // namespace

QRectF BarModel::barRect() const
{
    return bands(rect()).bar;
}

QRectF BarModel::amountRect() const
{
    return bands(rect()).amount;
}

QRectF BarModel::boxRect(int box) const
{
    const QRectF bar = barRect();
    const double step = bar.width() / m_parts;
    return QRectF(bar.left() + box * step, bar.top(), step, bar.height());
}

void BarModel::paintAmount(QPainter& painter, double outline) const
{
    // The amount sits in the middle of a bracket as long as the bar, whose
    // ends reach down towards the bar.
    const QRectF band = amountRect();
    const QString text = QString::number(m_amount);
    const double size = DrawingStyle::fittingSize({text}, QSizeF(band.width() * kAmountTextWidth,
                                                                  band.height() * kAmountTextHeight),
                                                  band.height());
    const QFont font = DrawingStyle::digitFont(size);
    const double textWidth = QFontMetricsF(font).horizontalAdvance(text);
    const double middle = band.center().y();
    const double gap = textWidth / 2 + size / 3;
    const double reach = barRect().top() - outline;
    painter.setPen(QPen(DrawingStyle::kInk, outline, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{QPointF(band.left(), reach), QPointF(band.left(), middle),
                                   QPointF(band.center().x() - gap, middle)});
    painter.drawPolyline(QPolygonF{QPointF(band.center().x() + gap, middle), QPointF(band.right(), middle),
                                   QPointF(band.right(), reach)});
    painter.setFont(font);
    painter.drawText(band, Qt::AlignCenter, text);
}

void BarModel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawingStyle::paintBoard(painter, rect());
    const QRectF bar = barRect();
    const double outline = DrawingStyle::outlineWidth(bar.height());
    paintAmount(painter, outline);

    const double corner = bar.height() * kCornerShare;
    painter.setPen(Qt::NoPen);
    painter.setBrush(DrawingStyle::kEmpty);
    painter.drawRoundedRect(bar, corner, corner);
    if (m_shaded > 0) {
        // The shaded boxes are clipped to the bar so its rounded corner stays.
        QPainterPath barShape;
        barShape.addRoundedRect(bar, corner, corner);
        QPainterPath shaded;
        shaded.addRect(boxRect(0).united(boxRect(m_shaded - 1)));
        painter.setBrush(shadeColour());
        painter.drawPath(barShape.intersected(shaded));
    }
    painter.setPen(QPen(DrawingStyle::kInk, outline));
    for (int i = 1; i < m_parts; ++i) {
        const double x = boxRect(i).left();
        painter.drawLine(QPointF(x, bar.top()), QPointF(x, bar.bottom()));
    }
    painter.setPen(QPen(DrawingStyle::kInk, outline * kBarOutlineFactor));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(bar, corner, corner);

    if (!m_working)
        return;
    const QString text = QString::number(m_perPart);
    const QRectF first = boxRect(0);
    painter.setFont(DrawingStyle::digitFont(DrawingStyle::fittingSize(
        {text}, QSizeF(first.width() * kBoxTextWidth, first.height() * kBoxTextHeight), first.height())));
    painter.setPen(DrawingStyle::kInk);
    for (int i = 0; i < m_parts; ++i)
        painter.drawText(boxRect(i), Qt::AlignCenter, text);
}

void BarModel::describe()
{
    // Each sentence names its English singular and plural; the count also
    // picks a translation's own plural form.
    QString text = (m_parts == 1 ? tr("a bar of %1 cut into %n equal box", nullptr, m_parts)
                                 : tr("a bar of %1 cut into %n equal boxes", nullptr, m_parts))
                       .arg(m_amount);
    if (m_working && m_shaded > 0)
        text = (m_shaded == 1 ? tr("%1, %2 in each box, %n box shaded", nullptr, m_shaded)
                              : tr("%1, %2 in each box, %n boxes shaded", nullptr, m_shaded))
                   .arg(text)
                   .arg(m_perPart);
    else if (m_working)
        text = tr("%1, %2 in each box").arg(text).arg(m_perPart);
    setAccessibleName(text);
}

QSize BarModel::sizeHint() const
{
    return kPreferredSize;
}

QSize BarModel::minimumSizeHint() const
{
    return kSmallestSize;
}
