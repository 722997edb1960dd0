// Fireworks: three rockets in turn shoot up from the bottom and burst into
// rings of coloured sparks that spread, droop and fade. Each rocket's life
// is the whole loop, started at its own third, so the bursts follow one
// another without a gap.
#include "celebrations.h"

#include "canvas.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Celebrate {

namespace {

struct Burst
{
    QPointF at;
    double radius;
    double launchX;
    QColor outer;
    QColor inner;
    int sparks;
};

const Burst kBursts[] = {
    {{58, 54}, 50, 76, QColor(255, 60, 75), QColor(255, 225, 60), 16},
    {{146, 48}, 48, 126, QColor(80, 240, 95), QColor(255, 255, 255), 16},
    {{102, 82}, 46, 92, QColor(255, 110, 215), QColor(255, 185, 40), 16},
};

constexpr double kRise = 0.18;  // share of a rocket's life spent climbing

QPointF rocketAt(const Burst &b, double climb)
{
    const double s = 1 - (1 - climb) * (1 - climb);  // slows near the top
    const QPointF start(b.launchX, kHeight + 6);
    return start + (b.at - start) * s;
}

void drawRocket(QPainter &p, const Burst &b, double climb)
{
    const QPointF head = rocketAt(b, climb);
    const QPointF tail = rocketAt(b, std::max(0.0, climb - 0.35)) + QPointF(0, 10);
    QLinearGradient trail(tail, head);
    trail.setColorAt(0, QColor(255, 220, 150, 0));
    trail.setColorAt(1, QColor(255, 240, 190, 230));
    p.setPen(QPen(QBrush(trail), 2.6, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(tail, head);
    // Little sparks dropping off the trail.
    for (int i = 1; i <= 3; ++i) {
        const QPointF spark = rocketAt(b, std::max(0.0, climb - 0.1 * i))
                              + QPointF((i % 2 ? 3 : -3) * i * 0.7, 4.0 * i);
        drawGlow(p, spark, 3.0, QColor(255, 230, 150), 220 - 50 * i);
    }
    drawGlow(p, head, 9, QColor(255, 245, 200), 230);
    p.setBrush(Qt::white);
    p.drawEllipse(head, 2.2, 2.2);
}

// A spark's place at time t of the burst: flung out fast, slowing, and
// drooping as it falls.
QPointF sparkAt(const Burst &b, double angle, double reach, double t)
{
    const double out = 1 - (1 - t) * (1 - t);
    return b.at + QPointF(std::cos(angle), std::sin(angle)) * reach * out
           + QPointF(0, 26 * t * t);
}

void drawRing(QPainter &p, const Burst &b, double t, double reach, int count,
              double turn, const QColor &colour, double fade)
{
    for (int i = 0; i < count; ++i) {
        const double angle = turn + 2 * M_PI * i / count;
        const QPointF head = sparkAt(b, angle, reach, t);
        const QPointF tail = sparkAt(b, angle, reach, std::max(0.0, t - 0.3));
        // Sparks crackle as they fade: each flickers on its own beat.
        const double crackle = t < 0.45 ? 1 : 0.6 + 0.4 * std::cos(40 * t + i * 2.1);
        const double alpha = fade * crackle;
        QColor bright = colour;
        bright.setAlphaF(float(alpha));
        QColor clear = colour;
        clear.setAlpha(0);
        QLinearGradient streak(tail, head);
        streak.setColorAt(0, clear);
        streak.setColorAt(1, bright);
        p.setPen(QPen(QBrush(streak), 3, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(tail, head);
        drawGlow(p, head, 7, colour, int(230 * alpha));
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(255, 255, 255, int(255 * alpha)));
        p.drawEllipse(head, 2, 2);
    }
}

void drawBurst(QPainter &p, const Burst &b, double t)
{
    if (t < 0.18)  // the flash of the bang
        drawGlow(p, b.at, 14 + 60 * t, QColor(255, 255, 230), int(230 * (1 - t / 0.18)));
    const double fade = 1 - std::pow(t, 3);
    drawRing(p, b, t, b.radius, b.sparks, 0, b.outer, fade);
    drawRing(p, b, t, b.radius * 0.55, b.sparks / 2, M_PI / b.sparks, b.inner, fade);
}

} // namespace

void drawFireworks(QPainter &p, double u)
{
    drawTwinkles(p, u, 10, 71);
    const int count = int(sizeof kBursts / sizeof kBursts[0]);
    for (int i = 0; i < count; ++i) {
        const double life = fraction(u + double(i) / count);
        if (life < kRise)
            drawRocket(p, kBursts[i], life / kRise);
        else
            drawBurst(p, kBursts[i], (life - kRise) / (1 - kRise));
    }
}

} // namespace Celebrate
