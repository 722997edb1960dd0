// The publisher's logo. Its mark is a toy pinwheel: a round cake cut into
// twelve slices whose colours come round every three slices, with softly
// curled seams so it reads as spinning. The menus show it still beside the
// words "Partitude Learning" (two sizes of bitmap) and spinning on its own
// (two sizes of GIF frames, 20 to a loop).
//
// Over one loop the wheel turns by exactly three slices, so the colours are
// back where they started and the last frame runs on into the first as any
// other step does. A 25 ms timer shows the loop in half a second: a whole
// turn every two seconds.
#include "canvas.h"
#include "drawing.h"
#include "gifwriter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <cmath>
#include <functional>
#include <iterator>
#include <utility>

namespace {

constexpr int kFrames = 20;
constexpr int kSlices = 12;
constexpr int kColourRound = 3;  // the colours repeat every this many slices
constexpr double kSliceDegrees = 360.0 / kSlices;
constexpr double kLoopTurn = kSliceDegrees * kColourRound;
constexpr int kDetail = 4;  // drawn this many times larger, then scaled down

// The year and activity menus are a slightly different blue from the
// activity screens; everything here sits on the menus.
QColor menuBlue() { return QColor(49, 130, 212); }
QColor ink() { return QColor(24, 52, 110); }

QColor sliceColour(int slice)
{
    static const QColor colours[kColourRound] = {
        QColor(236, 62, 70),   // red
        QColor(255, 204, 20),  // yellow
        QColor(72, 184, 76),   // green
    };
    return colours[slice % kColourRound];
}

// A point at distance r from the centre, angle degrees clockwise from the top.
QPointF polar(const QPointF &centre, double r, double degrees)
{
    const double a = degrees * M_PI / 180.0;
    return QPointF(centre.x() + r * std::sin(a), centre.y() - r * std::cos(a));
}

// The seam between two slices: it leaves the centre at the given angle and
// curls forward as it goes out, like the vane of a paper windmill.
constexpr double kCurl = 28;

double seamAngle(double startDegrees, double fraction)
{
    return startDegrees + kCurl * fraction * fraction;
}

QPainterPath seamPath(const QPointF &centre, double radius, double startDegrees)
{
    QPainterPath path(centre);
    constexpr int steps = 24;
    for (int i = 1; i <= steps; ++i) {
        const double f = double(i) / steps;
        path.lineTo(polar(centre, radius * f, seamAngle(startDegrees, f)));
    }
    return path;
}

QPainterPath slicePath(const QPointF &centre, double radius, double startDegrees)
{
    const double endDegrees = startDegrees + kSliceDegrees;
    QPainterPath path = seamPath(centre, radius, startDegrees);
    // Along the rim (clockwise in screen terms) to the next seam's end...
    constexpr int rimSteps = 12;
    for (int i = 1; i <= rimSteps; ++i)
        path.lineTo(polar(centre, radius,
                          seamAngle(startDegrees, 1) + kSliceDegrees * i / rimSteps));
    // ...and back down that seam to the centre.
    constexpr int steps = 24;
    for (int i = steps - 1; i >= 0; --i) {
        const double f = double(i) / steps;
        path.lineTo(polar(centre, radius * f, seamAngle(endDegrees, f)));
    }
    path.closeSubpath();
    return path;
}

QPen roundPen(const QColor &colour, double width)
{
    QPen pen(colour, width);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    return pen;
}

// The mark on a 100 x 100 grid, turned clockwise by turnDegrees.
void drawWheel(QPainter &p, double turnDegrees)
{
    const QPointF centre(50, 50);
    const double rim = 46, cake = 40.5;

    // A soft shadow below and to the right, then the white rim.
    drawSoftShadow(p, centre + QPointF(1.2, 2.2), rim + 1.5, rim + 1.5, 60);
    p.setPen(roundPen(ink(), 2.0));
    p.setBrush(Qt::white);
    p.drawEllipse(centre, rim, rim);

    // The slices, each a little lighter towards the middle.
    p.setPen(Qt::NoPen);
    for (int i = 0; i < kSlices; ++i) {
        const QColor colour = sliceColour(i);
        QRadialGradient fill(centre, cake);
        fill.setColorAt(0.0, mixColours(colour, Qt::white, 0.35));
        fill.setColorAt(0.55, colour);
        fill.setColorAt(1.0, colour.darker(112));
        p.setBrush(fill);
        p.drawPath(slicePath(centre, cake, turnDegrees + i * kSliceDegrees));
    }
    // White seams between them, and a fine ring round the cake.
    p.setBrush(Qt::NoBrush);
    p.setPen(roundPen(Qt::white, 1.6));
    for (int i = 0; i < kSlices; ++i)
        p.drawPath(seamPath(centre, cake, turnDegrees + i * kSliceDegrees));
    p.setPen(roundPen(mixColours(ink(), Qt::white, 0.55), 1.0));
    p.drawEllipse(centre, cake + 0.5, cake + 0.5);

    // A shine on the upper left, which stays put while the wheel turns.
    QPainterPath shine;
    shine.addEllipse(QRectF(17, 13, 46, 26));
    QPainterPath bite;
    bite.addEllipse(QRectF(24, 22, 52, 34));
    QPainterPath cakeOutline;
    cakeOutline.addEllipse(centre, cake, cake);
    p.setBrush(QColor(255, 255, 255, 70));
    p.setPen(Qt::NoPen);
    p.drawPath(shine.subtracted(bite).intersected(cakeOutline));

    // The pin in the middle.
    QRadialGradient hub(centre, 8.5, centre - QPointF(2.5, 3));
    hub.setColorAt(0.0, Qt::white);
    hub.setColorAt(1.0, QColor(214, 224, 240));
    p.setBrush(hub);
    p.setPen(roundPen(ink(), 1.6));
    p.drawEllipse(centre, 8, 8);
    p.setBrush(ink());
    p.setPen(Qt::NoPen);
    p.drawEllipse(centre, 2.4, 2.4);
}

// Draws at kDetail times the size on a clear canvas, in a coordinate system
// of unitsWide across, and scales down so every edge is smooth.
QImage drawSmooth(int width, int height, double unitsWide,
                  const std::function<void(QPainter &)> &draw)
{
    QImage big = clearCanvas(width * kDetail, height * kDetail);
    {
        QPainter painter(&big);
        smoothPainting(painter);
        const double scale = width * kDetail / unitsWide;
        painter.scale(scale, scale);
        draw(painter);
    }
    return big.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

// GIF has only fully clear or fully solid pixels. The frames are always
// shown on the menus' blue, so the soft edge pixels are mixed with that blue
// and made solid; only the faintest become clear.
QImage solidOnMenuBlue(const QImage &drawn)
{
    const QColor blue = menuBlue();
    QImage result(drawn.size(), QImage::Format_ARGB32);
    for (int y = 0; y < drawn.height(); ++y) {
        const QRgb *in = reinterpret_cast<const QRgb *>(drawn.constScanLine(y));
        QRgb *outRow = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < drawn.width(); ++x) {
            const int a = qAlpha(in[x]);
            if (a < 10) {
                outRow[x] = qRgba(0, 0, 0, 0);
                continue;
            }
            // Premultiplied: the colour already carries its own share.
            const int rest = 255 - a;
            outRow[x] = qRgb(qRed(in[x]) + (blue.red() * rest + 127) / 255,
                             qGreen(in[x]) + (blue.green() * rest + 127) / 255,
                             qBlue(in[x]) + (blue.blue() * rest + 127) / 255);
        }
    }
    return result;
}

QImage wheelFrame(int side, int frame)
{
    const double turn = kLoopTurn * frame / kFrames;
    return solidOnMenuBlue(drawSmooth(side, side, 100, [turn](QPainter &p) { drawWheel(p, turn); }));
}

// All the frames of one size, sharing one palette of fewer than 256
// colours: the GIFs keep every colour exactly, and the rim, pin and shine,
// which stay put, do not flicker from frame to frame.
QVector<QImage> wheelFrames(int side)
{
    QVector<QImage> frames;
    for (int frame = 0; frame < kFrames; ++frame)
        frames.append(wheelFrame(side, frame));
    const QVector<QRgb> palette = sharedPalette(frames);
    for (QImage &frame : frames)
        frame = mapToPalette(frame, palette);
    return frames;
}

// The logo bitmaps: a white card with rounded corners on the menus' blue,
// the mark at its left and the words beside it, "Partitude" in bright
// letters and "Learning" below in ink. Drawn on a 192 x 72 grid.
void drawLogoCard(QPainter &p)
{
    const QRectF card(3, 3, 185, 65);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(20, 50, 110, 90));
    p.drawRoundedRect(card.translated(1.2, 1.6), 14, 14);
    p.setBrush(Qt::white);
    p.setPen(roundPen(mixColours(ink(), Qt::white, 0.4), 1.2));
    p.drawRoundedRect(card, 14, 14);

    p.save();
    p.translate(7, 8);
    p.scale(0.56, 0.56);
    drawWheel(p, 0);
    p.restore();

    const double left = 67, right = card.right() - 6;
    QFont big = labelFont(27);
    QFontMetricsF bigMetrics(big);
    const QString name = QStringLiteral("Partitude");
    double x = left + (right - left - bigMetrics.horizontalAdvance(name)) / 2;
    const double baseline = 37;
    static const QColor letters[] = {
        QColor(226, 48, 60), QColor(240, 120, 0), QColor(54, 160, 60),
        QColor(30, 110, 220), QColor(140, 66, 200), QColor(228, 60, 140),
    };
    for (int i = 0; i < name.size(); ++i) {
        QPainterPath glyph;
        glyph.addText(QPointF(x, baseline), big, name.mid(i, 1));
        const QColor colour = letters[i % std::size(letters)];
        p.setPen(roundPen(colour.darker(150), 0.9));
        p.setBrush(colour);
        p.drawPath(glyph);
        x += bigMetrics.horizontalAdvance(name.left(i + 1))
             - bigMetrics.horizontalAdvance(name.left(i));
    }

    QFont small = labelFont(17);
    small.setLetterSpacing(QFont::AbsoluteSpacing, 2.2);
    const QString word = QStringLiteral("Learning");
    const double wordWidth = QFontMetricsF(small).horizontalAdvance(word) - 2.2;
    QPainterPath learning;
    learning.addText(QPointF(left + (right - left - wordWidth) / 2, 58), small, word);
    p.setPen(Qt::NoPen);
    p.setBrush(ink());
    p.drawPath(learning);
}

QImage logoBitmap(int width, int height)
{
    const QImage drawn = drawSmooth(width, height, 192, drawLogoCard);
    QImage result = opaqueCanvas(width, height, menuBlue());
    {
        QPainter painter(&result);
        painter.drawImage(0, 0, drawn);
    }
    return result.convertToFormat(QImage::Format_RGB888);
}

} // namespace

void drawLogos(AssetOutput &out)
{
    // Each with a twin twice the size, from which the program draws its
    // screens when they are larger than designed.
    constexpr int kLargeTwin = 2;
    out.saveImage(logoBitmap(192, 72), QStringLiteral("bmp/morvane2.bmp"), "bmp");
    out.saveImage(logoBitmap(192 * kLargeTwin, 72 * kLargeTwin), QStringLiteral("bmp/morvane2@2x.bmp"), "bmp");
    out.saveImage(logoBitmap(150, 56), QStringLiteral("bmp/morvane3.bmp"), "bmp");
    out.saveImage(logoBitmap(150 * kLargeTwin, 56 * kLargeTwin), QStringLiteral("bmp/morvane3@2x.bmp"), "bmp");
    for (const auto &size : {std::make_pair(112, "morv"), std::make_pair(80, "smmv")}) {
        const QVector<QImage> frames = wheelFrames(size.first);
        for (int frame = 0; frame < kFrames; ++frame)
            out.saveGif(frames[frame], QStringLiteral("bmp/%1%2.gif")
                                           .arg(QLatin1String(size.second))
                                           .arg(frame, 4, 10, QLatin1Char('0')));
    }
}
