#pragma once
// Measuring a cut part: its area and the middle of its area (inside it, as
// every part is convex), from the polygon Qt fills it with.
#include <QPainterPath>
#include <QPolygonF>
#include <cmath>

namespace ShapeMeasure {

// Twice the signed area, and the sums the middle is made from.
struct Moments {
    double twiceArea = 0, x = 0, y = 0;
};

inline Moments moments(const QPainterPath& part)
{
    const QPolygonF polygon = part.toFillPolygon();
    Moments m;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF a = polygon.at(i);
        const QPointF b = polygon.at((i + 1) % polygon.size());
        const double cross = a.x() * b.y() - b.x() * a.y();
        m.twiceArea += cross;
        m.x += (a.x() + b.x()) * cross;
        m.y += (a.y() + b.y()) * cross;
    }
    return m;
}

inline double area(const QPainterPath& part)
{
    return std::abs(moments(part).twiceArea) / 2;
}

inline QPointF middle(const QPainterPath& part)
{
    const Moments m = moments(part);
    return {m.x / (3 * m.twiceArea), m.y / (3 * m.twiceArea)};
}

} // namespace ShapeMeasure
