// The tall reward pictures: a thermometer warming up, a birthday cake being
// built and decorated, and a glass jar filling with green marbles.
#include "canvas.h"
#include "rewardsets.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

void drawSun(QPainter &p, const QPointF &at, double r)
{
    p.setPen(QPen(QColor(255, 170, 0), 3, Qt::SolidLine, Qt::RoundCap));
    for (int i = 0; i < 10; ++i) {
        const double a = i * M_PI / 5;
        p.drawLine(at + QPointF(std::cos(a), std::sin(a)) * (r + 4),
                   at + QPointF(std::cos(a), std::sin(a)) * (r + 11));
    }
    QRadialGradient gold(at, r, at - QPointF(r / 3, r / 3));
    gold.setColorAt(0, QColor(255, 245, 150));
    gold.setColorAt(1, QColor(255, 190, 0));
    p.setBrush(gold);
    p.setPen(QPen(QColor(230, 140, 0), 1.5));
    p.drawEllipse(at, r, r);
}

void drawSnowflake(QPainter &p, const QPointF &at, double r)
{
    p.setPen(QPen(QColor(90, 160, 230), 3, Qt::SolidLine, Qt::RoundCap));
    for (int i = 0; i < 6; ++i) {
        const QPointF dir(std::cos(i * M_PI / 3), std::sin(i * M_PI / 3));
        const QPointF side(-dir.y(), dir.x());
        p.drawLine(at, at + dir * r);
        const QPointF branch = at + dir * (r * 0.6);
        p.drawLine(branch, branch + (dir + side) * (r * 0.25));
        p.drawLine(branch, branch + (dir - side) * (r * 0.25));
    }
}

} // namespace

// --- Thermometer ---------------------------------------------------------

void drawThermometer(QPainter &p, const QRectF &area, int step)
{
    const double cx = area.center().x();
    drawSun(p, QPointF(area.right() - 28, area.top() + 30), 15);
    drawSnowflake(p, QPointF(area.left() + 28, area.bottom() - 36), 18);

    const QRectF board(cx - 72, area.top() + 2, 144, area.height() - 4);
    QLinearGradient boardFill(board.topLeft(), board.topRight());
    boardFill.setColorAt(0, QColor(255, 255, 255));
    boardFill.setColorAt(1, QColor(226, 236, 248));
    drawSoftShadow(p, QPointF(cx + 3, board.bottom() - 2), 74, 8, 60);
    p.setBrush(boardFill);
    p.setPen(QPen(QColor(110, 140, 190), 2));
    p.drawRoundedRect(board, 34, 34);

    const double tubeX = cx - 10;
    const QPointF bulb(tubeX, area.bottom() - 42);
    const double tubeTop = area.top() + 18;
    const double zero = bulb.y() - 42;
    const double full = area.top() + 40;
    auto level = [&](int s) { return zero - (zero - full) * s / kRewardSteps; };

    // A colour band from cold blue to hot red beside the scale.
    QLinearGradient band(QPointF(0, zero), QPointF(0, full));
    band.setColorAt(0, QColor(70, 150, 255));
    band.setColorAt(0.5, QColor(255, 220, 60));
    band.setColorAt(1, QColor(240, 50, 40));
    p.setPen(Qt::NoPen);
    p.setBrush(band);
    p.drawRoundedRect(QRectF(tubeX - 40, full, 10, zero - full), 5, 5);

    // Scale: a tick for every step, a number every second step.
    p.setFont(labelFont(12));
    for (int s = 0; s <= kRewardSteps; ++s) {
        const double y = level(s);
        const bool major = s % 2 == 0;
        p.setPen(QPen(QColor(50, 60, 90), major ? 1.6 : 1));
        p.drawLine(QPointF(tubeX + 19, y), QPointF(tubeX + (major ? 32 : 26), y));
        if (major)
            p.drawText(QRectF(tubeX + 35, y - 8, 32, 16), Qt::AlignLeft | Qt::AlignVCenter,
                       QString::number(s * 5));
    }

    // Glass tube and bulb.
    QPainterPath glass;
    glass.addRoundedRect(QRectF(tubeX - 15, tubeTop, 30, bulb.y() - tubeTop), 15, 15);
    glass.addEllipse(bulb, 32, 32);
    glass.setFillRule(Qt::WindingFill);
    glass = glass.simplified();
    p.setBrush(QColor(240, 248, 255));
    p.setPen(QPen(QColor(120, 140, 175), 2));
    p.drawPath(glass);

    if (step >= 1) {
        QLinearGradient red(QPointF(tubeX - 9, 0), QPointF(tubeX + 9, 0));
        red.setColorAt(0, QColor(255, 120, 110));
        red.setColorAt(0.5, QColor(230, 24, 30));
        red.setColorAt(1, QColor(160, 0, 12));
        p.setPen(Qt::NoPen);
        p.setBrush(red);
        const double top = level(step);
        p.drawRoundedRect(QRectF(tubeX - 9, top, 18, bulb.y() - top), 9, 9);
        QRadialGradient ball(bulb, 26, bulb - QPointF(8, 8));
        ball.setColorAt(0, QColor(255, 140, 130));
        ball.setColorAt(1, QColor(200, 0, 14));
        p.setBrush(ball);
        p.drawEllipse(bulb, 26, 26);
        // An arrow on the band shows how warm it is now.
        p.setBrush(QColor(40, 50, 80));
        p.drawPolygon(QPolygonF({QPointF(tubeX - 44, top), QPointF(tubeX - 56, top - 7),
                                 QPointF(tubeX - 56, top + 7)}));
    }
    p.setPen(QPen(QColor(255, 255, 255, 200), 3, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(tubeX - 10, tubeTop + 10), QPointF(tubeX - 10, zero - 4));
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(bulb.x() - 21, bulb.y() - 21, 42, 42), 100 * 16, 70 * 16);
}

// --- Birthday cake -------------------------------------------------------

namespace {

// A round layer of cake: side, then the top face.
void drawLayer(QPainter &p, double cx, double top, double bottom, double rx, double ry,
               const QColor &colour)
{
    QPainterPath side;
    side.moveTo(cx - rx, top);
    side.lineTo(cx - rx, bottom);
    side.arcTo(QRectF(cx - rx, bottom - ry, 2 * rx, 2 * ry), 180, 180);
    side.lineTo(cx + rx, top);
    side.closeSubpath();
    QLinearGradient shade(QPointF(cx - rx, 0), QPointF(cx + rx, 0));
    shade.setColorAt(0, colour.darker(125));
    shade.setColorAt(0.35, colour.lighter(112));
    shade.setColorAt(1, colour.darker(140));
    p.setBrush(shade);
    p.setPen(QPen(colour.darker(170), 1.2));
    p.drawPath(side);
    p.setBrush(colour.lighter(115));
    p.drawEllipse(QPointF(cx, top), rx, ry);
}

// Icing over the top face, running down the front in drips.
void drawIcing(QPainter &p, double cx, double top, double rx, double ry, const QColor &colour,
               int seed)
{
    Rng rng(seed);
    QPainterPath icing;
    icing.moveTo(cx - rx - 1, top);
    icing.arcTo(QRectF(cx - rx - 1, top - ry - 1, 2 * rx + 2, 2 * ry + 2), 180, -180);
    const int drips = int(rx / 9);
    for (int i = drips; i >= 0; --i) {
        const double t = M_PI * i / drips;  // along the front edge, right to left
        const QPointF edge(cx + (rx + 1) * std::cos(t), top + (ry + 1) * std::sin(t));
        const double length = (i == 0 || i == drips) ? 4 : rng.range(6, 16);
        icing.lineTo(edge + QPointF(3, 0));
        icing.quadTo(edge + QPointF(3.5, length), edge + QPointF(0, length + 1));
        icing.quadTo(edge + QPointF(-3.5, length), edge + QPointF(-3, 0));
    }
    icing.closeSubpath();
    p.setBrush(colour);
    p.setPen(QPen(colour.darker(125), 1));
    p.drawPath(icing);
}

struct CandleSpot
{
    QPointF base;
    int order;  // the order in which it is put on the cake
};

std::vector<CandleSpot> candleSpots()
{
    // A ring of ten round the top, put on in pairs facing each other across
    // it, front and back first. The ring is turned a little so that no
    // candle stands straight behind another.
    const int order[10] = {2, 6, 0, 8, 4, 3, 7, 1, 9, 5};
    std::vector<CandleSpot> spots;
    for (int k = 0; k < 10; ++k) {
        const double a = (9 + 36 * k) * M_PI / 180.0;
        spots.push_back({QPointF(130 + 48 * std::cos(a), 137 + 8 * std::sin(a)), order[k]});
    }
    // Back ones first, so those in front are drawn over them.
    std::sort(spots.begin(), spots.end(), [](const CandleSpot &a, const CandleSpot &b) {
        return a.base.y() < b.base.y();
    });
    return spots;
}

void drawBalloon(QPainter &p, const QPointF &at, const QColor &colour)
{
    QPainterPath string;
    string.moveTo(at + QPointF(0, 24));
    string.cubicTo(at + QPointF(-8, 40), at + QPointF(8, 52), at + QPointF(0, 70));
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(120, 120, 120), 1));
    p.drawPath(string);
    QRadialGradient shine(at, 22, at - QPointF(7, 8));
    shine.setColorAt(0, colour.lighter(160));
    shine.setColorAt(1, colour.darker(120));
    p.setBrush(shine);
    p.setPen(QPen(colour.darker(150), 1));
    p.drawEllipse(at, 18, 22);
    p.drawPolygon(QPolygonF({at + QPointF(0, 21), at + QPointF(-4, 27), at + QPointF(4, 27)}));
}

} // namespace

void drawBirthdayCake(QPainter &p, const QRectF &area, int step)
{
    p.save();
    p.translate(area.topLeft());
    p.scale(area.width() / 260.0, area.height() / 290.0);
    const double cx = 130;

    if (step >= 1) {  // cake stand
        drawSoftShadow(p, QPointF(cx, 282), 60, 6, 70);
        QLinearGradient silver(QPointF(0, 240), QPointF(0, 282));
        silver.setColorAt(0, QColor(250, 250, 255));
        silver.setColorAt(1, QColor(170, 175, 195));
        p.setBrush(silver);
        p.setPen(QPen(QColor(130, 135, 160), 1.2));
        p.drawEllipse(QPointF(cx, 276), 40, 7);
        p.drawRect(QRectF(cx - 10, 254, 20, 22));
        p.drawEllipse(QPointF(cx, 250), 114, 15);
    }
    if (step >= 2)
        drawLayer(p, cx, 190, 246, 94, 16, QColor(150, 90, 52));
    if (step >= 3)
        drawIcing(p, cx, 190, 94, 16, QColor(255, 150, 196), 5);
    if (step >= 4) {  // a row of sugar pearls round the bottom
        for (int i = 0; i <= 16; ++i) {
            const double t = M_PI * i / 16;
            drawGlassBall(p, QPointF(cx + 92 * std::cos(t), 246 + 15 * std::sin(t) - 2), 4,
                          QColor(255, 255, 255));
        }
    }
    if (step >= 5)
        drawLayer(p, cx, 136, 190, 66, 13, QColor(250, 222, 150));
    if (step >= 6)
        drawIcing(p, cx, 136, 66, 13, QColor(255, 255, 250), 9);
    if (step >= 7) {  // sprinkles on both layers
        Rng rng(77);
        for (int i = 0; i < 46; ++i) {
            const bool upper = i % 2 == 0;
            const double rx = upper ? 60 : 86;
            const double x = cx + rng.range(-rx, rx);
            const double y = upper ? rng.range(158, 180) : rng.range(212, 238);
            p.save();
            p.translate(x, y);
            p.rotate(rng.range(0, 180));
            p.setBrush(brightColour(i));
            p.setPen(Qt::NoPen);
            p.drawRoundedRect(QRectF(-3.5, -1.2, 7, 2.4), 1.2, 1.2);
            p.restore();
        }
    }
    if (step >= 8) {  // cherries on the lower ledge
        for (int i = 0; i < 7; ++i) {
            const double t = M_PI * (0.1 + 0.8 * i / 6.0);
            const QPointF at(cx + 84 * std::cos(t), 190 + 13 * std::sin(t));
            p.setPen(QPen(QColor(60, 120, 40), 1.2));
            p.drawLine(at, at + QPointF(4, -10));
            drawGlassBall(p, at, 6.5, QColor(210, 20, 40));
        }
    }
    if (step >= 9) {  // a ribbon with a bow round the bottom layer
        p.setBrush(QColor(90, 160, 255));
        p.setPen(QPen(QColor(40, 90, 190), 1));
        QPainterPath ribbon;
        ribbon.moveTo(cx - 94, 214);
        ribbon.arcTo(QRectF(cx - 94, 198, 188, 32), 180, 180);
        ribbon.lineTo(cx + 94, 224);
        ribbon.arcTo(QRectF(cx - 94, 208, 188, 32), 0, -180);
        ribbon.closeSubpath();
        p.drawPath(ribbon);
        const QPointF knot(cx, 235);
        p.drawPolygon(QPolygonF({knot, knot + QPointF(-20, -10), knot + QPointF(-20, 10)}));
        p.drawPolygon(QPolygonF({knot, knot + QPointF(20, -10), knot + QPointF(20, 10)}));
        p.drawEllipse(knot, 5, 5);
    }
    const std::vector<CandleSpot> spots = candleSpots();
    const int candles = itemsShown(step, 10, 10, 14);
    const int flames = itemsShown(step, 10, 15, 19);
    for (const CandleSpot &spot : spots) {
        if (spot.order >= candles)
            continue;
        const QColor colour = brightColour(spot.order);
        const QRectF body(spot.base.x() - 3.5, spot.base.y() - 34, 7, 34);
        QLinearGradient wax(body.topLeft(), body.topRight());
        wax.setColorAt(0, colour.lighter(150));
        wax.setColorAt(1, colour.darker(130));
        p.setBrush(wax);
        p.setPen(QPen(colour.darker(170), 0.8));
        p.drawRoundedRect(body, 2, 2);
        p.setPen(QPen(QColor(255, 255, 255, 200), 1.6));
        for (int k = 0; k < 4; ++k)
            p.drawLine(QPointF(body.left() + 0.5, body.top() + 6 + k * 8),
                       QPointF(body.right() - 0.5, body.top() + 2 + k * 8));
        p.setPen(QPen(QColor(60, 60, 60), 1));
        p.drawLine(body.center() - QPointF(0, 17), body.center() - QPointF(0, 21));
        if (spot.order >= flames)
            continue;
        const QPointF tip(spot.base.x(), body.top() - 20);
        QRadialGradient glow(tip + QPointF(0, 10), 14);
        glow.setColorAt(0, QColor(255, 230, 120, 150));
        glow.setColorAt(1, QColor(255, 230, 120, 0));
        p.setPen(Qt::NoPen);
        p.setBrush(glow);
        p.drawEllipse(tip + QPointF(0, 10), 14, 14);
        QPainterPath flame;
        flame.moveTo(tip);
        flame.cubicTo(tip + QPointF(6, 8), tip + QPointF(6, 17), tip + QPointF(0, 17));
        flame.cubicTo(tip + QPointF(-6, 17), tip + QPointF(-6, 8), tip);
        QRadialGradient fire(tip + QPointF(0, 12), 10);
        fire.setColorAt(0, QColor(255, 255, 200));
        fire.setColorAt(0.5, QColor(255, 200, 40));
        fire.setColorAt(1, QColor(255, 100, 0));
        p.setBrush(fire);
        p.drawPath(flame);
    }
    if (step >= 20) {  // balloons for the party
        drawBalloon(p, QPointF(34, 46), QColor(235, 50, 70));
        drawBalloon(p, QPointF(226, 38), QColor(60, 140, 240));
    }
    p.restore();
}

// --- Jar of green marbles --------------------------------------------------

namespace {

QPainterPath jarShape(double inset)
{
    const double left = 38 + inset, right = 222 - inset, bottom = 282 - inset;
    const double neckLeft = 86 + inset, neckRight = 174 - inset, top = 30;
    QPainterPath jar;
    jar.moveTo(neckLeft, top);
    jar.lineTo(neckLeft, 54);
    jar.cubicTo(neckLeft, 74, left, 74, left, 104);
    jar.lineTo(left, bottom - 30);
    jar.quadTo(left, bottom, left + 30, bottom);
    jar.lineTo(right - 30, bottom);
    jar.quadTo(right, bottom, right, bottom - 30);
    jar.lineTo(right, 104);
    jar.cubicTo(right, 74, neckRight, 74, neckRight, 54);
    jar.lineTo(neckRight, top);
    jar.closeSubpath();
    return jar;
}

struct Marble
{
    QPointF at;
    QColor colour;
};

std::vector<Marble> jarMarbles()
{
    static const QColor greens[] = {QColor(60, 190, 80), QColor(130, 220, 80),
                                    QColor(26, 136, 66), QColor(170, 232, 120),
                                    QColor(40, 170, 140), QColor(96, 200, 50)};
    const double r = 11.5;
    const QPainterPath inside = jarShape(6);
    std::vector<Marble> marbles;
    Rng rng(2024);
    for (int row = 0; row < 9; ++row) {
        const double y = 282 - 8 - r - row * r * 1.74;
        if (y < 102)
            break;
        for (int col = 0; col < 9; ++col) {
            const QPointF at(46 + r + col * 2 * r + (row % 2 ? r : 0) + rng.range(-0.8, 0.8),
                             y + rng.range(-0.8, 0.8));
            bool fits = true;
            for (int k = 0; k < 8 && fits; ++k) {
                const double a = k * M_PI / 4;
                fits = inside.contains(at + QPointF(std::cos(a), std::sin(a)) * r);
            }
            if (fits)
                marbles.push_back({at, greens[rng.below(6)]});
        }
    }
    return marbles;
}

} // namespace

void drawJarOfMarbles(QPainter &p, const QRectF &area, int step)
{
    p.save();
    p.translate(area.topLeft());
    p.scale(area.width() / 260.0, area.height() / 290.0);

    drawSoftShadow(p, QPointF(130, 284), 100, 8, 70);
    const QPainterPath jar = jarShape(0);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(170, 230, 180, 90));
    p.drawPath(jar);

    static const std::vector<Marble> marbles = jarMarbles();
    const int shown = itemsShown(step, int(marbles.size()), 1, kRewardSteps - 1);
    for (int i = 0; i < shown; ++i)
        drawGlassBall(p, marbles[i].at, 11.5, marbles[i].colour);

    // The glass in front: a green tint, bright streaks and a thick rim.
    p.setBrush(QColor(120, 210, 140, 40));
    p.setPen(QPen(QColor(60, 140, 90), 3));
    p.drawPath(jar);
    p.setPen(QPen(QColor(255, 255, 255, 170), 6, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(54, 118), QPointF(54, 250));
    p.setPen(QPen(QColor(255, 255, 255, 110), 3, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(68, 110), QPointF(68, 160));
    p.setBrush(QColor(200, 240, 210, 200));
    p.setPen(QPen(QColor(60, 140, 90), 2));
    p.drawRoundedRect(QRectF(80, 24, 100, 12), 6, 6);

    if (step >= kRewardSteps) {  // the lid goes on, with a bow
        QLinearGradient lid(QPointF(0, 6), QPointF(0, 30));
        lid.setColorAt(0, QColor(255, 230, 110));
        lid.setColorAt(1, QColor(210, 150, 20));
        p.setBrush(lid);
        p.setPen(QPen(QColor(150, 100, 10), 1.5));
        p.drawRoundedRect(QRectF(76, 8, 108, 24), 7, 7);
        p.setBrush(QColor(240, 50, 90));
        p.setPen(QPen(QColor(160, 20, 60), 1));
        const QPointF knot(130, 8);
        p.drawEllipse(knot + QPointF(-13, -3), 13, 7);
        p.drawEllipse(knot + QPointF(13, -3), 13, 7);
        p.drawEllipse(knot, 5, 5);
    }
    p.restore();
}
