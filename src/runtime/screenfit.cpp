#include "screenfit.h"

#include "form.h"
#include "twips.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>

namespace ScreenFit {
namespace {

QRect g_pretend;

// A full screen's outer size in pixels at scale 1.
constexpr double kScreenWidthPixels = double(Form::kScreenWidthTwips) / Twips::kPerPixel;
constexpr double kScreenHeightPixels = double(Form::kScreenHeightTwips) / Twips::kPerPixel;
// The tallest screen shown, the ordering help (outer height 7485 twips), is
// a little taller than a full screen; it must fit as well.
constexpr int kTallestScreenHeightTwips = 7500;
constexpr double kTallestHeightPixels = double(kTallestScreenHeightTwips) / Twips::kPerPixel;

// Below 1 the largest scale that still fits; rounding down keeps it fitting.
double roundDown(double scale) { return std::floor(scale / kScaleStep + 1e-9) * kScaleStep; }

} // namespace

double pickScale(const QSize& available)
{
    if (available.width() <= 0 || available.height() <= 0)
        return 1.0;
    const double largestThatFits
        = std::min(available.width() / kScreenWidthPixels, available.height() / kTallestHeightPixels);
    const double wanted = std::max(1.0, kFillHeight * available.height() / kScreenHeightPixels);
    return std::max(kScaleStep, roundDown(std::min(wanted, largestThatFits)));
}

bool fits(double scale, const QSize& available)
{
    return scale > 0.0 && std::lround(kScreenWidthPixels * scale) <= available.width()
        && std::lround(kTallestHeightPixels * scale) <= available.height();
}

QRect available()
{
    if (!g_pretend.isEmpty())
        return g_pretend;
    const QScreen* screen = QGuiApplication::primaryScreen();
    constexpr int kFallbackWidth = 1024;
    constexpr int kFallbackHeight = 768;
    return screen ? screen->availableGeometry() : QRect(0, 0, kFallbackWidth, kFallbackHeight);
}

void pretendAvailable(const QRect& pixels) { g_pretend = pixels; }

QPoint keepInside(const QPoint& wanted, const QSize& outer, const QRect& area)
{
    const int right = std::max(area.left(), area.left() + area.width() - outer.width());
    const int bottom = std::max(area.top(), area.top() + area.height() - outer.height());
    return QPoint(std::clamp(wanted.x(), area.left(), right), std::clamp(wanted.y(), area.top(), bottom));
}

} // namespace ScreenFit
