#include "focusring.h"

#include "twips.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

const QColor FocusRing::kBand(255, 214, 0);
const QColor FocusRing::kEdge(20, 20, 70);

namespace {

// The band's share of the ring's width; the dark edge is the rest.
constexpr qreal kBandShare = 0.6;

// What the focus frame asks of its style: how far the ring reaches out, that
// it lies above the controls, and that only the ring itself is drawn on.
class RingStyle : public QProxyStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        if (metric == PM_FocusFrameHMargin || metric == PM_FocusFrameVMargin)
            return std::max(1, Twips::toPixels(FocusRing::kWidthTwips));
        return QProxyStyle::pixelMetric(metric, option, widget);
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override
    {
        if (hint == SH_FocusFrame_AboveWidget)
            return 1;
        if (hint == SH_FocusFrame_Mask && option) {
            if (auto* mask = qstyleoption_cast<QStyleHintReturnMask*>(returnData)) {
                const int width = pixelMetric(PM_FocusFrameHMargin, option, widget);
                mask->region = QRegion(option->rect) - QRegion(option->rect.adjusted(width, width, -width, -width));
            }
            return 1;
        }
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

QStyle* ringStyle()
{
    static QStyle* style = [] {
        auto* s = new RingStyle;
        s->setParent(qApp);
        return s;
    }();
    return style;
}

} // namespace

FocusRing::FocusRing(QWidget* screen)
    : QFocusFrame(screen)
{
    setObjectName(QStringLiteral("FocusRing"));
    setAccessibleName(tr("Keyboard focus"));
    setStyle(ringStyle());
    hide();
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { follow(now); });
}

void FocusRing::follow(QWidget* now)
{
    QWidget* screen = parentWidget() ? parentWidget()->window() : nullptr;
    if (!now || now->window() != screen)
        return; // the focus went to another window; the ring waits on its control
    setWidget(now == screen ? nullptr : now);
}

void FocusRing::paintEvent(QPaintEvent*)
{
    if (!widget())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal width = style()->pixelMetric(QStyle::PM_FocusFrameHMargin);
    const QRectF band = QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(kEdge, width));
    painter.drawRoundedRect(band, width, width);
    painter.setPen(QPen(kBand, width * kBandShare));
    painter.drawRoundedRect(band, width, width);
}
