#include "hundredsquare.h"

#include "partstyle.h"

#include <QPainter>
#include <algorithm>

namespace {

constexpr int kHintSide = 320;
constexpr int kSmallestSide = 120;

// The lines between small squares are thin; between columns, heavier.
constexpr double kRowLineShare = 0.004;
constexpr double kColumnLineShare = 0.011;
constexpr double kThinnestRowLine = 1.0;
constexpr double kThinnestColumnLine = 2.0;

} // namespace

HundredSquare::HundredSquare(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(description());
}

void HundredSquare::setShaded(int count, bool wholeColumns)
{
    const int squares = wholeColumns ? count * kSide : count;
    m_shaded = std::clamp(squares, 0, kSquares);
    setAccessibleName(description());
    update();
}

bool HundredSquare::isShaded(int column, int row) const
{
    if (column < 0 || column >= kSide || row < 0 || row >= kSide)
        return false;
    return column * kSide + row < m_shaded;
}

QString HundredSquare::description() const
{
    return tr("a hundred square with %1 small squares shaded").arg(m_shaded);
}

QSize HundredSquare::sizeHint() const
{
    return {kHintSide, kHintSide};
}

QSize HundredSquare::minimumSizeHint() const
{
    return {kSmallestSide, kSmallestSide};
}

double HundredSquare::lineWeight(double share, double thinnest) const
{
    return std::max(thinnest, share * std::min(width(), height()));
}

QRectF HundredSquare::squareBox() const
{
    const double margin = lineWeight(PartStyle::kOutlineShare, PartStyle::kThinnestOutline) / 2 + 1;
    const QRectF inside = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
    const double side = std::min(inside.width(), inside.height());
    QRectF box(0, 0, side, side);
    box.moveCenter(inside.center());
    return box;
}

void HundredSquare::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box = squareBox();
    const double step = box.width() / kSide;

    painter.fillRect(box, PartStyle::kBlank);
    // Whole shaded columns as one block, then the top of the column begun.
    const int fullColumns = m_shaded / kSide;
    const int rowsBegun = m_shaded % kSide;
    painter.fillRect(QRectF(box.left(), box.top(), fullColumns * step, box.height()),
                     PartStyle::kColoured);
    if (rowsBegun > 0)
        painter.fillRect(QRectF(box.left() + fullColumns * step, box.top(), step, rowsBegun * step),
                         PartStyle::kColoured);

    painter.setPen(QPen(PartStyle::kOutline, lineWeight(kRowLineShare, kThinnestRowLine)));
    for (int row = 1; row < kSide; ++row) {
        const double y = box.top() + row * step;
        painter.drawLine(QPointF(box.left(), y), QPointF(box.right(), y));
    }
    painter.setPen(QPen(PartStyle::kOutline, lineWeight(kColumnLineShare, kThinnestColumnLine)));
    for (int column = 1; column < kSide; ++column) {
        const double x = box.left() + column * step;
        painter.drawLine(QPointF(x, box.top()), QPointF(x, box.bottom()));
    }

    QPen outline(PartStyle::kOutline, lineWeight(PartStyle::kOutlineShare, PartStyle::kThinnestOutline));
    outline.setJoinStyle(Qt::MiterJoin);
    painter.setPen(outline);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(box);
}
