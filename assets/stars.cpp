// Four looping star animations for the reward screen, 20 frames each. The
// program plays them forwards and backwards, so every movement here is a
// whole number of turns or cycles over the 20 frames: frame 19 leads into
// frame 0 exactly as any frame leads into the next.
#include "canvas.h"
#include "drawing.h"

#include <QPainter>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr int kFrames = 20;
constexpr int kWidth = 324;
constexpr int kHeight = 262;
constexpr int kLargeTwin = 2;
const QPointF kCentre(kWidth / 2.0, kHeight / 2.0);

double fraction(double x) { return x - std::floor(x); }
double wave(double cycles) { return std::sin(2 * M_PI * cycles); }

const QColor kGold(255, 214, 40);
const QColor kStarColours[] = {QColor(255, 224, 70), QColor(255, 255, 255),
                               QColor(255, 150, 200), QColor(150, 240, 255),
                               QColor(255, 180, 60)};

void drawShinyStar(QPainter &p, const QPointF &at, double r, double turn, const QColor &colour,
                   double opacity = 1.0)
{
    p.save();
    p.setOpacity(opacity);
    QRadialGradient fill(at, r, at - QPointF(r * 0.3, r * 0.3));
    fill.setColorAt(0, mixColours(colour, Qt::white, 0.6));
    fill.setColorAt(1, colour);
    p.setBrush(fill);
    p.setPen(QPen(colour.darker(150), std::max(1.0, r / 14)));
    p.drawPath(starPath(at, r, r * 0.45, 5, turn));
    p.restore();
}

void drawSparkle(QPainter &p, const QPointF &at, double r, double turn, const QColor &colour,
                 double opacity)
{
    p.save();
    p.setOpacity(opacity);
    drawGlow(p, at, r * 1.2, colour, 120);
    p.setBrush(colour);
    p.setPen(Qt::NoPen);
    p.drawPath(starPath(at, r, r * 0.28, 4, turn));
    p.restore();
}

// 0: sparkles burst out of a golden star in the middle and fade away.
void burstFrame(QPainter &p, double u)
{
    Rng rng(11);
    const int count = 30;
    for (int i = 0; i < count; ++i) {
        const double angle = (i * 360.0 / count + rng.range(-5, 5)) * M_PI / 180.0;
        const double reach = rng.range(100, 150);
        const double phase = rng.unit();
        const QColor colour = kStarColours[i % 5];
        const double q = fraction(u + phase);
        const double fade = std::sin(M_PI * q);
        const QPointF at = kCentre + QPointF(std::cos(angle), std::sin(angle) * 0.85)
                                         * (24 + q * reach);
        if (i % 2)
            drawSparkle(p, at, 3 + 7 * fade, q * 90, colour, fade);
        else
            drawShinyStar(p, at, 3 + 8 * fade, q * 144, colour, fade);
    }
    drawGlow(p, kCentre, 70 + 6 * wave(u), QColor(255, 240, 160), 170);
    drawShinyStar(p, kCentre, 42 * (1 + 0.06 * wave(u)), 72 * u, kGold);
}

// 1: a merry-go-round of stars turning around a bright twinkle.
void ringFrame(QPainter &p, double u)
{
    const int count = 10;  // gold and white in turn, so two places is one repeat
    struct Spot
    {
        QPointF at;
        double depth;
        int index;
    };
    std::vector<Spot> spots;
    for (int i = 0; i < count; ++i) {
        const double a = 2 * M_PI * (i + 2 * u) / count;
        spots.push_back({kCentre + QPointF(118 * std::cos(a), 70 * std::sin(a) + 6),
                         std::sin(a), i});
    }
    std::sort(spots.begin(), spots.end(),
              [](const Spot &a, const Spot &b) { return a.depth < b.depth; });
    bool centreDrawn = false;
    auto drawCentre = [&] {
        drawGlow(p, kCentre, 80, QColor(255, 250, 200), 160);
        p.save();
        p.setOpacity(0.95);
        p.setBrush(QColor(255, 255, 240));
        p.setPen(Qt::NoPen);
        p.drawPath(starPath(kCentre, 52, 8, 8, 45 * u));
        p.drawPath(starPath(kCentre, 30, 6, 4, -90 * u));
        p.restore();
        centreDrawn = true;
    };
    for (const Spot &s : spots) {
        if (!centreDrawn && s.depth > 0)
            drawCentre();
        const double size = 17 + 9 * s.depth;
        const QColor colour = s.index % 2 ? QColor(255, 255, 255) : kGold;
        drawGlow(p, s.at, size * 1.6, colour, 90);
        drawShinyStar(p, s.at, size, 72 * u, colour, 0.75 + 0.25 * s.depth);
    }
    if (!centreDrawn)
        drawCentre();
}

// Small background stars that twinkle a whole number of times per loop.
void twinkles(QPainter &p, double u, int count, std::uint32_t seed)
{
    Rng rng(seed);
    for (int i = 0; i < count; ++i) {
        const QPointF at(rng.range(6, kWidth - 6), rng.range(6, kHeight - 6));
        const double size = rng.range(1.6, 4.2);
        const int cycles = 1 + rng.below(2);
        const double phase = rng.unit();
        const double bright = 0.5 + 0.5 * std::cos(2 * M_PI * (cycles * u + phase));
        drawSparkle(p, at, size * (0.6 + 0.6 * bright), 0, QColor(255, 255, 230),
                    0.25 + 0.75 * bright);
    }
}

// 2: shooting stars streaking across a twinkling sky.
void shootingFrame(QPainter &p, double u)
{
    twinkles(p, u, 34, 23);
    const QPointF dir(0.91, 0.41);
    const QPointF across(-dir.y(), dir.x());
    const double path = 660, trail = 100;
    const double lanes[] = {-70, 40, -10, 80, -110};
    for (int i = 0; i < 5; ++i) {
        const double q = fraction(u + i / 5.0);
        const QPointF head = kCentre + across * lanes[i] + dir * (q - 0.5) * path;
        const QPointF tail = head - dir * trail;
        QLinearGradient streak(tail, head);
        const QColor colour = kStarColours[i];
        QColor clear = colour;
        clear.setAlpha(0);
        streak.setColorAt(0, clear);
        streak.setColorAt(1, colour);
        p.setPen(QPen(QBrush(streak), 5, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(tail, head);
        p.setPen(QPen(QColor(255, 255, 255, 200), 1.6, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(head - dir * trail * 0.5, head);
        drawGlow(p, head, 18, colour, 200);
        drawShinyStar(p, head, 11, q * 720, colour);
    }
}

// 3: a field of twinkling stars around a big smiling star that breathes.
void pulseFrame(QPainter &p, double u)
{
    twinkles(p, u, 60, 37);
    const double scale = 1 + 0.1 * wave(u);
    drawGlow(p, kCentre, 95 * scale, QColor(255, 240, 150), 150 + int(40 * wave(u)));
    const double r = 72 * scale;
    drawShinyStar(p, kCentre + QPointF(0, 6), r, 0, kGold);
    // A friendly face.
    p.setBrush(QColor(90, 50, 10));
    p.setPen(Qt::NoPen);
    p.drawEllipse(kCentre + QPointF(-13, 0) * scale, 4.5 * scale, 6 * scale);
    p.drawEllipse(kCentre + QPointF(13, 0) * scale, 4.5 * scale, 6 * scale);
    p.setBrush(QColor(255, 140, 140, 160));
    p.drawEllipse(kCentre + QPointF(-24, 13) * scale, 6 * scale, 4 * scale);
    p.drawEllipse(kCentre + QPointF(24, 13) * scale, 6 * scale, 4 * scale);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(90, 50, 10), 3 * scale, Qt::SolidLine, Qt::RoundCap));
    const double w = 12 * scale;
    p.drawArc(QRectF(kCentre.x() - w, kCentre.y() + 2 * scale, 2 * w, 2 * w * 0.8), 200 * 16,
              140 * 16);
}

} // namespace

void drawStarSeries(AssetOutput &out)
{
    void (*const series[])(QPainter &, double) = {burstFrame, ringFrame, shootingFrame,
                                                  pulseFrame};
    for (int s = 0; s < 4; ++s) {
        for (int frame = 0; frame < kFrames; ++frame) {
            const QString name = QStringLiteral("reward/stars%1%2").arg(s).arg(frame, 2, 10, QLatin1Char('0'));
            // Each frame with a twin twice the size, for screens drawn larger than designed.
            for (int enlarge : {1, kLargeTwin}) {
                QImage image = opaqueCanvas(kWidth * enlarge, kHeight * enlarge, screenBlue());
                {
                    QPainter painter(&image);
                    smoothPainting(painter);
                    painter.scale(enlarge, enlarge);
                    series[s](painter, double(frame) / kFrames);
                }
                out.saveJpeg(image, name + (enlarge == 1 ? QStringLiteral(".jpg") : QStringLiteral("@2x.jpg")));
            }
        }
    }
}
