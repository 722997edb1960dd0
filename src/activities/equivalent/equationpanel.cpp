#include "equationpanel.h"

#include "kit/parts/drawingstyle.h"
#include "runtime/spoken.h"

#include <QPainter>
#include <algorithm>

namespace {
// Everything is measured in the digits' size: a fraction's column is this
// many digits wide, a number's slot this high, and so on.
constexpr double kColumnWidth = 1.9;
constexpr double kSlotHeight = 1.3;
constexpr double kBarGap = 0.25;      // between the bar and each number
constexpr double kBarWidth = 0.09;    // the bar's thickness
constexpr double kEqualsWidth = 1.3;
constexpr double kGap = 0.35;         // between a fraction and the "="
constexpr double kMarginShare = 0.06; // of the panel's smaller side
constexpr double kBlankEdge = 0.06;   // the empty square's edge on a worksheet
constexpr double kWidthInDigits = 2 * kColumnWidth + kEqualsWidth + 2 * kGap;
constexpr double kHeightInDigits = 2 * kSlotHeight + 2 * kBarGap + kBarWidth;
constexpr QSize kPreferredSize{480, 220};
constexpr QSize kSmallestSize{160, 80};
} // namespace

EquationPanel::EquationPanel(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("Picture2"));
    Spoken::readAsOne(this);
}

void EquationPanel::setPair(const Equivalent::Pair& pair)
{
    m_pair = pair;
    setAccessibleName(pair.spoken());
    update();
}

EquationPanel::Layout EquationPanel::layout(const QRectF& box)
{
    Layout l;
    const double margin = std::min(box.width(), box.height()) * kMarginShare;
    const QRectF area = box.adjusted(margin, margin, -margin, -margin);
    const double d = std::min(area.width() / kWidthInDigits, area.height() / kHeightInDigits);
    l.digits = d;
    const double left = area.center().x() - kWidthInDigits * d / 2;
    const double top = area.center().y() - kHeightInDigits * d / 2;
    const double barY = top + (kSlotHeight + kBarGap) * d;
    const double bottomY = barY + (kBarWidth + kBarGap) * d;
    const double secondLeft = left + (kColumnWidth + 2 * kGap + kEqualsWidth) * d;
    const double column = kColumnWidth * d;
    for (int f = 0; f < 2; ++f) {
        const double x = f == 0 ? left : secondLeft;
        l.numbers[2 * f] = QRectF(x, top, column, kSlotHeight * d);
        l.numbers[2 * f + 1] = QRectF(x, bottomY, column, kSlotHeight * d);
        l.bars[f] = QRectF(x, barY, column, kBarWidth * d);
    }
    l.equals = QRectF(left + (kColumnWidth + kGap) * d, top, kEqualsWidth * d, kHeightInDigits * d);
    return l;
}

QRectF EquationPanel::blankRect() const
{
    return layout(QRectF(rect())).numbers[int(m_pair.blank)];
}

double EquationPanel::digitSize() const
{
    return layout(QRectF(rect())).digits;
}

void EquationPanel::paint(QPainter& painter, const QRectF& box, const Equivalent::Pair& pair, bool blankAsSquare)
{
    const Layout l = layout(box);
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(DrawingStyle::kInk);
    for (const QRectF& bar : l.bars)
        painter.drawRect(bar);
    painter.setPen(DrawingStyle::kInk);
    painter.setFont(DrawingStyle::digitFont(l.digits));
    const Equivalent::Blank places[] = {Equivalent::Blank::FirstTop, Equivalent::Blank::FirstBottom,
                                        Equivalent::Blank::SecondTop, Equivalent::Blank::SecondBottom};
    for (int n = 0; n < 4; ++n) {
        if (places[n] != pair.blank) {
            painter.drawText(l.numbers[n], Qt::AlignCenter, QString::number(pair.number(places[n])));
        } else if (blankAsSquare) {
            painter.setBrush(Qt::white);
            painter.setPen(QPen(DrawingStyle::kInk, l.digits * kBlankEdge));
            painter.drawRect(l.numbers[n]);
            painter.setPen(DrawingStyle::kInk);
        }
    }
    painter.drawText(l.equals, Qt::AlignCenter, QStringLiteral("="));
    painter.restore();
}

void EquationPanel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawingStyle::paintBoard(painter, rect());
    paint(painter, QRectF(rect()), m_pair, false);
}

QSize EquationPanel::sizeHint() const
{
    return kPreferredSize;
}

QSize EquationPanel::minimumSizeHint() const
{
    return kSmallestSize;
}
