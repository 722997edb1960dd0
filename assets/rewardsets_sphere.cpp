// Reward picture: a glass ball filled in one piece at a time, five
// coloured slices from left to right, each cut into four pieces from top to
// bottom. The fraction built so far is written beside it.
#include "canvas.h"
#include "rewardsets.h"
#include "sphere.h"

#include <QPainter>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kSlices = 5;
constexpr int kBands = 4;
constexpr double kBandDegrees = 180.0 / kBands;
// Where the slices are cut, in degrees of longitude. The outer slices are
// wider on the ball so that, seen turned away at the rim, they look about as
// wide as the others.
constexpr double kCuts[kSlices + 1] = {-90, -40, -12, 12, 40, 90};

int sliceAt(double lon)
{
    int slice = 0;
    while (slice < kSlices - 1 && lon >= kCuts[slice + 1])
        ++slice;
    return slice;
}

QColor sliceColour(int slice, int band)
{
    static const int colours[kSlices] = {0, 1, 2, 3, 5};
    const QColor c = brightColour(colours[slice]);
    return band % 2 ? mixColours(c, Qt::white, 0.3) : c;
}

} // namespace

void drawSlicedSphere(QPainter &p, const QRectF &area, int step)
{
    const double radius = 94;
    const QPointF centre(area.left() + radius + 8, area.center().y() - 2);

    drawSoftShadow(p, centre + QPointF(0, radius + 4), radius * 0.75, 9, 70);

    // The pieces cover the half of the ball facing us; the sliver of the back
    // seen over the top belongs to the outer slices.
    auto surface = [step](double lon, double lat) {
        const double y = (90.0 - lat) / kBandDegrees;
        const int slice = sliceAt(lon);
        const int band = std::clamp(int(y), 0, kBands - 1);
        const bool built = slice * kBands + band < step;
        // Seam lines along the cuts between the pieces, about a pixel and a
        // half wide on screen.
        const double pixelsPerDegree = 94 * M_PI / 180.0;
        double sliceCut = 180, bandCut = 180;
        for (int k = 1; k < kSlices; ++k)
            sliceCut = std::min(sliceCut, std::abs(lon - kCuts[k]));
        for (int k = 1; k < kBands; ++k)
            bandCut = std::min(bandCut, std::abs(90.0 - lat - k * kBandDegrees));
        const double edge = std::min(sliceCut * std::cos(lat * M_PI / 180.0), bandCut)
                            * pixelsPerDegree;
        const double seam = std::clamp(1.6 - edge, 0.0, 1.0);
        if (!built)
            return mixColours(QColor(215, 230, 245, 110), QColor(120, 150, 190, 200), seam);
        return mixColours(sliceColour(slice, band), QColor(255, 255, 255), seam * 0.9);
    };
    SphereView view;
    view.tiltDegrees = 12;
    drawSphere(p, centre, radius, view, surface);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(90, 120, 170, 160), 1.2));
    p.drawEllipse(centre, radius, radius);

    // The fraction done so far, written as a child writes it.
    const double x = area.right() - 34;
    const double y = area.center().y();
    p.setPen(QColor(30, 70, 150));
    p.setFont(labelFont(34));
    p.drawText(QRectF(x - 32, y - 46, 64, 40), Qt::AlignHCenter | Qt::AlignBottom,
               QString::number(step));
    p.drawText(QRectF(x - 32, y + 6, 64, 40), Qt::AlignHCenter | Qt::AlignTop,
               QString::number(kRewardSteps));
    p.setPen(QPen(QColor(30, 70, 150), 3.5, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(x - 24, y), QPointF(x + 24, y));
}
