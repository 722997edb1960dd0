#include "kit/parts/hundredsquare.h"
#include "kit/parts/partstyle.h"
#include "kit/parts/shapes.h"

#include <QtTest>
#include <cmath>

Q_DECLARE_METATYPE(ShapeKind)

namespace {
const QRectF kBox(12, 30, 330, 250); // wider than tall and away from the origin, so centring shows
constexpr int kSamplesAcross = 223; // an odd step and offset, so no sample lands on a cut
constexpr double kSampleOffset = 0.3183;
constexpr double kEdgeSlack = 0.5; // samples this near an edge are left out: a circle is a curve fit
constexpr double kAreaTolerance = 0.01;

// A part's area, and the middle of its area (inside it, as every part is convex).
QPointF middle(const QPainterPath& part, double* area = nullptr)
{
    const QPolygonF polygon = part.toFillPolygon();
    double twice = 0, x = 0, y = 0;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF a = polygon.at(i), b = polygon.at((i + 1) % polygon.size());
        const double cross = a.x() * b.y() - b.x() * a.y();
        twice += cross;
        x += (a.x() + b.x()) * cross;
        y += (a.y() + b.y()) * cross;
    }
    if (area)
        *area = std::abs(twice) / 2;
    return {x / (3 * twice), y / (3 * twice)};
}

int distinct(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    const auto same = [](double a, double b) { return b - a <= 1; };
    return int(std::unique(values.begin(), values.end(), same) - values.begin());
}
} // namespace

class TestShapes : public QObject {
    Q_OBJECT
private slots:
    void cutEqually_data()
    {
        QTest::addColumn<ShapeKind>("kind");
        QTest::addColumn<int>("parts");
        QTest::addColumn<int>("columns"); // how the middles line up; 0 where they do not
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

    void cutEqually()
    {
        QFETCH(ShapeKind, kind);
        QFETCH(int, parts);
        QFETCH(int, columns);
        QFETCH(int, rows);
        const QVector<QPainterPath> cut = shapeParts(kind, parts, kBox);
        QCOMPARE(cut.size(), parts);

        // The shape as large as the box allows, centred; the circle and the squares square.
        const QRectF frame = shapeOutline(kind, parts, kBox).boundingRect();
        const bool round = kind == ShapeKind::Circle;
        const double side = std::min(kBox.width(), kBox.height());
        QVERIFY(kBox.adjusted(-kEdgeSlack, -kEdgeSlack, kEdgeSlack, kEdgeSlack).contains(frame));
        QVERIFY(QLineF(frame.center(), kBox.center()).length() < kEdgeSlack);
        QVERIFY(std::abs(frame.width() - kBox.width()) < kEdgeSlack
                || std::abs(frame.height() - kBox.height()) < kEdgeSlack);
        if (round || shapeNoun(kind) == QLatin1String("square"))
            QVERIFY(std::abs(frame.width() - side) < kEdgeSlack && std::abs(frame.height() - side) < kEdgeSlack);
        const double radius = side / 2;
        const double share = (round ? M_PI * radius * radius : frame.width() * frame.height()) / parts;

        // Every point of the shape in exactly one part, no point outside in any.
        const double step = kBox.width() / kSamplesAcross;
        int overlaps = 0, gaps = 0, spills = 0;
        for (double y = kBox.top() + kSampleOffset; y < kBox.bottom(); y += step) {
            for (double x = kBox.left() + kSampleOffset; x < kBox.right(); x += step) {
                const double inside = round
                    ? radius - std::hypot(x - frame.center().x(), y - frame.center().y())
                    : std::min({x - frame.left(), frame.right() - x, y - frame.top(), frame.bottom() - y});
                if (std::abs(inside) < kEdgeSlack)
                    continue;
                const auto in = std::count_if(cut.cbegin(), cut.cend(),
                                              [&](const QPainterPath& p) { return p.contains({x, y}); });
                overlaps += in > 1;
                gaps += inside > 0 && in == 0;
                spills += inside < 0 && in > 0;
            }
        }
        QCOMPARE((QList<int>{overlaps, gaps, spills}), (QList<int>{0, 0, 0}));

        // Equal areas; sectors clockwise from 12 o'clock, other parts in rows from the top left.
        QVector<double> xs, ys;
        for (int i = 0; i < parts; ++i) {
            double area = 0;
            const QPointF m = middle(cut[i], &area), before = middle(cut[std::max(i - 1, 0)]);
            QVERIFY(std::abs(area - share) < kAreaTolerance * share);
            const double turn = std::atan2(m.x() - frame.center().x(), frame.center().y() - m.y()) / (2 * M_PI);
            if (round)
                QCOMPARE(int((turn < 0 ? turn + 1 : turn) * parts), i);
            else if (i > 0)
                QVERIFY2(m.y() > before.y() + 1 || (std::abs(m.y() - before.y()) <= 1 && m.x() > before.x()),
                         qPrintable(QString::number(i)));
            xs << m.x(), ys << m.y();
        }
        if (columns > 0) {
            QCOMPARE(distinct(xs), columns);
            QCOMPARE(distinct(ys), rows);
        }
    }

    void refusedCountsAndWords()
    {
        const QList<QPair<ShapeKind, int>> refused{
            {ShapeKind::Circle, 7}, {ShapeKind::Circle, 1}, {ShapeKind::SquareAcross, 4},
            {ShapeKind::SquareGrid, 2}, {ShapeKind::SquareTriangles, 8}, {ShapeKind::Strip, 1},
            {ShapeKind::Strip, 13}, {ShapeKind::TwoRowRectangle, 5}, {ShapeKind::TwoRowRectangle, 2}};
        for (const auto& [kind, parts] : refused)
            QVERIFY(!shapeAllows(kind, parts) && shapeParts(kind, parts, kBox).isEmpty()
                    && shapeOutline(kind, parts, kBox).isEmpty());
        QVERIFY(shapeParts(ShapeKind::SquareGrid, 4, QRectF()).isEmpty());
        QStringList nouns;
        for (ShapeKind kind : allShapeKinds())
            nouns << shapeNoun(kind);
        QCOMPARE(nouns.join(' '), QStringLiteral("circle square square square square square square strip rectangle"));
    }

    void hundredSquare_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<bool>("wholeColumns");
        QTest::addColumn<int>("shaded");
        QTest::newRow("37 squares") << 37 << false << 37;
        QTest::newRow("3 whole columns") << 3 << true << 30;
        QTest::newRow("none") << 0 << false << 0;
        QTest::newRow("too many") << 150 << false << 100;
        QTest::newRow("below none") << -4 << false << 0;
    }

    // Shaded down each column from the left.
    void hundredSquare()
    {
        QFETCH(int, count);
        QFETCH(bool, wholeColumns);
        QFETCH(int, shaded);
        HundredSquare square;
        constexpr int kPixels = 400;
        square.resize(kPixels, kPixels);
        square.setShaded(count, wholeColumns);
        QCOMPARE(square.accessibleName(), QStringLiteral("a hundred square with %1 small squares shaded").arg(shaded));
        const QImage drawn = square.grab().toImage();
        const double cell = double(kPixels) / HundredSquare::kSide;
        for (int column = 0; column < HundredSquare::kSide; ++column) {
            for (int row = 0; row < HundredSquare::kSide; ++row) {
                const bool expected = column * HundredSquare::kSide + row < shaded;
                QCOMPARE(square.isShaded(column, row), expected);
                QCOMPARE(drawn.pixelColor(int((column + 0.5) * cell), int((row + 0.5) * cell)),
                         expected ? PartStyle::kColoured : PartStyle::kBlank);
            }
        }
    }
};

QTEST_MAIN(TestShapes)
#include "tst_shapes.moc"
