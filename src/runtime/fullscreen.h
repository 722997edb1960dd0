#pragma once
// Full screen: every screen is shown over a window that fills the display
// in the screen's own back colour, the designed screen centred on it, so a
// classroom or kiosk sees nothing else. F11 on any screen turns it on and off.
// The screens stay windows of their own and keep every twips position; the
// full-screen window behind each one follows it (shown, hidden and gone with
// it) and passes its close box on to the screen's.
class Form;
class QWidget;

namespace FullScreen {

bool isOn();
// Turns full screen on or off for every screen now on the display and every
// screen shown later.
void setOn(bool on);
void toggle();

// Readies a screen for showing (Forms::show calls this first).
void prepare(Form* form);

// The full-screen window behind a screen, or nullptr.
QWidget* hostOf(const Form* form);
// Whether a window is the full-screen window behind a screen; if so, the
// screen it stands behind.
const Form* hostedBy(const QWidget* window);

// Lets F11 toggle full screen on every window of the program.
void installKey();

} // namespace FullScreen
