#pragma once
// The keyboard on every screen: the order Tab takes a screen's controls in.
// Reading order is rows from top to bottom, each row from left to right, as
// a child reads a page. Controls whose middles are level within half the
// height of the smaller one share a row. The controls inside a frame (or any
// panel) stay together and are read where the frame stands, in their own
// reading order.
#include <QList>

class QWidget;

namespace Keyboard {

// Whether Tab stops at the widget (it takes the focus by Tab and passes it to
// no other widget).
bool takesTab(const QWidget* widget);

// The shown controls under root that Tab stops at, in reading order.
QList<QWidget*> readingOrder(const QWidget* root);

// Makes Tab go through the controls in the order given, each to the next.
void chain(const QList<QWidget*>& order);

} // namespace Keyboard
