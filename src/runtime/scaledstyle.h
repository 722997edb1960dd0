#pragma once
// The look of the controls, with the ticks of check boxes and the dots of
// option buttons drawn at the screens' scale, like everything else on them.
#include <QProxyStyle>

class ScaledStyle : public QProxyStyle {
public:
    ScaledStyle();
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
};
