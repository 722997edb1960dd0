#pragma once
// The ring that shows which control the keyboard is on: a thick yellow band
// with a dark edge around the control, seen on the screens' blue, on white
// and on pictures alike. Every screen has one; it follows the focus from
// control to control on its screen and is drawn above the controls around,
// outside the control itself, so nothing of the control is hidden.
#include <QFocusFrame>

class FocusRing : public QFocusFrame {
    Q_OBJECT
public:
    explicit FocusRing(QWidget* screen);

    // The band's width in twips (it scales with the screens).
    static constexpr int kWidthTwips = 60;
    static const QColor kBand;
    static const QColor kEdge;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void follow(QWidget* now);
};
