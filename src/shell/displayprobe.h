#pragma once
// Whether the display the environment names is really there, asked before
// any window system is opened: Qt ends the program with an abort when its
// display cannot be reached, and the program would rather say so itself.

namespace DisplayProbe {

enum class Result {
    ChosenByHand, // QT_QPA_PLATFORM names the platform: Qt is trusted with it
    Reachable,    // an X or Wayland display answers
    Missing,      // none is named, or none that is named answers
};

// On Linux, tries to connect to the X display ($DISPLAY) and the Wayland
// display ($WAYLAND_DISPLAY under $XDG_RUNTIME_DIR). When only X answers, Qt
// is told to use it, so a dead Wayland display is never tried. Elsewhere
// there is always a display.
Result probe();

} // namespace DisplayProbe
