// Reward picture: the Earth coloured in piece by piece, seen over the
// Atlantic. First the sea, then the continents, islands, ice, deserts,
// forests and mountains, then clouds, the air around it and the Moon.
// The coastlines are rough outlines in degrees of longitude and latitude,
// just enough for a child to know the shapes.
#include "canvas.h"
#include "rewardsets.h"
#include "sphere.h"

#include <QPainter>
#include <QPolygonF>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using Outline = std::vector<QPointF>;  // (longitude, latitude) pairs

const Outline kNorthAmerica = {
    {-166, 65}, {-158, 71}, {-140, 70}, {-125, 70}, {-110, 68}, {-95, 68}, {-85, 69},
    {-90, 64}, {-94, 60}, {-92, 57}, {-85, 55}, {-80, 52}, {-78, 56}, {-77, 60},
    {-74, 62}, {-64, 60}, {-60, 55}, {-56, 52}, {-60, 47}, {-65, 45}, {-70, 43},
    {-74, 40}, {-76, 37}, {-76, 35}, {-81, 31}, {-80, 26}, {-81, 25}, {-83, 28},
    {-85, 30}, {-89, 30}, {-94, 29.5}, {-97, 27}, {-97.5, 22}, {-96, 19}, {-94, 18},
    {-91, 19}, {-90, 21}, {-87, 21}, {-88, 16}, {-84, 15}, {-83, 11}, {-80, 9},
    {-77.5, 8}, {-79, 7}, {-82, 8}, {-86, 11}, {-88, 13}, {-92, 14.5}, {-96, 16},
    {-101, 17}, {-105, 20}, {-106, 23}, {-110, 27}, {-114, 30}, {-117, 32.5},
    {-121, 35}, {-124, 40}, {-124, 46}, {-125, 49}, {-130, 54}, {-135, 57}, {-140, 60},
    {-147, 61}, {-152, 59}, {-158, 57}, {-165, 60}};

const Outline kGreenland = {
    {-73, 78}, {-66, 81}, {-50, 82.5}, {-30, 83}, {-20, 81}, {-18, 76}, {-22, 71},
    {-30, 68}, {-40, 65}, {-44, 60}, {-48, 61}, {-52, 65}, {-54, 69}, {-58, 75}, {-68, 77}};

const Outline kSouthAmerica = {
    {-77, 8.5}, {-75, 11}, {-72, 12}, {-67, 10.5}, {-62, 10.5}, {-58, 7}, {-52, 5},
    {-50, 1}, {-48, -1}, {-44, -2.5}, {-39, -3.5}, {-35, -5.5}, {-35, -9}, {-37, -12},
    {-39, -15}, {-40, -20}, {-41.5, -22.5}, {-45, -23.5}, {-48, -26}, {-49, -29},
    {-52, -32}, {-54, -34.5}, {-57, -35}, {-57, -37}, {-62, -39}, {-62, -41}, {-65, -42},
    {-64, -45}, {-67, -46}, {-66, -48}, {-68.5, -50}, {-68, -53}, {-70, -55}, {-74, -52},
    {-75, -48}, {-74, -44}, {-73, -38}, {-71.5, -32}, {-71, -27}, {-70, -20}, {-71, -18},
    {-75, -15}, {-77, -12}, {-79, -8}, {-81, -5}, {-80.5, -2}, {-80, 0.5}, {-78.5, 2},
    {-77.5, 4}, {-77.5, 7}};

const Outline kEurope = {
    {-5.6, 36}, {-9, 37}, {-9, 43.5}, {-1.5, 43.4}, {-1.2, 46}, {-4.5, 48}, {-1.5, 49.5},
    {1.5, 50.8}, {4, 51.5}, {5, 53.2}, {8.5, 53.8}, {8.2, 56.5}, {10.5, 57.6}, {10.5, 54.5},
    {13, 54.3}, {18, 54.7}, {21, 55.2}, {21, 57}, {24, 57.5}, {24, 59.5}, {29, 60},
    {23, 60.2}, {21.5, 61}, {21.5, 63.5}, {25, 65}, {22, 65.8}, {18, 63}, {17, 61},
    {18.5, 60}, {16.5, 57}, {16, 56}, {13, 55.5}, {11, 58.5}, {8, 58}, {5, 58.5}, {5, 62},
    {8, 63.5}, {13, 66.5}, {17, 68.5}, {21, 70}, {28, 71}, {33, 69.5}, {40, 67.5},
    {44, 68.5}, {53, 68.5}, {62, 69.5}, {62, 40}, {55, 38}, {48, 37.5}, {44, 37},
    {36, 36.5}, {30, 36.3}, {27, 37}, {26.5, 40}, {23, 40.5}, {23, 37}, {21.5, 37},
    {20, 40}, {19.5, 42}, {16, 43.5}, {13.5, 45.5}, {12.3, 44.5}, {14, 42}, {15.8, 40},
    {16, 38}, {15.7, 40}, {12, 41.8}, {10.5, 43}, {9, 44.2}, {7.5, 43.8}, {4, 43.4},
    {3, 42}, {0.5, 40.5}, {-0.5, 38.5}, {-2, 36.8}};

const Outline kBlackSea = {
    {28, 41.3}, {29, 44.8}, {30.5, 46.5}, {33.5, 46}, {36, 45.3}, {38, 47}, {39.5, 46.5},
    {37.5, 44.6}, {40, 43.5}, {41.6, 41.6}, {36, 41.7}, {31, 41.1}};

const Outline kCaspianSea = {
    {47, 44.5}, {49, 46.5}, {53, 47}, {54, 42}, {53, 37}, {50, 37}, {49, 38.5},
    {50, 40.5}, {48, 42}};

const Outline kAfrica = {
    {-17, 21}, {-16, 24}, {-13, 27}, {-10, 29.5}, {-9.5, 32}, {-6, 35.8}, {-2, 35},
    {3, 36.8}, {10, 37.2}, {11, 35}, {10, 33.5}, {15, 32}, {20, 30.5}, {20, 32.5},
    {25, 32}, {29, 31}, {32, 31.3}, {34, 28}, {35.5, 24}, {37, 21}, {38.5, 18},
    {40, 15.5}, {43, 12.5}, {43.5, 11.5}, {51, 11.8}, {51, 10}, {49, 6}, {46, 2},
    {43, -1}, {40, -3}, {39, -6}, {39.5, -10}, {40.5, -15}, {37, -18}, {35, -22},
    {33, -26}, {32.5, -28.5}, {30, -31}, {27, -33.5}, {22, -34}, {18.5, -34.2},
    {18, -31}, {17, -28.5}, {15, -26.5}, {14.5, -22}, {12, -17}, {12, -13}, {13.5, -10},
    {12, -5}, {9, -1}, {9.5, 3.5}, {8, 4.5}, {5, 6}, {1, 6}, {-2, 4.8}, {-5, 5}, {-8, 4.5},
    {-11, 6.5}, {-13, 8.5}, {-15, 11}, {-17, 14.5}, {-16.5, 17}, {-16, 19.5}};

const Outline kArabia = {
    {36, 36.6}, {35.5, 33.5}, {34.5, 31.5}, {34.8, 29.5}, {36.5, 27}, {38.5, 23.5},
    {40, 20.5}, {42.5, 16.5}, {43.2, 13}, {45, 12.8}, {48.5, 14}, {52, 15.8}, {55, 17.5},
    {57.5, 19}, {59.5, 22.5}, {56.5, 24.5}, {56, 26.2}, {52, 24}, {51, 26}, {50, 26.8},
    {48.5, 28.5}, {48, 30}, {50, 30}, {52, 28}, {57, 27}, {61, 25}, {62, 30}, {60, 36},
    {55, 38}, {50, 37}, {44, 37.2}, {40, 37}};

const std::vector<Outline> kIslands = {
    // Great Britain, Ireland, Iceland, Cuba, Hispaniola, Madagascar, Baffin, Ellesmere.
    {{-5.7, 50}, {-3, 50.6}, {1.4, 51.2}, {1.7, 52.7}, {0.2, 53.5}, {-1.6, 55.6}, {-2, 57},
     {-1.8, 57.6}, {-4, 57.6}, {-3, 58.6}, {-5, 58.6}, {-6.2, 57.5}, {-5.6, 56},
     {-4.8, 54.8}, {-3.2, 54.5}, {-3, 53.4}, {-4.5, 53.2}, {-4.6, 52.5}, {-5.2, 51.7},
     {-3, 51.5}},
    {{-6, 52.2}, {-6.2, 53.8}, {-6.2, 55.2}, {-8, 55.3}, {-8.5, 54.4}, {-10, 54},
     {-9.5, 53.2}, {-10, 52}, {-8.5, 51.6}},
    {{-24, 65.5}, {-22, 66.4}, {-18, 66.2}, {-14.5, 66.2}, {-13.5, 65}, {-15, 64.3},
     {-18, 63.4}, {-21, 63.8}, {-22.5, 64.2}},
    {{-85, 21.9}, {-82, 23.1}, {-77, 22}, {-74.2, 20.2}, {-77.5, 19.8}, {-80, 21.7},
     {-84.5, 21.5}},
    {{-74.5, 19.8}, {-72, 19.9}, {-68.5, 18.6}, {-70, 18.2}, {-74.3, 18.3}},
    {{44, -25}, {47, -25}, {49.5, -15.5}, {49.2, -12}, {47.5, -14}, {44.5, -16}, {43.5, -21}},
    {{-80, 73}, {-68, 70}, {-62, 66}, {-66, 62}, {-72, 64}, {-78, 65}, {-85, 70}},
    {{-90, 80}, {-70, 83}, {-62, 81}, {-75, 78}, {-90, 77}},
};

const Outline kSahara = {
    {-17, 21}, {-13, 27}, {-8, 30}, {0, 32.5}, {10, 32}, {20, 29.5}, {30, 30.5}, {33, 27},
    {37, 21}, {36, 16}, {30, 15}, {20, 15}, {10, 16}, {0, 15}, {-10, 16}, {-17, 17}};
const Outline kKalahari = {{15, -19}, {24, -18}, {27, -24}, {24, -29}, {17, -29}, {14, -24}};
const Outline kAmazon = {
    {-79, -2}, {-75, 3}, {-68, 4}, {-60, 5}, {-52, 3}, {-50, 0}, {-46, -3}, {-48, -8},
    {-55, -12}, {-62, -14}, {-70, -12}, {-76, -8}};
const Outline kCongo = {
    {9, 4}, {18, 5}, {28, 4}, {30, 0}, {29, -5}, {24, -9}, {15, -6}, {10, -2}};
const Outline kNorthernForest = {
    {-160, 66}, {-130, 67}, {-110, 64}, {-95, 58}, {-85, 52}, {-75, 52}, {-62, 52},
    {-70, 47}, {-85, 47}, {-100, 52}, {-120, 56}, {-145, 60}};
const Outline kRockies = {
    {-150, 66}, {-135, 66}, {-125, 60}, {-118, 52}, {-110, 45}, {-106, 38}, {-104, 32},
    {-108, 30}, {-115, 35}, {-120, 42}, {-125, 50}, {-135, 58}, {-150, 62}};
const Outline kAndes = {
    {-78, 8}, {-74, 6}, {-73, -2}, {-75, -10}, {-70, -16}, {-67, -22}, {-69, -30},
    {-70, -40}, {-72, -50}, {-74, -50}, {-73, -40}, {-72, -30}, {-71, -20}, {-76, -14},
    {-80, -6}, {-79, 0}, {-77, 5}};
const Outline kAlps = {{6, 44}, {10, 46}, {14, 46.5}, {16, 47.5}, {12, 48}, {7, 47}, {5.5, 45.5}};
const Outline kAtlas = {{-9, 30}, {-5, 33}, {0, 34.5}, {8, 36.5}, {10, 35.5}, {2, 33.5}, {-4, 31}, {-8, 29}};

struct Shape
{
    Outline points;
    QRectF bounds;

    explicit Shape(const Outline &outline) : points(outline)
    {
        bounds = QPolygonF(QVector<QPointF>(outline.begin(), outline.end())).boundingRect();
    }

    bool contains(double lon, double lat) const
    {
        if (!bounds.contains(lon, lat))
            return false;
        bool inside = false;
        for (std::size_t i = 0, j = points.size() - 1; i < points.size(); j = i++) {
            const QPointF &a = points[i], &b = points[j];
            if ((a.y() > lat) != (b.y() > lat)
                && lon < (b.x() - a.x()) * (lat - a.y()) / (b.y() - a.y()) + a.x())
                inside = !inside;
        }
        return inside;
    }
};

// A piece of colouring in: the step it appears at, its shapes, its colour,
// and the land it must lie on (for deserts, forests and mountains).
struct Piece
{
    int step;
    std::vector<Shape> shapes;
    QColor colour;
    std::vector<Shape> onLand;
};

struct Cloud
{
    int step;
    std::vector<QPointF> puffs;  // centres in degrees
    std::vector<double> sizes;   // radii in degrees
};

const QColor kSea(34, 112, 206);
const QColor kLand(92, 176, 72);
const QColor kSand(226, 196, 120);
const QColor kIce(240, 248, 252);
const QColor kForest(14, 92, 36);
const QColor kRock(150, 112, 74);

std::vector<Piece> makePieces()
{
    const Shape northAmerica(kNorthAmerica), southAmerica(kSouthAmerica), europe(kEurope),
        africa(kAfrica);
    std::vector<Shape> islands;
    for (const Outline &o : kIslands)
        islands.emplace_back(o);
    std::vector<Piece> pieces = {
        {2, {northAmerica}, kLand, {}},
        {3, {Shape(kGreenland)}, kIce, {}},
        {4, {southAmerica}, kLand, {}},
        {5, {europe}, kLand, {}},
        {5, {Shape(kBlackSea), Shape(kCaspianSea)}, kSea, {}},
        {6, {africa}, kLand, {}},
        {7, {Shape(kArabia)}, QColor(214, 176, 104), {}},
        {8, islands, kLand, {}},
        {10, {Shape(kSahara), Shape(kKalahari)}, kSand, {africa}},
        {11, {Shape(kAmazon), Shape(kCongo)}, kForest, {southAmerica, africa}},
        {12, {Shape(kNorthernForest)}, QColor(50, 130, 60), {northAmerica}},
        {12, {Shape(kRockies)}, kRock, {northAmerica}},
        {13, {Shape(kAndes), Shape(kAlps), Shape(kAtlas)}, kRock, {southAmerica, europe, africa}},
    };
    return pieces;
}

std::vector<Cloud> makeClouds()
{
    // Each cloud is a row of puffs drifting along a wavy line.
    const struct
    {
        double lon, lat, dLon, dLat;
        int puffs;
    } rows[] = {
        {-60, 38, 4.5, 3, 7}, {-44, 6, 5, -0.5, 8}, {-42, -28, 4.5, -2.5, 6},
        {-10, 50, 4.5, 2, 6}, {-104, 22, 4.5, 3.5, 5},
    };
    std::vector<Cloud> clouds;
    Rng rng(4091);
    int step = 14;
    for (const auto &row : rows) {
        Cloud cloud{step++, {}, {}};
        for (int i = 0; i < row.puffs; ++i) {
            cloud.puffs.emplace_back(row.lon + i * row.dLon + rng.range(-2, 2),
                                     row.lat + i * row.dLat + rng.range(-3, 3));
            cloud.sizes.push_back(rng.range(5, 9));
        }
        clouds.push_back(cloud);
    }
    return clouds;
}

bool insideAny(const std::vector<Shape> &shapes, double lon, double lat)
{
    return std::any_of(shapes.begin(), shapes.end(),
                       [&](const Shape &s) { return s.contains(lon, lat); });
}

} // namespace

void drawEarth(QPainter &p, const QRectF &area, int step)
{
    // Stars in the night sky around it are there from the start.
    Rng rng(733);
    p.setPen(Qt::NoPen);
    for (int i = 0; i < 40; ++i) {
        p.setBrush(QColor(255, 255, 230, int(rng.range(90, 220))));
        const double r = rng.range(0.6, 1.6);
        p.drawEllipse(QPointF(area.left() + rng.range(-8, area.width() + 8),
                              area.top() + rng.range(-8, area.height() + 8)),
                      r, r);
    }

    const double radius = 96;
    const QPointF centre = area.center() + QPointF(-14, 0);
    if (step < 1) {
        p.setBrush(QColor(255, 255, 255, 25));
        p.setPen(QPen(QColor(200, 220, 255, 200), 2, Qt::DashLine));
        p.drawEllipse(centre, radius, radius);
        return;
    }
    if (step >= 19) {  // the thin blue air around the Earth
        QRadialGradient air(centre, radius * 1.14);
        air.setColorAt(radius / (radius * 1.14) - 0.02, QColor(140, 200, 255, 190));
        air.setColorAt(1, QColor(140, 200, 255, 0));
        p.setBrush(air);
        p.drawEllipse(centre, radius * 1.14, radius * 1.14);
    }

    static const std::vector<Piece> pieces = makePieces();
    static const std::vector<Cloud> clouds = makeClouds();
    auto surface = [step](double lon, double lat) {
        QColor colour = kSea;
        for (const Piece &piece : pieces) {
            if (piece.step > step || !insideAny(piece.shapes, lon, lat))
                continue;
            if (!piece.onLand.empty() && !insideAny(piece.onLand, lon, lat))
                continue;
            colour = piece.colour;
        }
        if (step >= 9 && lat > 78 + 3 * std::sin(lon * 3 * M_PI / 180.0))
            colour = kIce;
        double cover = 0;
        for (const Cloud &cloud : clouds) {
            if (cloud.step > step)
                continue;
            for (std::size_t i = 0; i < cloud.puffs.size(); ++i) {
                const double dLon = (lon - cloud.puffs[i].x()) * std::cos(lat * M_PI / 180.0);
                const double dLat = lat - cloud.puffs[i].y();
                const double d = std::sqrt(dLon * dLon + dLat * dLat) / cloud.sizes[i];
                cover += 0.55 * std::clamp((1.0 - d) * 1.6, 0.0, 1.0);
            }
        }
        return mixColours(colour, Qt::white, std::min(cover, 0.92));
    };
    SphereView view;
    view.tiltDegrees = 22;
    view.spinDegrees = 30;  // the Atlantic faces us
    view.samplesPerSide = 3;
    drawSphere(p, centre, radius, view, surface);

    if (step >= 20) {  // and the Moon keeps it company
        const QPointF moon(area.right() - 24, area.top() + 26);
        QRadialGradient grey(moon, 20, moon - QPointF(6, 6));
        grey.setColorAt(0, QColor(250, 250, 245));
        grey.setColorAt(1, QColor(170, 172, 178));
        p.setBrush(grey);
        p.setPen(Qt::NoPen);
        p.drawEllipse(moon, 20, 20);
        p.setBrush(QColor(150, 150, 158, 150));
        p.drawEllipse(moon + QPointF(5, 4), 5, 5);
        p.drawEllipse(moon + QPointF(-7, 7), 3, 3);
        p.drawEllipse(moon + QPointF(-3, -9), 3.5, 3.5);
    }
}
