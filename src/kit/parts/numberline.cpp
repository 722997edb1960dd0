#include "numberline.h"

#include "drawingstyle.h"
#include "fractions/decimalvalue.h"
#include "fractions/fraction.h"

#include <QPainter>
#include <algorithm>
#include <numeric>

namespace {
constexpr double kMarginShare = 0.04;      // of the widget's smaller side
// The digits' size, as shares of the height and of the width.
constexpr double kDigitHeightShare = 0.17;
constexpr double kDigitWidthShare = 0.075;
// Heights, in digit sizes, from the top: the mark's label, its pin, then
// below the line a space and the row of end labels (where the number to
// round has its label too).
constexpr double kBubbleHeight = 1.45;
constexpr double kPinHeight = 0.85;
constexpr double kBelowGap = 0.85;
constexpr double kLabelHeight = 1.3;
constexpr double kBubblePad = 0.3;     // each side of a label's digits
constexpr double kBubbleCorner = 0.35;
constexpr double kPinHalfWidth = 0.32;
// A value beyond an end is pinned this far outside it, and an arrow points on.
constexpr double kOutsideGap = 1.0;
constexpr double kArrowLength = 0.55;
constexpr double kArrowHalfWidth = 0.3;
// Tick lengths each side of the line.
constexpr double kTick = 0.28;
constexpr double kMiddleTick = 0.45;
constexpr double kEndTick = 0.62;
constexpr double kLineFactor = 2.0; // the line against its ticks
constexpr double kOutlineHeight = 3.0; // lines as thick as round a part this many digits high
constexpr double kLabelSpace = 0.25; // between two labels side by side
constexpr QSize kPreferredSize{440, 200};
constexpr QSize kSmallestSize{160, 80};

const QColor kMarkColour{214, 36, 96};
const QColor kMarkText{255, 255, 255};
constexpr int kToRoundInPalette = 4; // tangerine

double halfWidth(const QString& text, double digits)
{
    return QFontMetricsF(DrawingStyle::digitFont(digits)).horizontalAdvance(text) / 2;
}
} // namespace

NumberLine::NumberLine(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("NumberLine"));
    describe();
}

void NumberLine::setEnds(const QString& from, const QString& to)
{
    m_from = from.trimmed();
    m_to = to.trimmed();
    describe();
    update();
}

void NumberLine::mark(const QString& value)
{
    m_mark = value.trimmed();
    describe();
    update();
}

void NumberLine::clearMark()
{
    mark(QString());
}

void NumberLine::markToRound(const QString& value)
{
    m_toRound = value.trimmed();
    describe();
    update();
}

void NumberLine::clearMarkToRound()
{
    markToRound(QString());
}

QColor NumberLine::markColour()
{
    return kMarkColour;
}

QColor NumberLine::toRoundColour()
{
    return DrawingStyle::colour(kToRoundInPalette);
}

NumberLine::Layout NumberLine::layout() const
{
    Layout l;
    const double margin = std::min(width(), height()) * kMarginShare;
    l.area = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
    l.digits = std::min(l.area.height() * kDigitHeightShare, l.area.width() * kDigitWidthShare);
    const double side = std::max({halfWidth(m_from, l.digits), halfWidth(m_to, l.digits),
                                  (kOutsideGap + kArrowLength) * l.digits});
    l.left = l.area.left() + side;
    l.right = l.area.right() - side;
    const double tall = (kBubbleHeight + kPinHeight + kBelowGap + kLabelHeight) * l.digits;
    l.line = l.area.top() + (l.area.height() - tall) / 2 + (kBubbleHeight + kPinHeight) * l.digits;
    return l;
}

double NumberLine::tickX(int tick) const
{
    const Layout l = layout();
    return l.left + (l.right - l.left) * tick / kSteps;
}

double NumberLine::lineY() const
{
    return layout().line;
}

double NumberLine::positionOf(const QString& value) const
{
    const Layout l = layout();
    const std::int64_t from = valueOf(m_from).billionths();
    const std::int64_t span = valueOf(m_to).billionths() - from;
    const std::int64_t offset = valueOf(value).billionths() - from;
    if (span <= 0)
        return l.left;
    if (offset < 0)
        return l.left - kOutsideGap * l.digits;
    if (offset > span)
        return l.right + kOutsideGap * l.digits;
    // The share of the line, reduced first so that a value on a tick lands
    // exactly where that tick is drawn.
    const std::int64_t common = std::gcd(offset, span);
    return l.left + (l.right - l.left) * double(offset / common) / double(span / common);
}

QRectF NumberLine::labelRect(const Layout& l, const QString& text, double x, double top) const
{
    const double half = halfWidth(text, l.digits) + kBubblePad * l.digits;
    QRectF box(x - half, top, 2 * half, kBubbleHeight * l.digits);
    if (box.left() < l.area.left())
        box.moveLeft(l.area.left());
    if (box.right() > l.area.right())
        box.moveRight(l.area.right());
    return box;
}

QRectF NumberLine::endLabelRect(int end) const
{
    const Layout l = layout();
    const QString& text = end == 0 ? m_from : m_to;
    const double half = halfWidth(text, l.digits);
    const double x = end == 0 ? l.left : l.right;
    return QRectF(x - half, l.line + kBelowGap * l.digits, 2 * half, kLabelHeight * l.digits);
}

QRectF NumberLine::markLabelRect() const
{
    if (m_mark.isEmpty())
        return QRectF();
    const Layout l = layout();
    return labelRect(l, m_mark, positionOf(m_mark), l.line - (kPinHeight + kBubbleHeight) * l.digits);
}

QRectF NumberLine::toRoundLabelRect() const
{
    if (m_toRound.isEmpty())
        return QRectF();
    const Layout l = layout();
    QRectF box = labelRect(l, m_toRound, positionOf(m_toRound), l.line + kBelowGap * l.digits);
    // It shares its row with the end labels, so it steps aside from them.
    const double space = kLabelSpace * l.digits;
    const QRectF first = endLabelRect(0);
    const QRectF last = endLabelRect(1);
    if (box.left() < first.right() + space && box.right() > first.left() - space)
        box.moveLeft(first.right() + space);
    if (box.right() > last.left() - space && box.left() < last.right() + space)
        box.moveRight(last.left() - space);
    return box;
}

void NumberLine::paintPin(QPainter& painter, const Layout& l, const QString& value, bool above) const
{
    const double x = positionOf(value);
    const QRectF box = above ? markLabelRect() : toRoundLabelRect();
    const QColor fill = above ? kMarkColour : toRoundColour();
    const double outline = DrawingStyle::outlineWidth(kOutlineHeight * l.digits);
    const double d = l.digits;

    // Beyond an end: the line goes on, dashed, to the pin, and an arrow points further.
    if (x < l.left || x > l.right) {
        const double direction = x < l.left ? -1 : 1;
        const double end = x < l.left ? l.left : l.right;
        painter.setPen(QPen(fill, outline * kLineFactor, Qt::DashLine, Qt::FlatCap));
        painter.drawLine(QPointF(end, l.line), QPointF(x, l.line));
        const double tip = x + direction * kArrowLength * d;
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill);
        painter.drawPolygon(QPolygonF{QPointF(tip, l.line), QPointF(x, l.line - kArrowHalfWidth * d),
                                      QPointF(x, l.line + kArrowHalfWidth * d)});
    }

    const double touch = above ? l.line - outline * kLineFactor : l.line + outline * kLineFactor;
    const double base = above ? box.bottom() : box.top();
    const QPolygonF pin{QPointF(x, touch), QPointF(x - kPinHalfWidth * d, base), QPointF(x + kPinHalfWidth * d, base)};
    painter.setPen(QPen(fill.darker(), outline, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(fill);
    painter.drawPolygon(pin);
    painter.drawRoundedRect(box, kBubbleCorner * d, kBubbleCorner * d);
    painter.setPen(above ? kMarkText : DrawingStyle::kInk);
    painter.setFont(DrawingStyle::digitFont(d));
    painter.drawText(box, Qt::AlignCenter, value);
}

void NumberLine::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawingStyle::paintBoard(painter, rect());
    const Layout l = layout();
    const double outline = DrawingStyle::outlineWidth(kOutlineHeight * l.digits);
    const double d = l.digits;

    painter.setPen(QPen(DrawingStyle::kInk, outline, Qt::SolidLine, Qt::RoundCap));
    for (int t = 0; t <= kSteps; ++t) {
        const double half = (t == 0 || t == kSteps ? kEndTick : t * 2 == kSteps ? kMiddleTick : kTick) * d;
        const double x = tickX(t);
        painter.drawLine(QPointF(x, l.line - half), QPointF(x, l.line + half));
    }
    painter.setPen(QPen(DrawingStyle::kInk, outline * kLineFactor, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(l.left, l.line), QPointF(l.right, l.line));

    painter.setFont(DrawingStyle::digitFont(d));
    painter.drawText(endLabelRect(0), Qt::AlignCenter, m_from);
    painter.drawText(endLabelRect(1), Qt::AlignCenter, m_to);

    if (!m_toRound.isEmpty())
        paintPin(painter, l, m_toRound, false);
    if (!m_mark.isEmpty())
        paintPin(painter, l, m_mark, true);
}

void NumberLine::describe()
{
    if (m_from.isEmpty() || m_to.isEmpty()) {
        setAccessibleName(tr("a number line"));
        return;
    }
    // Numbers are read aloud as words: "three point four".
    using Fractions::decimalWords;
    QString text = tr("a number line from %1 to %2").arg(decimalWords(m_from), decimalWords(m_to));
    if (!m_toRound.isEmpty())
        text = tr("%1, %2 to round").arg(text, decimalWords(m_toRound));
    if (!m_mark.isEmpty())
        text = tr("%1, %2 marked").arg(text, decimalWords(m_mark));
    setAccessibleName(text);
}

QSize NumberLine::sizeHint() const
{
    return kPreferredSize;
}

QSize NumberLine::minimumSizeHint() const
{
    return kSmallestSize;
}
