#include "fractionpair.h"

#include "kit/parts/drawingstyle.h"
#include "runtime/spoken.h"

#include <QPainter>
#include <algorithm>

namespace {
// Shares of the widget's width: each fraction, and the mark between them.
constexpr double kFractionShare = 0.34;
constexpr double kMarkShare = 0.2;
constexpr double kMargin = 0.08; // of the height, above and below
const QString kMark = QStringLiteral("?");
} // namespace

FractionPair::FractionPair(QWidget* parent)
    : QWidget(parent)
{
    Spoken::markAsPicture(this);
}

void FractionPair::setPair(int leftTop, int leftBottom, int rightTop, int rightBottom, const QString& spoken)
{
    m_leftTop = leftTop;
    m_leftBottom = leftBottom;
    m_rightTop = rightTop;
    m_rightBottom = rightBottom;
    setAccessibleName(spoken);
    update();
}

QRectF FractionPair::leftRect() const
{
    const double margin = height() * kMargin;
    const double edge = width() * (1 - 2 * kFractionShare - kMarkShare) / 2;
    return {edge, margin, width() * kFractionShare, height() - 2 * margin};
}

QRectF FractionPair::rightRect() const
{
    const QRectF left = leftRect();
    return left.translated(left.width() + width() * kMarkShare, 0);
}

QRectF FractionPair::markRect() const
{
    const QRectF left = leftRect();
    return {left.right(), left.top(), width() * kMarkShare, left.height()};
}

void FractionPair::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawingStyle::paintBoard(painter, rect());
    painter.setPen(DrawingStyle::kInk);
    const QRectF left = leftRect();
    const QRectF right = rightRect();
    // Both fractions in one size, the smaller of the two that fit.
    const double size = std::min(DrawingStyle::fractionSize(left.size(), m_leftTop, m_leftBottom),
                                 DrawingStyle::fractionSize(right.size(), m_rightTop, m_rightBottom));
    DrawingStyle::paintFraction(painter, left, m_leftTop, m_leftBottom, size);
    DrawingStyle::paintFraction(painter, right, m_rightTop, m_rightBottom, size);
    painter.setFont(DrawingStyle::digitFont(size));
    painter.drawText(markRect(), Qt::AlignCenter, kMark);
}
