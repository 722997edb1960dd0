#include "scaledstyle.h"

#include "twips.h"

#include <QSize>

ScaledStyle::ScaledStyle()
    : QProxyStyle()
{
}

int ScaledStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const int designed = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return Twips::scaledPixels(QSize(designed, designed)).width();
    default:
        return designed;
    }
}
