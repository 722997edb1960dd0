#pragma once
// What must hold after every event of the program, whatever the child did:
// one screen on show (besides the hidden Grey, a modal box, the certificate
// and the retry panel), the run's count within its length, no hint in a
// Challenge, every control inside its screen, and always a way on from the
// screen in front.
#include <QString>
#include <QList>

class QWidget;
using QWidgetList = QList<QWidget*>;

namespace Play {

// The screens on show: the one screen, and what may stand over it.
struct OnShow {
    QWidgetList screens;  // visible screens that are neither of the others
    QWidgetList overlays; // the certificate, the retry panel, modal boxes
    // Where the child's clicks and keys can go: the last modal box shown,
    // else the screen.
    QWidget* front = nullptr;
};
OnShow onShow();

// The first invariant that does not hold, in words naming the screen and
// control; empty when all hold.
QString brokenInvariant();

// The single checks, for the tests of the checks themselves.
QString checkScreenCount(const OnShow& shown);
QString checkRunCount(const OnShow& shown);
QString checkHintInChallenge(const OnShow& shown);
QString checkControlsInside(const OnShow& shown);
QString checkWayOn(const OnShow& shown);

// A control the child can use: visible and enabled, and a button or a
// control that takes the keyboard or a click.
bool isUsable(const QWidget* control);

} // namespace Play
