#include "placevaluetable.h"

#include "drawingstyle.h"
#include "fractions/placevalues.h"
#include "placevaluedrawing.h"

#include <QPainter>
#include <algorithm>

namespace {
constexpr double kMarginShare = 0.06;  // of the widget's smaller side
constexpr double kHeadsShare = 0.42;   // of the inside's height, for the heads
constexpr double kGapShare = 0.04;
constexpr double kPlainTextWidth = 0.8; // how much of the board the plain number may fill
constexpr double kPlainTextHeight = 0.5;
constexpr double kDigitsTextHeight = 0.75;
constexpr double kDigitsTextWidth = 0.6;
constexpr double kHeadsTextHeight = 0.32; // a stacked fraction's two lines
constexpr double kHeadsTextWidth = 0.82;
constexpr double kHeadInset = 0.05;      // of a column's width
constexpr double kHeadCorner = 0.15;
constexpr int kMarkInPalette = 1;
constexpr int kHeadInPalette = 4;
constexpr QSize kPreferredSize{420, 220};
constexpr QSize kSmallestSize{160, 90};

// The part of the written number before the point, and after it.
QString wholePart(const QString& written)
{
    const int point = written.indexOf(QLatin1Char('.'));
    return point < 0 ? written : written.left(point);
}

QString decimalPart(const QString& written)
{
    const int point = written.indexOf(QLatin1Char('.'));
    return point < 0 ? QString() : written.mid(point + 1);
}

// The heads from `highest` down to `lowest`: words for tens and ones, the
// fractions 1/10, 1/100 and 1/1000 for the places after the point.
QStringList headsOf(int highest, int lowest)
{
    QStringList heads;
    for (int place = highest; place >= lowest; --place)
        heads << (place >= Places::kOnes ? Places::columnName(place)
                                         : QStringLiteral("1/%1").arg(Places::tenTo(-place)));
    return heads;
}
} // namespace

PlaceValueTable::PlaceValueTable(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("PlaceValueTable"));
    describe();
}

void PlaceValueTable::setNumber(const QString& written, int highest, int lowest)
{
    m_number = written;
    const int wholeDigits = int(wholePart(written).size());
    const int places = int(decimalPart(written).size());
    m_highest = std::clamp(std::max(highest, wholeDigits - 1), kLowest, kHighest);
    m_lowest = std::clamp(std::min(lowest, -places), kLowest, m_highest);
    m_from = 1;
    m_to = 2;
    m_columns = false;
    describe();
    update();
}

void PlaceValueTable::setMarked(int from, int to)
{
    m_from = from;
    m_to = to;
    describe();
    update();
}

void PlaceValueTable::setColumnsShown(bool on)
{
    m_columns = on;
    describe();
    update();
}

QString PlaceValueTable::digitAt(int place) const
{
    const QString whole = wholePart(m_number);
    const QString decimals = decimalPart(m_number);
    const int index = place >= 0 ? int(whole.size()) - 1 - place : -place - 1;
    const QString& digits = place >= 0 ? whole : decimals;
    return index >= 0 && index < digits.size() ? QString(digits[index]) : QString();
}

QColor PlaceValueTable::markColour()
{
    return DrawingStyle::deep(kMarkInPalette);
}

QRectF PlaceValueTable::headsRect() const
{
    const double margin = std::min(width(), height()) * kMarginShare;
    const QRectF inside = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
    return QRectF(inside.left(), inside.top(), inside.width(), inside.height() * kHeadsShare);
}

QRectF PlaceValueTable::digitsRect() const
{
    const double margin = std::min(width(), height()) * kMarginShare;
    const QRectF inside = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
    const double top = inside.top() + inside.height() * (kHeadsShare + kGapShare);
    return QRectF(inside.left(), top, inside.width(), inside.bottom() - top);
}

void PlaceValueTable::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawingStyle::paintBoard(painter, rect());
    if (m_number.isEmpty())
        return;
    if (m_columns)
        paintColumns(painter);
    else
        paintPlain(painter);
}

void PlaceValueTable::paintPlain(QPainter& painter) const
{
    // The number centred, character by character so marked digits take their colour.
    const QRectF area = rect();
    const double size = DrawingStyle::fittingSize(
        {m_number}, QSizeF(area.width() * kPlainTextWidth, area.height() * kPlainTextHeight), area.height());
    const QFont font = DrawingStyle::digitFont(size);
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    double x = area.center().x() - metrics.horizontalAdvance(m_number) / 2;
    const double baseline = area.center().y() + (metrics.ascent() - metrics.descent()) / 2;
    const int point = m_number.contains(QLatin1Char('.')) ? int(m_number.indexOf(QLatin1Char('.')))
                                                          : int(m_number.size());
    for (int i = 0; i < m_number.size(); ++i) {
        const int place = i < point ? point - 1 - i : point - i;
        const bool marked = i != point && place <= m_from && place >= m_to;
        painter.setPen(marked ? markColour() : DrawingStyle::kInk);
        painter.drawText(QPointF(x, baseline), QString(m_number[i]));
        x += metrics.horizontalAdvance(m_number[i]);
    }
}

void PlaceValueTable::paintColumns(QPainter& painter) const
{
    const QStringList heads = headsOf(m_highest, m_lowest);
    const int columns = int(heads.size());
    const QRectF headsArea = headsRect();
    const QRectF digitsArea = digitsRect();
    const double pitch = headsArea.width() / columns;

    // Heads: the words and the fractions' numbers at one size that fits every column.
    QStringList words;
    for (const QString& head : heads)
        words << head.split(QLatin1Char('/'));
    const double headSize = DrawingStyle::fittingSize(
        words, QSizeF(pitch * kHeadsTextWidth, headsArea.height() * kHeadsTextHeight), headsArea.height());
    PlaceValueDrawing::HeadsLook headLook;
    headLook.ink = DrawingStyle::kInk;
    headLook.fill = DrawingStyle::kEmpty;
    headLook.line = DrawingStyle::outlineWidth(headsArea.height()) / 2;
    headLook.insetX = pitch * kHeadInset;
    headLook.insetY = headLook.line;
    headLook.corner = pitch * kHeadCorner;
    headLook.gap = headLook.line;
    headLook.highlighted = m_to <= m_from ? m_highest - m_to : -1;
    headLook.highlight = DrawingStyle::soft(kHeadInPalette);
    PlaceValueDrawing::paintHeads(painter, headsArea, heads, DrawingStyle::digitFont(headSize), headLook);

    // The columns' edges, the ones' right edge (where the point stands) drawn heavier.
    const double outline = DrawingStyle::outlineWidth(digitsArea.height());
    for (int c = 1; c < columns; ++c) {
        const double x = digitsArea.left() + c * pitch;
        const bool pointEdge = m_highest - c == Places::kOnes - 1;
        painter.setPen(QPen(DrawingStyle::kInk, pointEdge ? outline : outline / 2));
        painter.drawLine(QPointF(x, headsArea.bottom()), QPointF(x, digitsArea.bottom()));
    }

    QStringList digits;
    for (int place = m_highest; place >= m_lowest; --place)
        digits << digitAt(place);
    PlaceValueDrawing::DigitsLook look;
    look.ink = DrawingStyle::kInk;
    look.columns = columns;
    look.pointAfter = m_lowest < 0 ? m_highest : -1;
    look.markedFrom = m_highest - m_from;
    look.markedTo = m_highest - m_to;
    look.mark = markColour();
    painter.setFont(DrawingStyle::digitFont(DrawingStyle::fittingSize(
        {QStringLiteral("8")}, QSizeF(pitch * kDigitsTextWidth, digitsArea.height() * kDigitsTextHeight),
        digitsArea.height())));
    PlaceValueDrawing::paintDigits(painter, digitsArea, digits, look);
}

void PlaceValueTable::describe()
{
    const QString spoken = Places::spoken(m_number);
    if (!m_columns) {
        setAccessibleName(m_number.isEmpty() ? tr("no number yet") : tr("the number %1").arg(spoken));
        return;
    }
    QStringList places;
    for (int place = m_highest; place >= m_lowest; --place)
        if (!digitAt(place).isEmpty())
            places << Places::count(digitAt(place).toInt(), place);
    setAccessibleName(tr("%1 in place-value columns: %2").arg(spoken, places.join(QStringLiteral(", "))));
}

QSize PlaceValueTable::sizeHint() const
{
    return kPreferredSize;
}

QSize PlaceValueTable::minimumSizeHint() const
{
    return kSmallestSize;
}
