#pragma once
// Every position and size on a screen is given in twips (1/1440 inch), as the
// screens were designed. This is the one place where twips become pixels.
// At 96 dots per inch a pixel is 15 twips; one program-wide scale factor lets
// every screen be drawn larger or smaller as a whole.

class QWidget;
class QFont;
class QRect;
class QSize;
class QSizeF;
class QString;

namespace Twips {

constexpr int kPerInch = 1440;
constexpr int kScreenDpi = 96;
constexpr int kPerPixel = kPerInch / kScreenDpi; // 15

double scale();
void setScale(double factor);

int toPixels(int twips);
int fromPixels(int pixels);
QRect rect(int left, int top, int width, int height);
// The size on screen of something designed in pixels (a picture, an icon):
// its designed size times the scale.
QSize scaledPixels(const QSizeF& designPixels);

// The part of the primary display windows may use (without its panels):
// Left, Top, Width and Height in twips.
QRect display();

// Places a control at Left/Top with Width/Height, all in twips.
void place(QWidget* control, int left, int top, int width, int height);
void move(QWidget* control, int left, int top);

// A font of the given point size, sized in pixels so that it scales with the
// screens (a point is 20 twips).
QFont font(const QString& family, double points, bool bold = false);

} // namespace Twips
