// Balloons: bright balloons on strings float up past the picture, swaying
// as they go, small ones behind and big ones in front.
//
// Each column of balloons repeats every `spacing` pixels upwards and rises
// by exactly that much in one loop, and a balloon's sideways sway depends
// only on its height, so the last frame leads straight into the first.
#include "celebrations.h"

#include "canvas.h"

#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <cmath>

namespace Celebrate {

namespace {

struct Column
{
    double x;
    double size;     // 1 for a front balloon
    double spacing;  // between balloons in the column, and the rise per loop
    double start;
    double swayPhase;
    QColor colour;
};

// Back row first, so the front row passes in front of it.
const Column kColumns[] = {
    {59, 0.68, 80, 75, 0.1, QColor(146, 74, 204)},   // purple
    {101, 0.68, 80, 20, 0.6, QColor(255, 145, 0)},   // orange
    {143, 0.68, 80, 60, 0.35, QColor(0, 190, 170)},  // teal
    {38, 1.0, 115, 20, 0.0, QColor(233, 40, 55)},    // red
    {80, 1.0, 115, 80, 0.5, QColor(255, 210, 0)},    // yellow
    {122, 1.0, 115, 45, 0.25, QColor(240, 70, 160)}, // pink
    {164, 1.0, 115, 105, 0.75, QColor(60, 185, 60)}, // green
};

constexpr double kBodyRx = 15;
constexpr double kBodyRy = 19;
constexpr double kString = 34;

double sway(const Column &c, double y) { return 5 * c.size * wave(y / 120 + c.swayPhase); }

void drawBalloon(QPainter &p, const QPointF &at, double size, double tilt, const QColor &colour,
                 double swayNow)
{
    const double rx = kBodyRx * size, ry = kBodyRy * size;
    const QPointF knot = at + QPointF(0, ry);

    // The string trails below in a gentle S that follows the sway.
    QPainterPath string(knot);
    const double len = kString * size;
    string.cubicTo(knot + QPointF(-swayNow - 4 * size, len * 0.35),
                   knot + QPointF(swayNow + 4 * size, len * 0.7),
                   knot + QPointF(-swayNow * 0.5, len));
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(255, 255, 255, 210), 1.1 * size + 0.3, Qt::SolidLine, Qt::RoundCap));
    p.drawPath(string);

    p.save();
    p.translate(at);
    p.rotate(tilt);
    // A body a little wider at the top than at the bottom, like a real balloon.
    QPainterPath body(QPointF(0, -ry));
    body.cubicTo(QPointF(rx * 1.35, -ry), QPointF(rx * 1.05, ry * 0.75), QPointF(0, ry));
    body.cubicTo(QPointF(-rx * 1.05, ry * 0.75), QPointF(-rx * 1.35, -ry), QPointF(0, -ry));
    QRadialGradient fill(QPointF(0, 0), ry * 1.1, QPointF(-rx * 0.35, -ry * 0.4));
    fill.setColorAt(0.0, mixColours(colour, Qt::white, 0.55));
    fill.setColorAt(0.45, colour);
    fill.setColorAt(1.0, colour.darker(150));
    p.setPen(QPen(colour.darker(170), 1));
    p.setBrush(fill);
    p.drawPath(body);

    QPainterPath tie(QPointF(0, ry - 1));
    tie.lineTo(QPointF(3.5 * size, ry + 4 * size));
    tie.lineTo(QPointF(-3.5 * size, ry + 4 * size));
    tie.closeSubpath();
    p.setBrush(colour.darker(130));
    p.drawPath(tie);

    // The shine of the rubber.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 190));
    p.translate(-rx * 0.42, -ry * 0.45);
    p.rotate(-30);
    p.drawEllipse(QPointF(0, 0), 2.6 * size, 5.4 * size);
    p.restore();
}

} // namespace

void drawBalloons(QPainter &p, double u)
{
    drawTwinkles(p, u, 8, 41);
    for (const Column &c : kColumns) {
        const double top = -kBodyRy * c.size - 4;  // a balloon leaves above here
        const double travel = kHeight + (kBodyRy + kString + 6) * c.size - top;
        const double first = c.start - u * c.spacing;
        const int copies = int(std::ceil(travel / c.spacing)) + 1;
        for (int k = -1; k < copies; ++k) {
            const double y = first + k * c.spacing;
            if (y < top || y > top + travel)
                continue;
            const double dx = sway(c, y);
            // Leans the way it is drifting.
            const double lean = -6 * c.size * std::cos(2 * M_PI * (y / 120 + c.swayPhase));
            const QColor colour = c.size < 1 ? mixColours(c.colour, QColor(48, 133, 214), 0.15)
                                             : c.colour;
            drawBalloon(p, QPointF(c.x + dx, y), c.size, lean, colour, dx);
        }
    }
}

} // namespace Celebrate
