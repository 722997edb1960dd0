#include "sphere.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

struct Vec
{
    double x, y, z;
};

Vec normalised(Vec v)
{
    const double len = std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
    return {v.x / len, v.y / len, v.z / len};
}

double dot(const Vec &a, const Vec &b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

} // namespace

QImage renderSphere(double radius, const SphereView &view, const SphereSurface &surface)
{
    const int side = int(std::ceil(2 * radius)) + 2;
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);

    const double centre = side / 2.0;
    const double tilt = view.tiltDegrees * M_PI / 180.0;
    const double ct = std::cos(tilt), st = std::sin(tilt);
    // Light from the upper left, in front; y points up, z towards the viewer.
    const Vec light = normalised({-0.45, 0.6, 0.75});
    const Vec halfway = normalised({light.x, light.y, light.z + 1.0});
    const int n = std::max(1, view.samplesPerSide);
    const double weight = 1.0 / (n * n);

    for (int py = 0; py < side; ++py) {
        QRgb *row = reinterpret_cast<QRgb *>(image.scanLine(py));
        for (int px = 0; px < side; ++px) {
            double r = 0, g = 0, b = 0, a = 0;
            for (int sy = 0; sy < n; ++sy) {
                for (int sx = 0; sx < n; ++sx) {
                    const double x = (px + (sx + 0.5) / n - centre) / radius;
                    const double y = (centre - (py + (sy + 0.5) / n)) / radius;
                    const double d2 = x * x + y * y;
                    if (d2 >= 1.0)
                        continue;
                    const Vec normal{x, y, std::sqrt(1.0 - d2)};
                    // Undo the tilt to find the point on the ball itself.
                    const double by = ct * normal.y + st * normal.z;
                    const double bz = -st * normal.y + ct * normal.z;
                    double lon = std::atan2(normal.x, bz) * 180.0 / M_PI - view.spinDegrees;
                    lon = std::remainder(lon, 360.0);
                    const double lat = std::asin(std::clamp(by, -1.0, 1.0)) * 180.0 / M_PI;
                    const QColor c = surface(lon, lat);
                    const double alpha = c.alphaF();
                    if (alpha <= 0)
                        continue;
                    const double diffuse = std::max(0.0, dot(normal, light));
                    const double shade = 0.36 + 0.74 * diffuse;
                    double shine = std::max(0.0, dot(normal, halfway));
                    shine *= shine;  // raised to the 36th power: a small, sharp highlight
                    shine *= shine * shine;
                    shine *= shine;
                    shine *= shine * shine * 0.42;
                    r += alpha * std::min(1.0, c.redF() * shade + shine);
                    g += alpha * std::min(1.0, c.greenF() * shade + shine);
                    b += alpha * std::min(1.0, c.blueF() * shade + shine);
                    a += alpha;
                }
            }
            if (a <= 0)
                continue;
            auto byte = [weight](double v) {
                return std::clamp(int(std::lround(v * weight * 255.0)), 0, 255);
            };
            const int alphaByte = byte(a);
            row[px] = qRgba(std::min(byte(r), alphaByte), std::min(byte(g), alphaByte),
                            std::min(byte(b), alphaByte), alphaByte);
        }
    }
    return image;
}

void drawSphere(QPainter &p, QPointF centre, double radius, const SphereView &view,
                const SphereSurface &surface)
{
    const double enlarge = p.transform().m11();
    const QImage ball = renderSphere(radius * enlarge, view, surface);
    p.save();
    p.translate(centre);
    p.scale(1 / enlarge, 1 / enlarge);
    p.drawImage(-QPointF(ball.width() / 2.0, ball.height() / 2.0), ball);
    p.restore();
}
