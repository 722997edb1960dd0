#pragma once
// How large the screens are drawn, and where they may go on the display.
// One scale is picked at start for every screen: a full screen fills about
// four fifths of the height windows may use, never smaller than its designed
// size unless that would not fit, and never wider than the display. Every
// window is kept inside the part of the display windows may use.
#include <QPoint>
#include <QRect>
#include <QSize>

namespace ScreenFit {

// A full screen fills this share of the available height.
constexpr double kFillHeight = 0.8;
// The picked scale is rounded down to steps of this size, so the same
// display always gives the same, tidy scale.
constexpr double kScaleStep = 0.05;
// The largest scale a person may ask for on the command line.
constexpr double kLargestScale = 8.0;

// The scale for a display whose available area is this size in logical
// pixels (device-independent: with a device pixel ratio of 2 a 3840 x 2160
// panel is 1920 x 1080). Pure, so it can be tested with any size.
double pickScale(const QSize& available);

// Whether a full screen drawn at this scale fits in the available area.
bool fits(double scale, const QSize& available);

// The part of the primary display windows may use, in logical pixels. Tests
// pretend another display with pretendAvailable (an empty rectangle goes back
// to the real one).
QRect available();
void pretendAvailable(const QRect& pixels);

// Where a window of this outer size goes when it wants to be at `wanted`:
// moved as little as needed to lie inside `area`; a window larger than the
// area keeps its top left corner (and so its title bar) inside it.
QPoint keepInside(const QPoint& wanted, const QSize& outer, const QRect& area);

} // namespace ScreenFit
