// The six pictures of Halves and Quarters, one on each cell of the board:
// holly, ducks, suns, dinosaurs, spiders and gorillas. The animals and the
// sun come from the colour emoji font; holly has no emoji and is drawn here.
// Each is drawn large, trimmed to what was drawn and scaled into a small
// square; its soft edge is mixed with the board's cream tiles, and what lies
// outside the picture stays clear.
#include "canvas.h"
#include "drawing.h"
#include "shell/module1.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

#include <cmath>
#include <functional>

namespace {

constexpr int kSide = 60;    // the picture's square, in pixels
constexpr int kInside = 56;  // what is drawn fits in this, centred
constexpr int kLarge = 480;  // the canvas it is drawn on first
constexpr int kLargeTwin = 2; // how much larger the twin is drawn

// The smallest rectangle holding every pixel that is at all solid.
QRect drawnArea(const QImage &image)
{
    int left = image.width(), top = image.height(), right = -1, bottom = -1;
    for (int y = 0; y < image.height(); ++y) {
        const QRgb *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(row[x]) > 8) {
                left = std::min(left, x), right = std::max(right, x);
                top = std::min(top, y), bottom = std::max(bottom, y);
            }
    }
    return right < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
}

// Draws large, trims, scales into the square and settles the edge: a pixel
// at least half solid becomes solid, mixed with the tile colour; the rest
// becomes clear. Empty when nothing was drawn (the font is missing).
QImage finish(const std::function<void(QPainter &)> &draw, int enlarge = 1)
{
    const int side = kSide * enlarge, inside = kInside * enlarge;
    QImage large = clearCanvas(kLarge, kLarge);
    {
        QPainter painter(&large);
        smoothPainting(painter);
        draw(painter);
    }
    large = large.convertToFormat(QImage::Format_ARGB32);
    const QRect area = drawnArea(large);
    if (area.isEmpty())
        return QImage();
    const QImage fitted = large.copy(area).scaled(inside, inside, Qt::KeepAspectRatio, Qt::SmoothTransformation);

    QImage square = clearCanvas(side, side).convertToFormat(QImage::Format_ARGB32);
    const QColor tile = Module1::kPanelPaper;
    const int x0 = (side - fitted.width()) / 2, y0 = (side - fitted.height()) / 2;
    for (int y = 0; y < fitted.height(); ++y)
        for (int x = 0; x < fitted.width(); ++x) {
            const QRgb c = fitted.pixel(x, y);
            const int a = qAlpha(c);
            if (a < 128)
                continue;
            auto mix = [a](int over, int under) { return (over * a + under * (255 - a) + 127) / 255; };
            square.setPixel(x0 + x, y0 + y,
                            qRgb(mix(qRed(c), tile.red()), mix(qGreen(c), tile.green()), mix(qBlue(c), tile.blue())));
        }
    return square;
}

void drawEmoji(QPainter &painter, const QString &text)
{
    // The family must be named, or some glyphs come out in black and white.
    QFont font(QStringLiteral("Noto Color Emoji"));
    font.setPixelSize(kLarge * 2 / 3);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QRect(0, 0, kLarge, kLarge), Qt::AlignCenter, text);
}

// A holly leaf along the x axis from -1 to 1: scalloped edges between sharp
// points, the widest part in the middle.
QPainterPath hollyLeaf(double halfWidth)
{
    constexpr int kPoints = 4; // spikes along each side between the two tips
    auto edge = [halfWidth](double x) { return halfWidth * std::sqrt(std::max(0.0, 1.0 - x * x)); };
    QPainterPath leaf(QPointF(-1, 0));
    for (int side : {-1, 1}) {
        const double from = side < 0 ? -1.0 : 1.0;
        for (int i = 1; i <= kPoints + 1; ++i) {
            const double x = from - side * 2.0 * i / (kPoints + 1);
            const QPointF spike(x, side * -1.0 * (i == kPoints + 1 ? 0 : edge(x) * 1.15));
            const double xm = from - side * 2.0 * (i - 0.5) / (kPoints + 1);
            const QPointF dip(xm, side * -1.0 * edge(xm) * 0.55);
            leaf.quadTo(dip, spike);
        }
    }
    leaf.closeSubpath();
    return leaf;
}

void drawHolly(QPainter &p)
{
    const QPointF centre(kLarge / 2.0, kLarge / 2.0 + 40);
    const double length = kLarge * 0.27;
    for (double turn : {-140.0, -40.0}) {
        p.save();
        p.translate(centre);
        p.rotate(turn);
        p.translate(length, 0);
        p.scale(length, length);
        const QPainterPath leaf = hollyLeaf(0.5);
        QLinearGradient shade(0, -0.5, 0, 0.5);
        shade.setColorAt(0, QColor(40, 140, 60));
        shade.setColorAt(1, QColor(10, 80, 30));
        p.setBrush(shade);
        p.setPen(QPen(QColor(5, 50, 20), 0.05, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPath(leaf);
        p.setPen(QPen(QColor(120, 190, 110), 0.05, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(-0.95, 0), QPointF(0.85, 0));
        p.restore();
    }
    const double r = kLarge * 0.075;
    for (const QPointF &offset : {QPointF(-r * 1.05, -r * 0.2), QPointF(r * 1.05, -r * 0.2), QPointF(0, r * 1.3)}) {
        const QPointF at = centre + offset - QPointF(0, length * 0.25);
        QRadialGradient berry(at, r, at - QPointF(r * 0.35, r * 0.4));
        berry.setColorAt(0, QColor(255, 120, 110));
        berry.setColorAt(0.5, QColor(220, 20, 30));
        berry.setColorAt(1, QColor(140, 0, 10));
        p.setBrush(berry);
        p.setPen(QPen(QColor(110, 0, 0), 3));
        p.drawEllipse(at, r, r);
    }
}

} // namespace

void drawHalvesPictures(AssetOutput &out)
{
    const struct {
        const char *file;
        std::function<void(QPainter &)> draw;
    } pictures[] = {
        {"gif/leaf.gif", drawHolly},
        {"gif/wb01747_.gif", [](QPainter &p) { drawEmoji(p, QStringLiteral(u"\U0001F986")); }},       // duck
        {"gif/wb01330_.gif", [](QPainter &p) { drawEmoji(p, QStringLiteral(u"\u2600\uFE0F")); }},     // sun
        {"gif/wb01742_.gif", [](QPainter &p) { drawEmoji(p, QStringLiteral(u"\U0001F995")); }},       // dinosaur
        {"gif/wb01299_.gif", [](QPainter &p) { drawEmoji(p, QStringLiteral(u"\U0001F577\uFE0F")); }}, // spider
        {"gif/wb01746_.gif", [](QPainter &p) { drawEmoji(p, QStringLiteral(u"\U0001F98D")); }},       // gorilla
    };
    for (const auto &picture : pictures) {
        const QImage image = finish(picture.draw);
        if (image.isNull()) {
            out.fail(QStringLiteral("nothing was drawn for %1: is the Noto Color Emoji font installed?")
                         .arg(QLatin1String(picture.file)));
            return;
        }
        out.saveGif(image, QString::fromLatin1(picture.file));
        // The twin twice the size, for screens drawn larger than designed.
        QString twin = QString::fromLatin1(picture.file);
        twin.insert(twin.lastIndexOf(QLatin1Char('.')), QLatin1String("@2x"));
        out.saveGif(finish(picture.draw, kLargeTwin), twin);
    }
}
