// The great star: a big smiling golden star that rocks and twinkles in
// front of turning light rays, with sparkles circling round it.
#include "celebrations.h"

#include "canvas.h"

#include <QPainter>
#include <QRadialGradient>

#include <cmath>

namespace Celebrate {

namespace {

const QPointF kCentre(100, 77);
constexpr double kRadius = 52;
const QColor kBrown(110, 55, 10);

void drawFace(QPainter &p)
{
    // Eyes with a white glint, rosy cheeks and a wide open smile.
    p.setPen(Qt::NoPen);
    p.setBrush(kBrown);
    for (double side : {-1.0, 1.0})
        p.drawEllipse(QPointF(side * 11, -3), 4.6, 6.4);
    p.setBrush(Qt::white);
    for (double side : {-1.0, 1.0})
        p.drawEllipse(QPointF(side * 11 + 1.4, -5.4), 1.8, 1.8);
    p.setBrush(QColor(255, 120, 120, 150));
    for (double side : {-1.0, 1.0})
        p.drawEllipse(QPointF(side * 21, 8), 5.5, 3.6);

    QPainterPath mouth(QPointF(-11, 7));
    mouth.cubicTo(QPointF(-8, 20), QPointF(8, 20), QPointF(11, 7));
    mouth.quadTo(QPointF(0, 10.5), QPointF(-11, 7));
    p.setBrush(QColor(170, 45, 35));
    p.setPen(QPen(kBrown, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPath(mouth);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 130, 130));
    p.drawEllipse(QPointF(0, 15), 4.5, 2.4);
}

void drawStarBody(QPainter &p)
{
    const QPainterPath body = starPath(QPointF(0, 0), kRadius, kRadius * 0.5, 5);
    QRadialGradient fill(QPointF(0, 0), kRadius, QPointF(-kRadius * 0.3, -kRadius * 0.35));
    fill.setColorAt(0.0, QColor(255, 252, 205));
    fill.setColorAt(0.55, QColor(255, 214, 40));
    fill.setColorAt(1.0, QColor(245, 155, 15));
    p.setBrush(fill);
    p.setPen(QPen(QColor(205, 120, 10), 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPath(body);

    // A gleam along the upper left arm.
    p.setPen(QPen(QColor(255, 255, 255, 200), 3.2, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(-kRadius * 0.55, -kRadius * 0.22), QPointF(-kRadius * 0.3, -kRadius * 0.22));
    p.drawLine(QPointF(-kRadius * 0.1, -kRadius * 0.62), QPointF(-kRadius * 0.04, -kRadius * 0.8));
}

} // namespace

void drawGreatStar(QPainter &p, double u)
{
    // Rays with two shades in turn: the pattern repeats every two rays, so
    // turning by two rays a loop comes back to the start.
    drawRays(p, kCentre, 74, 6, 60 * u, QColor(255, 250, 200), 150);
    drawRays(p, kCentre, 66, 6, 60 * u + 30, QColor(255, 230, 120), 110);
    drawTwinkles(p, u, 14, 5);
    drawGlow(p, kCentre, 66 + 4 * wave(2 * u), QColor(255, 245, 170), 190);

    // Eight sparkles circling by two places a loop; each one's size and
    // turn follow its place on the circle, so the ring looks the same again
    // at the end of the loop.
    for (int i = 0; i < 8; ++i) {
        const double a = 2 * M_PI * (i + 2 * u) / 8;
        const QPointF at = kCentre + QPointF(80 * std::cos(a), 57 * std::sin(a));
        const double bright = 0.5 + 0.5 * std::cos(3 * a);
        const QColor colour = (i % 2) ? QColor(255, 255, 255) : QColor(255, 225, 80);
        drawSparkle(p, at, 5 + 5 * bright, a * 180 / M_PI, colour, 0.55 + 0.45 * bright);
    }

    p.save();
    p.translate(kCentre);
    p.rotate(9 * wave(u));
    const double scale = 1 + 0.05 * wave(2 * u);
    p.scale(scale, scale);
    drawStarBody(p);
    drawFace(p);
    p.restore();

    // A twinkle that flashes on a star point once a loop.
    const double flash = std::pow(std::max(0.0, std::cos(2 * M_PI * u)), 4);
    drawSparkle(p, kCentre + QPointF(30, -34), 3 + 9 * flash, 90 * u, QColor(255, 255, 255),
                flash);
}

} // namespace Celebrate
