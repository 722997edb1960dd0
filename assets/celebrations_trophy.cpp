// The trophy: a shining gold cup on a wooden stand, with a red star on it,
// light rays turning behind it, a gleam sweeping across the gold once a loop
// and stars twinkling round it.
#include "celebrations.h"

#include "canvas.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>

#include <cmath>

namespace Celebrate {

namespace {

constexpr double kMid = 100;
constexpr double kRimY = 34;
constexpr double kRimRx = 36;
constexpr double kRimRy = 7;
const QColor kGoldEdge(150, 90, 5);

QPainterPath bowlPath()
{
    QPainterPath bowl(QPointF(kMid - kRimRx, kRimY));
    bowl.cubicTo(QPointF(kMid - kRimRx, 66), QPointF(kMid - 20, 82), QPointF(kMid - 6, 86));
    bowl.lineTo(QPointF(kMid + 6, 86));
    bowl.cubicTo(QPointF(kMid + 20, 82), QPointF(kMid + kRimRx, 66), QPointF(kMid + kRimRx, kRimY));
    bowl.arcTo(QRectF(kMid - kRimRx, kRimY - kRimRy, 2 * kRimRx, 2 * kRimRy), 0, 180);
    bowl.closeSubpath();
    return bowl;
}

QPainterPath handlesPath()
{
    QPainterPath handles;
    for (double side : {-1.0, 1.0}) {
        handles.moveTo(kMid + side * (kRimRx - 2), 42);
        handles.cubicTo(QPointF(kMid + side * (kRimRx + 22), 36),
                        QPointF(kMid + side * (kRimRx + 20), 68),
                        QPointF(kMid + side * (kRimRx - 12), 70));
    }
    QPainterPathStroker stroker;
    stroker.setWidth(6.5);
    stroker.setCapStyle(Qt::RoundCap);
    return stroker.createStroke(handles);
}

QPainterPath stemAndFootPath()
{
    QPainterPath path;
    path.addRect(QRectF(kMid - 5.5, 85, 11, 14));
    path.addEllipse(QPointF(kMid, 94), 9, 4);
    QPainterPath foot(QPointF(kMid - 8, 99));
    foot.lineTo(QPointF(kMid + 8, 99));
    foot.quadTo(QPointF(kMid + 12, 106), QPointF(kMid + 22, 110));
    foot.lineTo(QPointF(kMid - 22, 110));
    foot.quadTo(QPointF(kMid - 12, 106), QPointF(kMid - 8, 99));
    path.addPath(foot);
    return path.simplified();
}

QBrush goldAcross(double left, double right)
{
    QLinearGradient gold(QPointF(left, 0), QPointF(right, 0));
    gold.setColorAt(0.0, QColor(185, 115, 10));
    gold.setColorAt(0.25, QColor(255, 235, 130));
    gold.setColorAt(0.42, QColor(255, 212, 50));
    gold.setColorAt(0.78, QColor(232, 160, 20));
    gold.setColorAt(1.0, QColor(170, 100, 8));
    return gold;
}

void drawStand(QPainter &p)
{
    QLinearGradient wood(QPointF(0, 110), QPointF(0, 132));
    wood.setColorAt(0, QColor(150, 80, 40));
    wood.setColorAt(1, QColor(95, 45, 20));
    p.setPen(QPen(QColor(70, 30, 10), 1));
    p.setBrush(wood);
    p.drawRoundedRect(QRectF(kMid - 30, 110, 60, 22), 3, 3);
    p.setBrush(goldAcross(kMid - 15, kMid + 15));
    p.setPen(QPen(kGoldEdge, 0.8));
    p.drawRoundedRect(QRectF(kMid - 15, 116, 30, 10), 1.5, 1.5);
}

// A band of light crossing the cup at `across` (0 left of it, 1 right of it).
void drawGleam(QPainter &p, const QPainterPath &shape, double across)
{
    const double x = 28 + 144 * across;
    p.save();
    p.setClipPath(shape);
    p.translate(x, 75);
    p.rotate(22);
    QLinearGradient band(QPointF(-12, 0), QPointF(12, 0));
    band.setColorAt(0.0, QColor(255, 255, 255, 0));
    band.setColorAt(0.5, QColor(255, 255, 245, 235));
    band.setColorAt(1.0, QColor(255, 255, 255, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(band);
    p.drawRect(QRectF(-12, -80, 24, 160));
    p.restore();
}

} // namespace

void drawTrophy(QPainter &p, double u)
{
    // Twelve alike rays: turning by one ray a loop brings them back.
    drawRays(p, QPointF(kMid, 68), 66, 12, 30 * u, QColor(255, 245, 190), 150);
    drawGlow(p, QPointF(kMid, 66), 58, QColor(255, 240, 170), 170);

    drawStand(p);

    const QPainterPath handles = handlesPath();
    const QPainterPath stem = stemAndFootPath();
    const QPainterPath bowl = bowlPath();
    p.setPen(QPen(kGoldEdge, 1.2));
    p.setBrush(goldAcross(kMid - kRimRx - 20, kMid + kRimRx + 20));
    p.drawPath(handles);
    p.setBrush(goldAcross(kMid - 22, kMid + 22));
    p.drawPath(stem);
    p.setBrush(goldAcross(kMid - kRimRx, kMid + kRimRx));
    p.drawPath(bowl);

    // The inside of the cup, seen over its rim.
    QLinearGradient inside(QPointF(0, kRimY - kRimRy), QPointF(0, kRimY + kRimRy));
    inside.setColorAt(0, QColor(140, 85, 5));
    inside.setColorAt(1, QColor(215, 150, 25));
    p.setBrush(inside);
    p.setPen(QPen(QColor(255, 238, 150), 2));
    p.drawEllipse(QPointF(kMid, kRimY), kRimRx - 1, kRimRy - 1);

    // A red star on the front of the cup.
    const QPointF emblem(kMid, 57);
    p.setPen(QPen(QColor(255, 245, 200), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(QColor(228, 40, 50));
    p.drawPath(starPath(emblem, 13, 5.6, 5));

    // The gleam sweeps over in the first half of the loop and is gone
    // before the loop starts again.
    const double sweep = u / 0.5;
    if (sweep < 1) {
        QPainterPath gold = bowl.united(handles).united(stem);
        drawGleam(p, gold, sweep);
    }

    // Stars round the cup, each twinkling once or twice a loop.
    const struct
    {
        QPointF at;
        double size;
        int cycles;
        double phase;
    } twinkles[] = {
        {{30, 28}, 10, 1, 0.0},  {{170, 30}, 10, 1, 0.5},  {{22, 92}, 7, 2, 0.25},
        {{178, 88}, 7, 2, 0.75}, {{52, 132}, 5, 1, 0.3}, {{150, 134}, 5, 1, 0.8},
        {{100, 12}, 6, 2, 0.6},  {{62, 74}, 4, 2, 0.1},  {{140, 76}, 4, 2, 0.45},
    };
    for (const auto &t : twinkles) {
        const double bright = 0.5 + 0.5 * std::cos(2 * M_PI * (t.cycles * u + t.phase));
        const QColor colour = t.size > 6 ? QColor(255, 230, 90) : QColor(255, 255, 255);
        drawSparkle(p, t.at, t.size * (0.35 + 0.75 * bright), 90 * t.cycles * u, colour,
                    0.2 + 0.8 * bright);
    }
}

} // namespace Celebrate
