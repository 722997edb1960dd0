#pragma once
// A look for push buttons with a picture: the picture centred at the top and
// the caption centred under it, as the activity screens' buttons are
// designed. (Qt puts the picture beside the caption, which leaves no room
// for "Print A Worksheet" on a button 1455 twips wide.) Buttons without a
// picture keep the usual look.
#include <QProxyStyle>

class CaptionBelowIconStyle : public QProxyStyle {
    Q_OBJECT
public:
    explicit CaptionBelowIconStyle(QObject* owner);

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};
