// The turning sphere on the title screen: a ball cut into twelve wedges of
// alternating colour. Over the 50 frames it turns by exactly two wedges, so
// the colour pattern is back where it started and frame 49 runs smoothly on
// into frame 0.
#include "canvas.h"
#include "drawing.h"
#include "sphere.h"

#include <QPainter>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kFrames = 50;
constexpr int kWedges = 12;
constexpr double kWedgeDegrees = 360.0 / kWedges;
constexpr int kSide = 256;
constexpr double kRadius = 100;

QColor wedgeSurface(double longitude, double latitude)
{
    static const QColor warm(255, 122, 28);
    static const QColor sunny(255, 212, 42);
    const double w = (longitude + 180.0) / kWedgeDegrees;
    const int wedge = int(std::floor(w));
    QColor colour = (wedge % 2 == 0) ? warm : sunny;
    // Thin light seams between the wedges, a little wider than a pixel on
    // screen so they stay smooth as they turn.
    const double fromEdge = std::min(w - wedge, wedge + 1 - w) * kWedgeDegrees;
    const double seamPixels = fromEdge * M_PI / 180.0 * kRadius
                              * std::cos(latitude * M_PI / 180.0);
    const double seam = std::clamp(1.0 - (seamPixels - 0.6) / 1.4, 0.0, 1.0);
    colour = mixColours(colour, QColor(255, 250, 235), seam * 0.85);
    return colour;
}

// One frame, drawn `enlarge` times the designed size.
QImage titleFrame(int frame, int enlarge)
{
    QImage image = opaqueCanvas(kSide * enlarge, kSide * enlarge, screenBlue());
    QPainter painter(&image);
    smoothPainting(painter);
    painter.scale(enlarge, enlarge);
    const QPointF centre(kSide / 2.0, kSide / 2.0 - 6);

    // A soft glow behind the ball and its shadow on the ground.
    QRadialGradient glow(centre, kRadius * 1.25);
    glow.setColorAt(0.7, QColor(255, 255, 255, 40));
    glow.setColorAt(1.0, QColor(255, 255, 255, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawEllipse(centre, kRadius * 1.25, kRadius * 1.25);
    drawSoftShadow(painter, QPointF(centre.x(), centre.y() + kRadius + 12), kRadius * 0.8,
                   10, 80);

    SphereView view;
    view.tiltDegrees = 22;
    view.spinDegrees = 2 * kWedgeDegrees * frame / kFrames;
    drawSphere(painter, centre, kRadius, view, wedgeSurface);
    return image;
}

} // namespace

void drawTitleFrames(AssetOutput &out)
{
    // Each frame with a twin twice the size, for screens drawn larger than designed.
    constexpr int kLargeTwin = 2;
    for (int frame = 0; frame < kFrames; ++frame) {
        const QString number = QStringLiteral("%1").arg(frame, 4, 10, QLatin1Char('0'));
        out.saveJpeg(titleFrame(frame, 1), QStringLiteral("gif/sphfra/sphf%1.jpg").arg(number));
        out.saveJpeg(titleFrame(frame, kLargeTwin), QStringLiteral("gif/sphfra/sphf%1@2x.jpg").arg(number));
    }
}
