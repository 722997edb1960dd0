#include "twips.h"

#include "screenfit.h"

#include <QFont>
#include <QRect>
#include <QSize>
#include <QWidget>
#include <cmath>

namespace Twips {
namespace {
double g_scale = 1.0;
constexpr int kTwipsPerPoint = 20;
}

double scale() { return g_scale; }

void setScale(double factor)
{
    if (factor > 0.0)
        g_scale = factor;
}

int toPixels(int twips)
{
    return static_cast<int>(std::lround(twips * g_scale / kPerPixel));
}

int fromPixels(int pixels)
{
    return static_cast<int>(std::lround(pixels * kPerPixel / g_scale));
}

QRect rect(int left, int top, int width, int height)
{
    return QRect(toPixels(left), toPixels(top), toPixels(width), toPixels(height));
}

QSize scaledPixels(const QSizeF& designPixels)
{
    return QSize(static_cast<int>(std::lround(designPixels.width() * g_scale)),
                 static_cast<int>(std::lround(designPixels.height() * g_scale)));
}

QRect display()
{
    const QRect pixels = ScreenFit::available();
    return QRect(fromPixels(pixels.x()), fromPixels(pixels.y()), fromPixels(pixels.width()),
                 fromPixels(pixels.height()));
}

void place(QWidget* control, int left, int top, int width, int height)
{
    control->setGeometry(rect(left, top, width, height));
}

void move(QWidget* control, int left, int top)
{
    control->move(toPixels(left), toPixels(top));
}

QFont font(const QString& family, double points, bool bold)
{
    QFont f(family);
    const int px = static_cast<int>(std::lround(points * kTwipsPerPoint * g_scale / kPerPixel));
    f.setPixelSize(px > 0 ? px : 1);
    f.setBold(bold);
    return f;
}

} // namespace Twips
