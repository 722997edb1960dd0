// Toolbar and window icons. Each is drawn four times larger on a 32-unit grid
// and scaled down, which gives clean edges at 32x32.
#include "canvas.h"
#include "drawing.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

#include <cmath>
#include <functional>

namespace {

// A block arrow pointing right: a shaft from tail to neck, then a head that
// narrows to the tip; both are centred on the line y = middle.
QPainterPath rightArrow(double tail, double neck, double tip, double middle, double shaftHalf,
                        double headHalf)
{
    QPainterPath arrow;
    arrow.moveTo(tail, middle - shaftHalf);
    arrow.lineTo(neck, middle - shaftHalf);
    arrow.lineTo(neck, middle - headHalf);
    arrow.lineTo(tip, middle);
    arrow.lineTo(neck, middle + headHalf);
    arrow.lineTo(neck, middle + shaftHalf);
    arrow.lineTo(tail, middle + shaftHalf);
    arrow.closeSubpath();
    return arrow;
}

constexpr int kIconSide = 32;
constexpr int kDetail = 4;

// The program draws its screens larger than designed from a twin drawn this
// many times larger, named with this suffix ("ico/door2@2x.ico").
constexpr int kLargeTwin = 2;
const QLatin1String kLargeTwinSuffix("@2x");

// Draws on the 32 x 32 design grid, `enlarge` times the size.
QImage drawIcon(const std::function<void(QPainter &)> &draw, int enlarge = 1)
{
    const int side = kIconSide * enlarge;
    QImage big = clearCanvas(side * kDetail, side * kDetail);
    {
        QPainter painter(&big);
        smoothPainting(painter);
        painter.scale(kDetail * enlarge, kDetail * enlarge);
        draw(painter);
    }
    return big.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32);
}

QPen outline(const QColor &colour, double width = 1.1)
{
    QPen pen(colour, width);
    pen.setJoinStyle(Qt::RoundJoin);
    pen.setCapStyle(Qt::RoundCap);
    return pen;
}

// A round cake of six coloured slices with one slice pulled out.
void fractionIcon(QPainter &p)
{
    const QPointF centre(15, 17);
    const double r = 12.5;
    const int slices = 6;
    const QRectF box(centre.x() - r, centre.y() - r, 2 * r, 2 * r);
    for (int i = 0; i < slices; ++i) {
        const double start = 90 - (i + 1) * 360.0 / slices;  // clockwise from the top
        const double mid = (start + 180.0 / slices) * M_PI / 180.0;
        const QPointF shift = (i == 0) ? QPointF(3.2 * std::cos(mid), -3.2 * std::sin(mid))
                                       : QPointF();
        QPainterPath slice;
        slice.moveTo(centre + shift);
        slice.arcTo(box.translated(shift), start, 360.0 / slices);
        slice.closeSubpath();
        const QColor colour = brightColour(i);
        QRadialGradient fill(centre + shift, r, centre + shift - QPointF(4, 5));
        fill.setColorAt(0, colour.lighter(135));
        fill.setColorAt(1, colour);
        p.setBrush(fill);
        p.setPen(outline(colour.darker(170), 1.0));
        p.drawPath(slice);
    }
}

// A traffic light showing green: "off you go".
void startIcon(QPainter &p)
{
    const QRectF housing(8.5, 0.8, 15, 30.4);
    QLinearGradient body(housing.topLeft(), housing.topRight());
    body.setColorAt(0, QColor(88, 92, 100));
    body.setColorAt(1, QColor(38, 40, 46));
    p.setBrush(body);
    p.setPen(outline(QColor(20, 20, 24), 1.0));
    p.drawRoundedRect(housing, 4, 4);

    const QColor lampOff[] = {QColor(110, 34, 34), QColor(118, 92, 24)};
    for (int i = 0; i < 2; ++i) {
        p.setBrush(lampOff[i]);
        p.setPen(outline(QColor(15, 15, 15), 0.8));
        p.drawEllipse(QPointF(16, 6.6 + i * 9.4), 3.7, 3.7);
    }
    const QPointF green(16, 25.4);
    QRadialGradient halo(green, 7.5);
    halo.setColorAt(0.45, QColor(120, 255, 140, 200));
    halo.setColorAt(1.0, QColor(120, 255, 140, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(halo);
    p.drawEllipse(green, 7.5, 7.5);
    QRadialGradient lamp(green, 4.0, green - QPointF(1.2, 1.2));
    lamp.setColorAt(0, QColor(220, 255, 220));
    lamp.setColorAt(0.5, QColor(60, 235, 90));
    lamp.setColorAt(1, QColor(20, 160, 50));
    p.setBrush(lamp);
    p.setPen(outline(QColor(10, 90, 30), 0.8));
    p.drawEllipse(green, 4.0, 4.0);
}

// A question mark with a green tick: "check your answer".
void checkIcon(QPainter &p)
{
    const QPointF centre(14.5, 14.5);
    QRadialGradient badge(centre, 14, centre - QPointF(4, 5));
    badge.setColorAt(0, QColor(110, 180, 255));
    badge.setColorAt(1, QColor(25, 85, 190));
    p.setBrush(badge);
    p.setPen(outline(QColor(255, 255, 255), 1.4));
    p.drawEllipse(centre, 13.3, 13.3);
    p.setPen(QColor(255, 255, 255));
    p.setFont(labelFont(22));
    p.drawText(QRectF(1, 2, 27, 26), Qt::AlignCenter, QStringLiteral("?"));

    const QPointF tick(24.5, 24.5);
    p.setBrush(QColor(52, 190, 72));
    p.setPen(outline(QColor(255, 255, 255), 1.2));
    p.drawEllipse(tick, 6.6, 6.6);
    QPainterPath mark;
    mark.moveTo(21.3, 24.8);
    mark.lineTo(23.8, 27.2);
    mark.lineTo(28.0, 21.8);
    p.setBrush(Qt::NoBrush);
    p.setPen(outline(QColor(255, 255, 255), 2.0));
    p.drawPath(mark);
}

// An open hand held up with a sleeve: "here is some help".
void hintIcon(QPainter &p)
{
    const QColor skin(255, 204, 150);
    const QPen edge = outline(QColor(160, 96, 50), 1.0);
    p.setPen(edge);
    p.setBrush(skin);
    // Fingers: x position, top, width.
    const double fingers[4][2] = {{9.2, 5.0}, {13.1, 2.6}, {17.0, 3.6}, {20.9, 6.8}};
    for (const auto &f : fingers)
        p.drawRoundedRect(QRectF(f[0], f[1], 3.7, 16 - f[1] + 2), 1.85, 1.85);
    // Thumb, leaning out to the left.
    p.save();
    p.translate(9.5, 20.5);
    p.rotate(-38);
    p.drawRoundedRect(QRectF(-1.9, -10.5, 3.9, 11.5), 1.95, 1.95);
    p.restore();
    // Palm over the finger roots.
    p.drawRoundedRect(QRectF(8.6, 14.0, 16.6, 12.0), 4.5, 4.5);
    p.setPen(Qt::NoPen);
    p.drawRect(QRectF(9.3, 14.4, 15.2, 5));
    // Sleeve cuff.
    QLinearGradient cuff(QPointF(0, 25), QPointF(0, 31));
    cuff.setColorAt(0, QColor(70, 140, 240));
    cuff.setColorAt(1, QColor(30, 80, 190));
    p.setBrush(cuff);
    p.setPen(outline(QColor(20, 55, 140), 1.0));
    p.drawRoundedRect(QRectF(8.0, 25.0, 18.0, 6.2), 1.5, 1.5);
    // A small sparkle: a bright idea.
    p.setBrush(QColor(255, 214, 0));
    p.setPen(outline(QColor(200, 140, 0), 0.7));
    p.drawPath(starPath(QPointF(27.2, 6.0), 4.4, 1.8, 4));
}

// An open door with daylight outside: "goodbye".
void exitIcon(QPainter &p)
{
    const QRectF opening(8, 3, 17, 26.5);
    QLinearGradient sky(opening.topLeft(), opening.bottomLeft());
    sky.setColorAt(0, QColor(150, 215, 255));
    sky.setColorAt(0.65, QColor(255, 246, 180));
    sky.setColorAt(0.66, QColor(120, 200, 80));
    sky.setColorAt(1, QColor(80, 160, 50));
    p.setBrush(sky);
    p.setPen(Qt::NoPen);
    p.drawRect(opening);
    // Frame.
    p.setBrush(Qt::NoBrush);
    p.setPen(outline(QColor(110, 60, 25), 2.4));
    p.drawRect(opening.adjusted(-1.2, -1.2, 1.2, 1.2));
    // The door leaf swung inwards on its left hinge.
    QPainterPath leaf;
    leaf.moveTo(8, 3);
    leaf.lineTo(16.5, 6.2);
    leaf.lineTo(16.5, 26.8);
    leaf.lineTo(8, 29.5);
    leaf.closeSubpath();
    QLinearGradient wood(QPointF(8, 0), QPointF(16.5, 0));
    wood.setColorAt(0, QColor(205, 120, 55));
    wood.setColorAt(1, QColor(150, 78, 30));
    p.setBrush(wood);
    p.setPen(outline(QColor(95, 48, 15), 0.9));
    p.drawPath(leaf);
    p.setBrush(QColor(255, 210, 40));
    p.setPen(outline(QColor(150, 100, 0), 0.5));
    p.drawEllipse(QPointF(14.6, 17.2), 1.3, 1.5);
    // A little arrow on its way out.
    const QPainterPath arrow = rightArrow(18, 25, 31, 24, 2, 5);
    p.setBrush(QColor(235, 60, 60));
    p.setPen(outline(QColor(255, 255, 255), 1.0));
    p.drawPath(arrow);
}

// A bold green arrow pointing right: "next".
void nextIcon(QPainter &p)
{
    const QPainterPath arrow = rightArrow(2.5, 16, 29.5, 16, 5, 12.5);
    QLinearGradient fill(QPointF(0, 4), QPointF(0, 28));
    fill.setColorAt(0, QColor(140, 230, 100));
    fill.setColorAt(1, QColor(30, 145, 40));
    p.setBrush(fill);
    p.setPen(outline(QColor(20, 95, 25), 1.3));
    p.drawPath(arrow);
    // Gloss on the upper half.
    p.setClipPath(arrow);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 80));
    p.drawRect(QRectF(0, 0, 32, 15.5));
}

// A printer with a sheet coming out, on the light grey of a toolbar button.
QImage printerBitmap(int enlarge)
{
    const QImage icon = drawIcon([](QPainter &p) {
        // Paper going in at the back.
        p.setBrush(QColor(255, 255, 255));
        p.setPen(outline(QColor(90, 90, 90), 0.9));
        p.drawRect(QRectF(9, 2.5, 14, 11));
        // Body.
        QLinearGradient body(QPointF(0, 11), QPointF(0, 25));
        body.setColorAt(0, QColor(200, 205, 215));
        body.setColorAt(1, QColor(110, 115, 128));
        p.setBrush(body);
        p.setPen(outline(QColor(50, 52, 60), 1.1));
        p.drawRoundedRect(QRectF(2.5, 11.5, 27, 13.5), 2.5, 2.5);
        p.setBrush(QColor(45, 48, 56));
        p.setPen(Qt::NoPen);
        p.drawRect(QRectF(7, 20.5, 18, 2));
        p.setBrush(QColor(60, 220, 80));
        p.setPen(outline(QColor(20, 100, 30), 0.6));
        p.drawEllipse(QPointF(25.5, 15.5), 1.4, 1.4);
        // The printed sheet coming out at the front.
        p.setBrush(QColor(255, 255, 255));
        p.setPen(outline(QColor(90, 90, 90), 0.9));
        p.drawRect(QRectF(8.5, 21.5, 15, 9));
        p.setPen(outline(QColor(45, 98, 230), 1.0));
        for (int i = 0; i < 3; ++i)
            p.drawLine(QPointF(11, 24 + i * 2.2), QPointF(i == 2 ? 17 : 21, 24 + i * 2.2));
    }, enlarge);
    QImage bitmap = opaqueCanvas(icon.width(), icon.height(), QColor(240, 240, 240));
    QPainter painter(&bitmap);
    painter.drawImage(0, 0, icon);
    return bitmap;
}

} // namespace

void drawIcons(AssetOutput &out)
{
    const struct
    {
        const char *name;
        void (*draw)(QPainter &);
    } icons[] = {
        {"fraction", fractionIcon}, {"trffc10a", startIcon}, {"quest", checkIcon},
        {"hand", hintIcon},         {"door2", exitIcon},     {"arw05rt", nextIcon},
    };
    for (const auto &icon : icons) {
        const QLatin1String name(icon.name);
        out.saveImage(drawIcon(icon.draw), QStringLiteral("ico/%1.ico").arg(name), "ico");
        out.saveImage(drawIcon(icon.draw, kLargeTwin), QStringLiteral("ico/%1%2.ico").arg(name, kLargeTwinSuffix), "ico");
    }
    out.saveImage(printerBitmap(1), QStringLiteral("ico/print.bmp"), "bmp");
    out.saveImage(printerBitmap(kLargeTwin), QStringLiteral("ico/print%1.bmp").arg(kLargeTwinSuffix), "bmp");
}
