// Shapes cut into equal parts: every kind at every count it allows gives
// parts of equal area that do not overlap and together fill the shape, in
// reading order; and the hundred square shades column by column.
#include "kit/parts/hundredsquare.h"
#include "kit/parts/partstyle.h"
#include "kit/parts/shapes.h"
#include "shapemeasure.h"

#include <QtTest>
#include <cmath>

Q_DECLARE_METATYPE(ShapeKind)

namespace {

// A box wider than tall and away from the origin, so centring shows.
const QRectF kBox(12, 30, 330, 250);
// Sample points: an odd step and offset, so no point lands on a cut.
constexpr int kSamplesAcross = 223;
constexpr double kSampleOffset = 0.3183;
// Points this close to the shape's edge are left out: the circle's sectors
// and its outline are each only a close curve fit.
constexpr double kEdgeSlack = 0.5;
constexpr double kAreaTolerance = 0.01;

int distinct(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    int count = 0;
    for (int i = 0; i < values.size(); ++i)
        if (i == 0 || values.at(i) - values.at(i - 1) > 1)
            ++count;
    return count;
}

} // namespace

class TestShapes : public QObject {
    Q_OBJECT
private slots:
    void cutEqually_data();
    void cutEqually();
    void refusedCountsAndWords();
    void hundredSquare_data();
    void hundredSquare();
};

void TestShapes::cutEqually_data()
{
    QTest::addColumn<ShapeKind>("kind");
    QTest::addColumn<int>("parts");
    QTest::addColumn<int>("columns"); // how the pieces line up; 0 where they do not
    QTest::addColumn<int>("rows");
    const auto add = [](const char* name, ShapeKind kind, int parts, int columns, int rows) {
        QTest::addRow("%s %d", name, parts) << kind << parts << columns << rows;
    };
    for (int n : shapePartCounts(ShapeKind::Circle))
        add("circle", ShapeKind::Circle, n, 0, 0);
    add("square across", ShapeKind::SquareAcross, 2, 1, 2);
    add("square down", ShapeKind::SquareDown, 2, 2, 1);
    add("square corners", ShapeKind::SquareCorners, 2, 0, 0);
    add("square grid", ShapeKind::SquareGrid, 4, 2, 2);
    add("square strips", ShapeKind::SquareStrips, 4, 4, 1);
    add("square triangles", ShapeKind::SquareTriangles, 4, 0, 0);
    for (int n = 2; n <= 12; ++n)
        add("strip", ShapeKind::Strip, n, n, 1);
    for (int n = 4; n <= 12; n += 2)
        add("rectangle", ShapeKind::TwoRowRectangle, n, n / 2, 2);
}

void TestShapes::cutEqually()
{
    QFETCH(ShapeKind, kind);
    QFETCH(int, parts);
    QFETCH(int, columns);
    QFETCH(int, rows);

    const QVector<QPainterPath> cut = shapeParts(kind, parts, kBox);
    QCOMPARE(cut.size(), parts);

    // The whole shape, worked out here from the box alone where it can be.
    QRectF frame;
    for (const QPainterPath& part : cut)
        frame = frame.united(part.boundingRect());
    const double side = std::min(kBox.width(), kBox.height());
    const bool round = kind == ShapeKind::Circle;
    const bool square = round || shapeNoun(kind) == QLatin1String("square");
    QVERIFY(kBox.adjusted(-kEdgeSlack, -kEdgeSlack, kEdgeSlack, kEdgeSlack).contains(frame));
    QVERIFY(std::abs(frame.center().x() - kBox.center().x()) < kEdgeSlack);
    QVERIFY(std::abs(frame.center().y() - kBox.center().y()) < kEdgeSlack);
    // As large as the box lets it be: it reaches across or down.
    QVERIFY(std::abs(frame.width() - kBox.width()) < kEdgeSlack
            || std::abs(frame.height() - kBox.height()) < kEdgeSlack);
    if (square) {
        QVERIFY(std::abs(frame.width() - side) < kEdgeSlack);
        QVERIFY(std::abs(frame.height() - side) < kEdgeSlack);
    }
    const double radius = side / 2;
    const double whole = round ? M_PI * radius * radius : frame.width() * frame.height();

    // Equal areas that add up to the whole.
    double total = 0;
    QVector<QPointF> middles;
    for (const QPainterPath& part : cut) {
        const double area = ShapeMeasure::area(part);
        QVERIFY2(std::abs(area - whole / parts) < kAreaTolerance * whole / parts,
                 qPrintable(QStringLiteral("part %1 has %2 of %3").arg(middles.size()).arg(area).arg(whole / parts)));
        total += area;
        middles << ShapeMeasure::middle(part);
    }
    QVERIFY(std::abs(total - whole) < kAreaTolerance * whole);

    // Every point of the shape in exactly one part, no point outside in any.
    const double step = kBox.width() / kSamplesAcross;
    int overlaps = 0, gaps = 0, spills = 0;
    for (double y = kBox.top() + kSampleOffset; y < kBox.bottom(); y += step) {
        for (double x = kBox.left() + kSampleOffset; x < kBox.right(); x += step) {
            const QPointF p(x, y);
            double inside; // how far inside the shape's edge (negative: outside)
            if (round)
                inside = radius - std::hypot(x - frame.center().x(), y - frame.center().y());
            else
                inside = std::min({x - frame.left(), frame.right() - x, y - frame.top(), frame.bottom() - y});
            if (std::abs(inside) < kEdgeSlack)
                continue;
            const int in = int(std::count_if(cut.cbegin(), cut.cend(),
                                             [&](const QPainterPath& part) { return part.contains(p); }));
            overlaps += in > 1;
            gaps += inside > 0 && in == 0;
            spills += inside < 0 && in > 0;
        }
    }
    QCOMPARE(overlaps, 0);
    QCOMPARE(gaps, 0);
    QCOMPARE(spills, 0);

    // Reading order: sectors clockwise from 12 o'clock; other parts left to
    // right along a row, rows from the top.
    for (int i = 0; i < parts; ++i) {
        const QPointF m = middles.at(i);
        if (round) {
            // Clockwise from 12 o'clock, in turns; y grows downwards.
            double turn = std::atan2(m.x() - frame.center().x(), frame.center().y() - m.y()) / (2 * M_PI);
            if (turn < 0)
                turn += 1;
            QCOMPARE(int(turn * parts), i);
        } else if (i > 0) {
            const QPointF before = middles.at(i - 1);
            QVERIFY2(m.y() > before.y() + 1 || (std::abs(m.y() - before.y()) <= 1 && m.x() > before.x()),
                     qPrintable(QStringLiteral("part %1 is out of reading order").arg(i)));
        }
    }
    if (columns > 0) {
        QVector<double> xs, ys;
        for (const QPointF& m : std::as_const(middles)) {
            xs << m.x();
            ys << m.y();
        }
        QCOMPARE(distinct(xs), columns);
        QCOMPARE(distinct(ys), rows);
    }
}

void TestShapes::refusedCountsAndWords()
{
    const QList<QPair<ShapeKind, int>> refused{
        {ShapeKind::Circle, 7}, {ShapeKind::Circle, 1}, {ShapeKind::SquareAcross, 4},
        {ShapeKind::SquareGrid, 2}, {ShapeKind::SquareTriangles, 8}, {ShapeKind::Strip, 1},
        {ShapeKind::Strip, 13}, {ShapeKind::TwoRowRectangle, 5}, {ShapeKind::TwoRowRectangle, 2}};
    for (const auto& [kind, parts] : refused) {
        QVERIFY(!shapeAllows(kind, parts));
        QVERIFY(shapeParts(kind, parts, kBox).isEmpty());
        QVERIFY(shapeOutline(kind, parts, kBox).isEmpty());
    }
    QVERIFY(shapeParts(ShapeKind::SquareGrid, 4, QRectF()).isEmpty());

    QStringList nouns;
    for (ShapeKind kind : allShapeKinds())
        nouns << shapeNoun(kind);
    QCOMPARE(nouns, QStringList({"circle", "square", "square", "square", "square", "square",
                                 "square", "strip", "rectangle"}));
}

void TestShapes::hundredSquare_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("wholeColumns");
    QTest::addColumn<int>("shaded");
    QTest::newRow("37 squares") << 37 << false << 37;
    QTest::newRow("one square") << 1 << false << 1;
    QTest::newRow("a tenth as squares") << 10 << false << 10;
    QTest::newRow("3 whole columns") << 3 << true << 30;
    QTest::newRow("9 whole columns") << 9 << true << 90;
    QTest::newRow("99 squares") << 99 << false << 99;
    QTest::newRow("none") << 0 << false << 0;
    QTest::newRow("too many") << 150 << false << 100;
    QTest::newRow("too many columns") << 11 << true << 100;
    QTest::newRow("below none") << -4 << false << 0;
}

void TestShapes::hundredSquare()
{
    QFETCH(int, count);
    QFETCH(bool, wholeColumns);
    QFETCH(int, shaded);

    HundredSquare square;
    square.setObjectName(QStringLiteral("hundredSquare"));
    constexpr int kPixels = 400;
    square.resize(kPixels, kPixels);
    square.setShaded(count, wholeColumns);
    QCOMPARE(square.shadedCount(), shaded);
    QCOMPARE(square.accessibleName(),
             QStringLiteral("a hundred square with %1 small squares shaded").arg(shaded));

    // What is drawn: the middle of each small square is orange exactly for
    // the first `shaded` squares, counted down each column from the left.
    const QImage drawn = square.grab().toImage();
    const double cell = double(kPixels) / HundredSquare::kSide;
    int orange = 0;
    for (int column = 0; column < HundredSquare::kSide; ++column) {
        for (int row = 0; row < HundredSquare::kSide; ++row) {
            const bool expected = column * HundredSquare::kSide + row < shaded;
            QCOMPARE(square.isShaded(column, row), expected);
            const QColor middle = drawn.pixelColor(int((column + 0.5) * cell), int((row + 0.5) * cell));
            QCOMPARE(middle, expected ? PartStyle::kColoured : PartStyle::kBlank);
            orange += middle == PartStyle::kColoured;
        }
    }
    QCOMPARE(orange, shaded);
}

QTEST_MAIN(TestShapes)
#include "tst_shapes.moc"
