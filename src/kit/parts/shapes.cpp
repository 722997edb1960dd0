#include "shapes.h"

#include <QPolygonF>
#include <algorithm>

namespace {

constexpr double kFullTurn = 360.0;
constexpr double kTwelveOClock = 90.0; // QPainterPath's angles start at 3 o'clock, anticlockwise
constexpr int kHalves = 2;
constexpr int kQuarters = 4;
constexpr int kRows = 2;
constexpr int kFewestStripPieces = 2;
constexpr int kMostStripPieces = 12;

// A strip is a long bar: four times as long as it is tall.
constexpr double kStripLengthToHeight = 4.0;

// The rectangle's pieces are a little wider than tall, like squares of a
// chocolate bar: with c columns it is (c + 1) wide for every 2 tall.
double rectangleWidthToHeight(int columns)
{
    return (columns + 1) / double(kRows);
}

// The largest rectangle of the given width:height that fits box, centred.
QRectF centredFit(const QRectF& box, double widthToHeight)
{
    const double width = std::min(box.width(), box.height() * widthToHeight);
    QRectF frame(0, 0, width, width / widthToHeight);
    frame.moveCenter(box.center());
    return frame;
}

QRectF centredSquare(const QRectF& box)
{
    return centredFit(box, 1.0);
}

// The frame the whole shape fills.
QRectF shapeFrame(ShapeKind kind, int parts, const QRectF& box)
{
    switch (kind) {
    case ShapeKind::Strip:
        return centredFit(box, kStripLengthToHeight);
    case ShapeKind::TwoRowRectangle:
        return centredFit(box, rectangleWidthToHeight(parts / kRows));
    default:
        return centredSquare(box);
    }
}

QPainterPath polygonPath(const QPolygonF& corners)
{
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    return path;
}

// The frame cut into columns x rows equal rectangles, row by row.
QVector<QPainterPath> grid(const QRectF& frame, int columns, int rows)
{
    QVector<QPainterPath> parts;
    const double width = frame.width() / columns;
    const double height = frame.height() / rows;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            QPainterPath piece;
            // Edges from the frame's own numbers, so neighbours share them exactly.
            const double left = frame.left() + column * width;
            const double top = frame.top() + row * height;
            const double right = column + 1 == columns ? frame.right() : left + width;
            const double bottom = row + 1 == rows ? frame.bottom() : top + height;
            piece.addRect(QRectF(QPointF(left, top), QPointF(right, bottom)));
            parts << piece;
        }
    }
    return parts;
}

QVector<QPainterPath> sectors(const QRectF& frame, int parts)
{
    QVector<QPainterPath> result;
    const double sweep = kFullTurn / parts;
    for (int i = 0; i < parts; ++i) {
        QPainterPath sector(frame.center());
        sector.arcTo(frame, kTwelveOClock - i * sweep, -sweep);
        sector.closeSubpath();
        result << sector;
    }
    return result;
}

QVector<QPainterPath> diagonalHalves(const QRectF& frame)
{
    // Cut from the top right corner to the bottom left: the top left
    // triangle is first to read.
    return {polygonPath({frame.topLeft(), frame.topRight(), frame.bottomLeft()}),
            polygonPath({frame.topRight(), frame.bottomRight(), frame.bottomLeft()})};
}

QVector<QPainterPath> centreTriangles(const QRectF& frame)
{
    const QPointF centre = frame.center();
    return {polygonPath({frame.topLeft(), frame.topRight(), centre}),
            polygonPath({frame.topLeft(), centre, frame.bottomLeft()}),
            polygonPath({frame.topRight(), frame.bottomRight(), centre}),
            polygonPath({frame.bottomLeft(), centre, frame.bottomRight()})};
}

} // namespace

QVector<ShapeKind> allShapeKinds()
{
    return {ShapeKind::Circle, ShapeKind::SquareAcross, ShapeKind::SquareDown,
            ShapeKind::SquareCorners, ShapeKind::SquareGrid, ShapeKind::SquareStrips,
            ShapeKind::SquareTriangles, ShapeKind::Strip, ShapeKind::TwoRowRectangle};
}

QVector<int> shapePartCounts(ShapeKind kind)
{
    switch (kind) {
    case ShapeKind::Circle:
        return {2, 3, 4, 5, 6, 8, 10, 12};
    case ShapeKind::SquareAcross:
    case ShapeKind::SquareDown:
    case ShapeKind::SquareCorners:
        return {kHalves};
    case ShapeKind::SquareGrid:
    case ShapeKind::SquareStrips:
    case ShapeKind::SquareTriangles:
        return {kQuarters};
    case ShapeKind::Strip: {
        QVector<int> counts;
        for (int n = kFewestStripPieces; n <= kMostStripPieces; ++n)
            counts << n;
        return counts;
    }
    case ShapeKind::TwoRowRectangle:
        return {4, 6, 8, 10, 12};
    }
    return {};
}

bool shapeAllows(ShapeKind kind, int parts)
{
    return shapePartCounts(kind).contains(parts);
}

QVector<QPainterPath> shapeParts(ShapeKind kind, int parts, const QRectF& box)
{
    if (!shapeAllows(kind, parts) || box.isEmpty())
        return {};
    const QRectF frame = shapeFrame(kind, parts, box);
    switch (kind) {
    case ShapeKind::Circle:
        return sectors(frame, parts);
    case ShapeKind::SquareAcross:
        return grid(frame, 1, kHalves);
    case ShapeKind::SquareDown:
        return grid(frame, kHalves, 1);
    case ShapeKind::SquareCorners:
        return diagonalHalves(frame);
    case ShapeKind::SquareGrid:
        return grid(frame, kQuarters / kRows, kRows);
    case ShapeKind::SquareStrips:
        return grid(frame, kQuarters, 1);
    case ShapeKind::SquareTriangles:
        return centreTriangles(frame);
    case ShapeKind::Strip:
        return grid(frame, parts, 1);
    case ShapeKind::TwoRowRectangle:
        return grid(frame, parts / kRows, kRows);
    }
    return {};
}

QPainterPath shapeOutline(ShapeKind kind, int parts, const QRectF& box)
{
    QPainterPath outline;
    if (!shapeAllows(kind, parts) || box.isEmpty())
        return outline;
    const QRectF frame = shapeFrame(kind, parts, box);
    if (kind == ShapeKind::Circle)
        outline.addEllipse(frame);
    else
        outline.addRect(frame);
    return outline;
}
