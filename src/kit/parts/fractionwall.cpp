#include "fractionwall.h"

#include "drawingstyle.h"
#include "fractions/fraction.h"

#include <QPainter>
#include <QStringList>
#include <algorithm>

namespace {
constexpr double kMarginShare = 0.06;   // of the widget's smaller side
constexpr double kRowGapShare = 0.18;   // space between rows, of a row's height
constexpr double kTallestRow = 0.2;     // a row's height, at most this share of the width
// A brick's fraction may fill this much of the brick.
constexpr double kLabelWidth = 0.78;
constexpr double kLabelHeight = 0.86;
// Digits smaller than this share of a row's height, or than the smallest
// size a child reads easily, move to the row's left.
constexpr double kReadableShare = 0.26;
constexpr double kSmallestDigits = 12;
constexpr double kLabelColumn = 0.9;    // the left-hand fraction's width, in row heights
constexpr double kOutlineFactor = 1.8;  // a row's edge against the lines between bricks
constexpr QSize kPreferredSize{420, 200};
constexpr QSize kSmallestSize{140, 60};

// A row as a screen reader says it: "a row of 8 eighths, 4 shaded".
QString rowWords(const FractionWall::Row& row)
{
    const QString bricks = row.bottom == 1 ? FractionWall::tr("1 whole")
                                           : FractionWall::tr("%1 %2", "a count of bricks and their name: 8 eighths")
                                                 .arg(row.bottom)
                                                 .arg(Fractions::partsName(row.bottom));
    return row.shaded == 0 ? FractionWall::tr("a row of %1, none shaded").arg(bricks)
                           : FractionWall::tr("a row of %1, %2 shaded").arg(bricks).arg(row.shaded);
}
} // namespace

FractionWall::FractionWall(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("FractionWall"));
    describe();
}

void FractionWall::setRows(const QVector<Row>& rows)
{
    m_rows.clear();
    for (Row row : rows) {
        row.bottom = std::clamp(row.bottom, 1, kMostBricks);
        row.shaded = std::clamp(row.shaded, 0, row.bottom);
        m_rows << row;
    }
    describe();
    update();
}

QColor FractionWall::rowColour(int row)
{
    return DrawingStyle::colour(row);
}

FractionWall::Layout FractionWall::layout() const
{
    Layout l;
    const int n = m_rows.size();
    if (n == 0)
        return l;
    const double margin = std::min(width(), height()) * kMarginShare;
    const QRectF area = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
    const double rowHeight = std::min(area.height() / (n + (n - 1) * kRowGapShare), area.width() * kTallestRow);
    const double step = rowHeight * (1 + kRowGapShare);
    const double top = area.top() + (area.height() - (n * step - rowHeight * kRowGapShare)) / 2;

    double onBricks = rowHeight;
    for (const Row& row : m_rows) {
        const QSizeF brick(area.width() / row.bottom * kLabelWidth, rowHeight * kLabelHeight);
        onBricks = std::min(onBricks, DrawingStyle::fractionSize(brick, 1, row.bottom));
    }
    const bool fits = onBricks >= std::max(kSmallestDigits, rowHeight * kReadableShare);
    const double labelWidth = fits ? 0 : rowHeight * kLabelColumn;
    const double rowLeft = area.left() + (fits ? 0 : labelWidth + rowHeight * kRowGapShare);
    l.labelSize = fits ? onBricks : rowHeight;
    for (int r = 0; r < n; ++r) {
        const double y = top + r * step;
        l.rows << QRectF(rowLeft, y, area.right() - rowLeft, rowHeight);
        const QRectF label = fits ? QRectF() : QRectF(area.left(), y, labelWidth, rowHeight);
        l.labels << label;
        if (!fits)
            l.labelSize = std::min(l.labelSize, DrawingStyle::fractionSize(
                label.size() * kLabelHeight, 1, m_rows[r].bottom));
    }
    return l;
}

QRectF FractionWall::brickRect(int row, int brick) const
{
    const Layout l = layout();
    if (row < 0 || row >= l.rows.size())
        return QRectF();
    const QRectF whole = l.rows[row];
    const double step = whole.width() / m_rows[row].bottom;
    return QRectF(whole.left() + brick * step, whole.top(), step, whole.height());
}

QRectF FractionWall::rowLabelRect(int row) const
{
    const Layout l = layout();
    return row >= 0 && row < l.labels.size() ? l.labels[row] : QRectF();
}

bool FractionWall::labelsOnBricks() const
{
    const Layout l = layout();
    return l.labels.isEmpty() || l.labels.first().isEmpty();
}

void FractionWall::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawingStyle::paintBoard(painter, rect());
    const Layout l = layout();
    for (int r = 0; r < l.rows.size(); ++r) {
        const Row& row = m_rows[r];
        const QRectF whole = l.rows[r];
        const double outline = DrawingStyle::outlineWidth(whole.height());
        const double step = whole.width() / row.bottom;
        painter.setPen(QPen(DrawingStyle::kInk, outline, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        for (int b = 0; b < row.bottom; ++b) {
            const QRectF brick(whole.left() + b * step, whole.top(), step, whole.height());
            painter.setBrush(b < row.shaded ? rowColour(r) : DrawingStyle::kEmpty);
            painter.drawRect(brick);
            if (l.labels[r].isEmpty())
                DrawingStyle::paintFraction(painter, brick, 1, row.bottom, l.labelSize);
        }
        painter.setPen(QPen(DrawingStyle::kInk, outline * kOutlineFactor, Qt::SolidLine, Qt::SquareCap,
                            Qt::MiterJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(whole);
        if (!l.labels[r].isEmpty())
            DrawingStyle::paintFraction(painter, l.labels[r], 1, row.bottom, l.labelSize);
    }
}

void FractionWall::describe()
{
    QStringList parts;
    for (const Row& row : m_rows)
        parts << rowWords(row);
    setAccessibleName(parts.isEmpty() ? tr("an empty fraction wall") : parts.join(QStringLiteral("; ")));
}

QSize FractionWall::sizeHint() const
{
    return kPreferredSize;
}

QSize FractionWall::minimumSizeHint() const
{
    return kSmallestSize;
}
