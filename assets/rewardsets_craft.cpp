// Reward pictures that are made by hand: a necklace threaded bead by bead
// and a garden gazebo built from the ground up.
#include "canvas.h"
#include "rewardsets.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>

// --- Necklace ----------------------------------------------------------

namespace {

// A bead of one of three shapes, lying along the cord at `angle` degrees.
void drawBead(QPainter &p, const QPointF &at, double angle, int shape, const QColor &colour)
{
    drawSoftShadow(p, at + QPointF(1.5, 3), 12, 9, 70);
    if (shape == 0) {
        drawGlassBall(p, at, 10.5, colour);
        return;
    }
    p.save();
    p.translate(at);
    p.rotate(angle);
    QLinearGradient body(QPointF(0, -10), QPointF(0, 10));
    body.setColorAt(0, colour.lighter(150));
    body.setColorAt(0.5, colour);
    body.setColorAt(1, colour.darker(160));
    p.setBrush(body);
    p.setPen(QPen(colour.darker(190), 1));
    if (shape == 1)
        p.drawEllipse(QPointF(), 13, 8.5);
    else
        p.drawRoundedRect(QRectF(-9, -9, 18, 18), 4, 4);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 140));
    p.drawEllipse(QPointF(-3, -4.5), 4.5, 2.2);
    p.restore();
}

QPainterPath heartPath(const QPointF &top, double size)
{
    QPainterPath heart;
    const double s = size;
    heart.moveTo(top + QPointF(0, s * 0.3));
    heart.cubicTo(top + QPointF(-s * 0.1, s * -0.1), top + QPointF(-s * 0.62, s * -0.05),
                  top + QPointF(-s * 0.55, s * 0.38));
    heart.cubicTo(top + QPointF(-s * 0.5, s * 0.68), top + QPointF(-s * 0.1, s * 0.82),
                  top + QPointF(0, s));
    heart.cubicTo(top + QPointF(s * 0.1, s * 0.82), top + QPointF(s * 0.5, s * 0.68),
                  top + QPointF(s * 0.55, s * 0.38));
    heart.cubicTo(top + QPointF(s * 0.62, s * -0.05), top + QPointF(s * 0.1, s * -0.1),
                  top + QPointF(0, s * 0.3));
    return heart;
}

} // namespace

void drawNecklace(QPainter &p, const QRectF &area, int step)
{
    const QPointF centre = area.center() + QPointF(0, -16);
    const double a = 108, b = 74;
    auto onCord = [&](double degrees) {
        const double t = degrees * M_PI / 180.0;
        return centre + QPointF(a * std::sin(t), -b * std::cos(t));
    };
    auto alongCord = [&](double degrees) {
        const double t = degrees * M_PI / 180.0;
        return std::atan2(b * std::sin(t), a * std::cos(t)) * 180.0 / M_PI;
    };

    // The cord with its clasp at the top.
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(190, 140, 60), 2.6));
    p.drawEllipse(centre, a, b);
    p.setPen(QPen(QColor(255, 230, 150), 1));
    p.drawEllipse(centre, a, b);
    const QPointF clasp = onCord(0);
    p.setPen(QPen(QColor(170, 120, 20), 2.5));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(clasp + QPointF(-6, 0), 5, 5);
    p.setBrush(QColor(240, 200, 70));
    p.drawRoundedRect(QRectF(clasp.x() + 1, clasp.y() - 3, 11, 6), 3, 3);

    // Beads go on in pairs from the clasp down both sides; the last bead
    // sits at the bottom and the heart hangs from it.
    const double spacing = 16.5;
    for (int s = 1; s <= std::min(step, kRewardSteps - 2); ++s) {
        const int pair = (s + 1) / 2;  // 1..9
        const bool left = (s % 2) == 1;
        const double angle = left ? 180 + spacing * (10 - pair) : 180 - spacing * (10 - pair);
        drawBead(p, onCord(angle), alongCord(angle), pair % 3, brightColour(pair - 1));
    }
    const QPointF bottom = onCord(180);
    if (step >= kRewardSteps) {
        p.setPen(QPen(QColor(170, 120, 20), 2));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(bottom + QPointF(0, 15), 4, 4);
        const QPainterPath heart = heartPath(bottom + QPointF(0, 15), 28);
        QRadialGradient red(bottom + QPointF(-6, 24), 24);
        red.setColorAt(0, QColor(255, 140, 160));
        red.setColorAt(1, QColor(205, 20, 60));
        drawSoftShadow(p, bottom + QPointF(2, 34), 13, 9, 70);
        p.setBrush(red);
        p.setPen(QPen(QColor(150, 10, 40), 1.2));
        p.drawPath(heart);
    }
    if (step >= kRewardSteps - 1)
        drawGlassBall(p, bottom, 12.5, QColor(255, 190, 20));
}

// --- Gazebo ------------------------------------------------------------

namespace {

QPointF lerp(const QPointF &a, const QPointF &b, double t) { return a + (b - a) * t; }

void drawBush(QPainter &p, const QPointF &at, int seed)
{
    Rng rng(seed);
    for (int i = 0; i < 7; ++i) {
        const QPointF c = at + QPointF(rng.range(-16, 16), rng.range(-14, 2));
        const double r = rng.range(9, 13);
        QRadialGradient leaf(c, r, c - QPointF(3, 4));
        leaf.setColorAt(0, QColor(110, 200, 90));
        leaf.setColorAt(1, QColor(40, 120, 45));
        p.setBrush(leaf);
        p.setPen(Qt::NoPen);
        p.drawEllipse(c, r, r);
    }
    for (int i = 0; i < 6; ++i) {
        const QPointF c = at + QPointF(rng.range(-18, 18), rng.range(-20, 2));
        p.setBrush(i % 2 ? QColor(255, 110, 170) : QColor(255, 236, 90));
        p.setPen(QPen(QColor(255, 255, 255, 200), 0.8));
        p.drawPath(starPath(c, 4, 2.2, 5));
    }
}

} // namespace

void drawGazebo(QPainter &p, const QRectF &area, int step)
{
    p.save();
    p.translate(area.topLeft());
    p.scale(area.width() / 260.0, area.height() / 210.0);

    // Sky with two fluffy clouds is the empty picture.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 210));
    for (const QPointF &c : {QPointF(40, 30), QPointF(215, 44)}) {
        p.drawEllipse(c, 18, 9);
        p.drawEllipse(c + QPointF(12, -5), 12, 9);
        p.drawEllipse(c + QPointF(-10, -3), 9, 7);
    }

    const QPen line(QColor(90, 70, 60), 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (step >= 1) {  // lawn
        QPainterPath lawn;
        lawn.moveTo(-20, 158);
        lawn.cubicTo(60, 146, 200, 148, 280, 156);
        lawn.lineTo(280, 230);
        lawn.lineTo(-20, 230);
        lawn.closeSubpath();
        QLinearGradient grass(QPointF(0, 146), QPointF(0, 215));
        grass.setColorAt(0, QColor(140, 214, 96));
        grass.setColorAt(1, QColor(64, 150, 54));
        p.setBrush(grass);
        p.setPen(Qt::NoPen);
        p.drawPath(lawn);
    }
    if (step >= 2) {  // stone path
        p.setBrush(QColor(222, 208, 178));
        p.setPen(QPen(QColor(170, 150, 120), 1));
        p.drawPolygon(QPolygonF({QPointF(108, 178), QPointF(152, 178), QPointF(176, 220),
                                 QPointF(84, 220)}));
        p.setBrush(QColor(200, 184, 150));
        for (int i = 0; i < 4; ++i)
            p.drawEllipse(QPointF(130 + (i % 2 ? 12 : -12), 186 + i * 7), 9 + i, 3 + i * 0.4);
    }
    const QPointF floorPts[] = {{38, 150}, {72, 160}, {188, 160}, {222, 150}};
    if (step >= 3) {  // floor
        QPolygonF top({QPointF(38, 150), QPointF(72, 140), QPointF(188, 140), QPointF(222, 150),
                       QPointF(188, 160), QPointF(72, 160)});
        p.setBrush(QColor(232, 196, 146));
        p.setPen(line);
        p.drawPolygon(top);
        const QColor skirt[] = {QColor(160, 108, 62), QColor(186, 128, 74), QColor(206, 150, 92)};
        for (int i = 0; i < 3; ++i) {
            const QPointF a = floorPts[i], b = floorPts[i + 1];
            p.setBrush(skirt[i]);
            p.drawPolygon(QPolygonF({a, b, b + QPointF(0, 11), a + QPointF(0, 11)}));
        }
    }
    if (step >= 4) {  // steps up to the floor
        p.setPen(line);
        p.setBrush(QColor(200, 200, 196));
        p.drawRect(QRectF(104, 171, 52, 6));
        p.setBrush(QColor(178, 178, 172));
        p.drawRect(QRectF(98, 177, 64, 6));
    }
    const double postHeight = 70;
    for (int i = 0; i < 4; ++i) {  // posts, one per step
        if (step < 5 + i)
            continue;
        const QPointF foot = floorPts[i];
        QLinearGradient white(foot + QPointF(-4, 0), foot + QPointF(4, 0));
        white.setColorAt(0, QColor(255, 255, 255));
        white.setColorAt(1, QColor(205, 205, 215));
        p.setBrush(white);
        p.setPen(line);
        p.drawRect(QRectF(foot.x() - 4, foot.y() - postHeight, 8, postHeight));
    }
    for (int side = 0; side < 2; ++side) {  // railings on the two side bays
        if (step < 9 + side)
            continue;
        const QPointF a = floorPts[side == 0 ? 0 : 2], b = floorPts[side == 0 ? 1 : 3];
        p.setPen(QPen(QColor(250, 250, 250), 2.2));
        for (int k = 1; k < 6; ++k) {
            const QPointF foot = lerp(a, b, k / 6.0);
            p.drawLine(foot, foot - QPointF(0, 26));
        }
        p.setPen(QPen(QColor(120, 110, 110), 1));
        p.setBrush(QColor(255, 255, 255));
        QPolygonF rail({a - QPointF(0, 30), b - QPointF(0, 30), b - QPointF(0, 25),
                        a - QPointF(0, 25)});
        p.drawPolygon(rail);
    }
    if (step >= 11) {  // ring beam and the arch over the entrance
        p.setPen(line);
        p.setBrush(QColor(250, 250, 246));
        for (int i = 0; i < 3; ++i) {
            const QPointF a = floorPts[i] - QPointF(0, postHeight),
                          b = floorPts[i + 1] - QPointF(0, postHeight);
            p.drawPolygon(QPolygonF({a - QPointF(0, 2), b - QPointF(0, 2), b + QPointF(0, 5),
                                     a + QPointF(0, 5)}));
        }
        QPainterPath arch;
        arch.moveTo(76, 96);
        arch.quadTo(130, 82, 184, 96);
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(QColor(250, 250, 246), 4));
        p.drawPath(arch);
        p.setPen(QPen(QColor(120, 110, 110), 1));
        p.drawPath(arch.translated(0, 2.2));
    }
    const QPointF apex(130, 28);
    const QPointF eaves[] = {{24, 78}, {68, 93}, {192, 93}, {236, 78}};
    const QColor roof[] = {QColor(172, 40, 44), QColor(214, 58, 54), QColor(236, 96, 84)};
    for (int face = 0; face < 3; ++face) {  // roof, one face per step
        if (step < 12 + face)
            continue;
        const QPointF a = eaves[face], b = eaves[face + 1];
        p.setBrush(roof[face]);
        p.setPen(line);
        p.drawPolygon(QPolygonF({a, b, apex}));
        p.setPen(QPen(roof[face].darker(135), 1));
        for (double t = 0.2; t < 0.9; t += 0.2)
            p.drawLine(lerp(a, apex, t), lerp(b, apex, t));
    }
    if (step >= 15) {  // scalloped trim under the eaves
        p.setPen(QPen(QColor(200, 190, 170), 0.8));
        p.setBrush(QColor(255, 248, 225));
        for (int edge = 0; edge < 3; ++edge) {
            const QPointF a = eaves[edge], b = eaves[edge + 1];
            const int count = edge == 1 ? 12 : 5;
            for (int k = 0; k < count; ++k) {
                const QPointF c = lerp(a, b, (k + 0.5) / count);
                p.drawChord(QRectF(c.x() - 5, c.y() - 4, 10, 8), 180 * 16, 180 * 16);
            }
        }
    }
    if (step >= 16) {  // golden ball on the top
        QRadialGradient gold(apex - QPointF(0, 4), 6, apex - QPointF(2, 6));
        gold.setColorAt(0, QColor(255, 246, 170));
        gold.setColorAt(1, QColor(220, 150, 0));
        p.setBrush(gold);
        p.setPen(QPen(QColor(160, 100, 0), 0.8));
        p.drawEllipse(apex - QPointF(0, 4), 6, 6);
    }
    if (step >= 17) {  // flag
        p.setPen(QPen(QColor(90, 70, 60), 1.6));
        p.drawLine(apex - QPointF(0, 9), QPointF(130, 2));
        p.setBrush(QColor(255, 200, 0));
        p.setPen(QPen(QColor(200, 110, 0), 0.8));
        p.drawPolygon(QPolygonF({QPointF(131, 2), QPointF(154, 8), QPointF(131, 15)}));
    }
    if (step >= 18)
        drawBush(p, QPointF(20, 166), 31);
    if (step >= 19)
        drawBush(p, QPointF(240, 166), 37);
    if (step >= 20) {  // a glowing lantern under the roof
        p.setPen(QPen(QColor(90, 70, 60), 1));
        p.drawLine(QPointF(130, 90), QPointF(130, 102));
        QRadialGradient glow(QPointF(130, 110), 20);
        glow.setColorAt(0, QColor(255, 240, 140, 200));
        glow.setColorAt(1, QColor(255, 240, 140, 0));
        p.setPen(Qt::NoPen);
        p.setBrush(glow);
        p.drawEllipse(QPointF(130, 110), 20, 20);
        p.setBrush(QColor(255, 210, 60));
        p.setPen(QPen(QColor(150, 90, 20), 1));
        p.drawRoundedRect(QRectF(124, 102, 12, 15), 3, 3);
    }
    p.restore();
}
