// The certificate screen's celebration animations: one drawing function per
// animation, drawing the frame at loop position u (0 <= u < 1) on a
// 200 x 150 canvas already filled with the screen's blue. Every movement is
// a whole number of cycles over the loop, so the last frame leads into the
// first exactly as any frame leads into the next.
#pragma once

#include <QColor>
#include <QPointF>

#include <cstdint>

class QPainter;

namespace Celebrate {

constexpr double kWidth = 200;
constexpr double kHeight = 150;

double fraction(double x);
double wave(double cycles);  // sin(2 pi cycles)


// A four-pointed twinkle with a little glow round it.
void drawSparkle(QPainter &p, const QPointF &at, double r, double turnDegrees,
                 const QColor &colour, double opacity);

// Light rays turning round a centre, fading out before radius `reach`.
void drawRays(QPainter &p, const QPointF &centre, double reach, int rays,
              double turnDegrees, const QColor &colour, int alpha);

// Small sparkles dotted over the picture, each twinkling a whole number of
// times per loop.
void drawTwinkles(QPainter &p, double u, int count, std::uint32_t seed);

void drawGreatStar(QPainter &p, double u);
void drawFireworks(QPainter &p, double u);
void drawBalloons(QPainter &p, double u);
void drawTrophy(QPainter &p, double u);

} // namespace Celebrate
