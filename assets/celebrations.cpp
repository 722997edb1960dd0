// Writes the certificate screen's celebration animations: for every entry of
// the program's list, its frames as 200 x 150 JPEGs on the screen's blue.
#include "celebrations.h"

#include "canvas.h"
#include "drawing.h"
#include "rewards/celebrations.h"

#include <QPainter>
#include <QRadialGradient>

#include <cmath>

namespace Celebrate {

double fraction(double x) { return x - std::floor(x); }
double wave(double cycles) { return std::sin(2 * M_PI * cycles); }

void drawSparkle(QPainter &p, const QPointF &at, double r, double turnDegrees,
                 const QColor &colour, double opacity)
{
    if (opacity <= 0 || r <= 0)
        return;
    p.save();
    p.setOpacity(opacity);
    drawGlow(p, at, r * 1.3, colour, 110);
    p.setBrush(mixColours(colour, Qt::white, 0.35));
    p.setPen(Qt::NoPen);
    p.drawPath(starPath(at, r, r * 0.26, 4, turnDegrees));
    p.restore();
}

void drawRays(QPainter &p, const QPointF &centre, double reach, int rays,
              double turnDegrees, const QColor &colour, int alpha)
{
    QRadialGradient fade(centre, reach);
    QColor strong = colour;
    strong.setAlpha(alpha);
    QColor clear = colour;
    clear.setAlpha(0);
    fade.setColorAt(0.2, strong);
    fade.setColorAt(1.0, clear);
    p.setPen(Qt::NoPen);
    p.setBrush(fade);
    const double half = 180.0 / rays / 2;  // each ray fills half its share
    for (int i = 0; i < rays; ++i) {
        const double a = turnDegrees + i * 360.0 / rays;
        QPainterPath ray(centre);
        ray.lineTo(centre + QPointF(std::cos((a - half) * M_PI / 180),
                                    std::sin((a - half) * M_PI / 180)) * reach);
        ray.lineTo(centre + QPointF(std::cos((a + half) * M_PI / 180),
                                    std::sin((a + half) * M_PI / 180)) * reach);
        ray.closeSubpath();
        p.drawPath(ray);
    }
}

void drawTwinkles(QPainter &p, double u, int count, std::uint32_t seed)
{
    Rng rng(seed);
    for (int i = 0; i < count; ++i) {
        const QPointF at(rng.range(8, kWidth - 8), rng.range(8, kHeight - 8));
        const double size = rng.range(2.0, 4.0);
        const int cycles = 1 + rng.below(2);
        const double phase = rng.unit();
        const double bright = 0.5 + 0.5 * std::cos(2 * M_PI * (cycles * u + phase));
        drawSparkle(p, at, size * (0.4 + 0.8 * bright), 0, QColor(255, 255, 225),
                    0.15 + 0.85 * bright);
    }
}

} // namespace Celebrate

namespace {

constexpr bool sameText(const char *a, const char *b)
{
    while (*a && *a == *b) {
        ++a;
        ++b;
    }
    return *a == *b;
}

struct Drawing
{
    const char *base;
    void (*draw)(QPainter &, double);
};

// In the order of the program's list, which the checks below hold it to.
constexpr Drawing kDrawings[] = {
    {"gif\\grstel\\grstel", Celebrate::drawGreatStar},
    {"gif\\firewk\\firewk", Celebrate::drawFireworks},
    {"gif\\balloon\\balloon", Celebrate::drawBalloons},
    {"gif\\trophy\\trophy", Celebrate::drawTrophy},
};

constexpr bool drawingsMatchList()
{
    if (int(sizeof kDrawings / sizeof kDrawings[0]) != kCelebrationCount)
        return false;
    for (int i = 0; i < kCelebrationCount; ++i)
        if (!sameText(kDrawings[i].base, kCelebrations[i].base))
            return false;
    return true;
}
static_assert(drawingsMatchList(), "every celebration needs its drawing, in the same order");

} // namespace

void drawCelebrations(AssetOutput &out)
{
    for (int i = 0; i < kCelebrationCount; ++i) {
        const Celebration &celebration = kCelebrations[i];
        for (int frame = 0; frame < celebration.frames; ++frame) {
            QImage image = opaqueCanvas(kCelebrationWidth, kCelebrationHeight, screenBlue());
            {
                QPainter painter(&image);
                smoothPainting(painter);
                kDrawings[i].draw(painter, double(frame) / celebration.frames);
            }
            QString file = celebrationFrameFile(celebration, frame);
            file.replace(QLatin1Char('\\'), QLatin1Char('/'));
            out.saveJpeg(image, file);
        }
    }
}
