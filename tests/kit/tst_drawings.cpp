// The shared drawings: where the pictures, boxes, bricks and pins fall at
// any size, what text is written where, what is shaded, and what a screen
// reader hears.
#include "kit/parts/barmodel.h"
#include "kit/parts/drawingstyle.h"
#include "kit/parts/fractionwall.h"
#include "kit/parts/numberline.h"
#include "kit/parts/picturerows.h"
#include "paintrecorder.h"
#include "runtime/pictures.h"

#include <QLocale>
#include <QtTest>
#include <algorithm>

namespace {
constexpr double kTiny = 0.01;
constexpr int kColourSlack = 16; // per channel, for the antialiased edges

bool overlap(const QRectF& a, const QRectF& b)
{
    const QRectF both = a.intersected(b);
    return both.width() > kTiny && both.height() > kTiny;
}

bool holds(const QRectF& outer, const QRectF& inner)
{
    return inner.left() >= outer.left() - kTiny && inner.top() >= outer.top() - kTiny
        && inner.right() <= outer.right() + kTiny && inner.bottom() <= outer.bottom() + kTiny;
}

bool near(const QColor& a, const QColor& b)
{
    return std::abs(a.red() - b.red()) <= kColourSlack && std::abs(a.green() - b.green()) <= kColourSlack
        && std::abs(a.blue() - b.blue()) <= kColourSlack;
}

QColor pixel(QWidget& widget, const QPointF& at)
{
    return widget.grab().toImage().pixelColor(at.toPoint());
}
} // namespace

class TstDrawings : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { Pictures::setAssetFolder(QStringLiteral(PARTITUDE_TEST_ASSETS)); }

    void pictureRows_data();
    void pictureRows();
    void barModel_data();
    void barModel();
    void fractionWall_data();
    void fractionWall();
    void numberLine_data();
    void numberLine();
};

void TstDrawings::pictureRows_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("groups"); // 0: in rows
    QTest::addColumn<int>("shaded");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("heard");
    QTest::newRow("1 picture") << 1 << 0 << 0 << QSize(300, 200) << "1 duck";
    QTest::newRow("7 in rows of 5 and 2") << 7 << 0 << 0 << QSize(420, 260) << "7 ducks";
    QTest::newRow("20 in a tall box") << 20 << 0 << 0 << QSize(200, 500) << "20 ducks";
    QTest::newRow("more than 20") << 25 << 0 << 0 << QSize(420, 260) << "20 ducks";
    QTest::newRow("unequal groups stay in rows") << 12 << 5 << 2 << QSize(420, 260) << "12 ducks";
    QTest::newRow("12 in 4 groups, 3 marked") << 12 << 4 << 3 << QSize(420, 260)
                                              << "12 ducks in 4 groups of 3, 3 groups marked";
    QTest::newRow("12 in 2 groups, none marked") << 12 << 2 << 0 << QSize(420, 260) << "12 ducks in 2 groups of 6";
    QTest::newRow("20 in 4 groups, twice the size") << 20 << 4 << 1 << QSize(840, 520)
                                                    << "20 ducks in 4 groups of 5, 1 group marked";
    QTest::newRow("20 in 10 groups") << 20 << 10 << 7 << QSize(420, 260)
                                     << "20 ducks in 10 groups of 2, 7 groups marked";
    QTest::newRow("18 in 3 groups, narrow") << 18 << 3 << 2 << QSize(220, 420)
                                            << "18 ducks in 3 groups of 6, 2 groups marked";
    QTest::newRow("2 in 2, too many marked") << 2 << 2 << 5 << QSize(300, 150)
                                             << "2 ducks in 2 groups of 1, 2 groups marked";
    QTest::newRow("16 in 4 groups, wide and low") << 16 << 4 << 4 << QSize(700, 140)
                                                  << "16 ducks in 4 groups of 4, 4 groups marked";
}

void TstDrawings::pictureRows()
{
    QFETCH(int, count);
    QFETCH(int, groups);
    QFETCH(int, shaded);
    QFETCH(QSize, size);
    QFETCH(QString, heard);
    PictureRows rows;
    rows.resize(size);
    rows.setPictures(QStringLiteral("gif\\wb01747_.gif"), QStringLiteral("ducks"), count);
    if (groups > 0)
        rows.showGroups(groups, shaded);
    QCOMPARE(rows.accessibleName(), heard);
    count = rows.count();
    groups = rows.groups();

    const QVector<QRectF> tiles = rows.pictureRects();
    QCOMPARE(tiles.size(), count);
    for (int i = 0; i < count; ++i) {
        QVERIFY2(holds(QRectF(rows.rect()), tiles[i]), qPrintable(QString::number(i)));
        for (int j = i + 1; j < count; ++j)
            QVERIFY2(!overlap(tiles[i], tiles[j]), qPrintable(QStringLiteral("%1 and %2").arg(i).arg(j)));
    }
    // Every picture is drawn on its own tile.
    PaintRecorder drawn(rows);
    QCOMPARE(drawn.pictures.size(), count);
    for (int i = 0; i < count; ++i)
        QVERIFY(holds(tiles[i], drawn.pictures[i]));

    QRectF used;
    for (const QRectF& t : tiles)
        used |= t;
    if (groups == 0) {
        QVERIFY(rows.groupRects().isEmpty());
        // Rows of at most five, each centred; the whole as large as the box allows.
        QMap<int, QRectF> byRow;
        QMap<int, int> perRow;
        for (const QRectF& t : tiles) {
            byRow[qRound(t.top())] |= t;
            ++perRow[qRound(t.top())];
        }
        QCOMPARE(byRow.size(), (count + PictureRows::kRowLength - 1) / PictureRows::kRowLength);
        for (int top : byRow.keys()) {
            QVERIFY(perRow[top] <= PictureRows::kRowLength);
            QVERIFY(std::abs(byRow[top].center().x() - size.width() / 2.0) < 1);
        }
        QVERIFY(used.width() > 0.8 * size.width() || used.height() > 0.8 * size.height());
        return;
    }

    const QVector<QRectF> areas = rows.groupRects();
    QCOMPARE(areas.size(), groups);
    const double tileSide = tiles.first().width();
    const QImage image = rows.grab().toImage();
    for (int g = 0; g < groups; ++g) {
        QVERIFY(holds(QRectF(rows.rect()), areas[g]));
        for (int i = 0; i < count; ++i)
            QCOMPARE(holds(areas[g], tiles[i]), i / (count / groups) == g);
        // Groups stand apart: a clear space between any two backgrounds.
        const double apart = tileSide / 5;
        for (int h = g + 1; h < groups; ++h)
            QVERIFY(!overlap(areas[g].adjusted(-apart, -apart, apart, apart), areas[h]));
        // A marked group wears a thick ring of its own deep colour; the others do not.
        const QPoint onRing(qRound(areas[g].left() + tileSide * 0.04), qRound(areas[g].center().y()));
        QCOMPARE(near(image.pixelColor(onRing), DrawingStyle::deep(g)), g < shaded);
    }
    QVERIFY(used.width() > 0.6 * size.width() || used.height() > 0.6 * size.height());

    rows.clearGroups();
    QVERIFY(rows.groupRects().isEmpty());
    QCOMPARE(rows.accessibleName(), QStringLiteral("%1 ducks").arg(count));
}

void TstDrawings::barModel_data()
{
    QTest::addColumn<int>("amount");
    QTest::addColumn<int>("parts");
    QTest::addColumn<int>("perPart"); // 0: no working shown
    QTest::addColumn<int>("shaded");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("heard");
    QTest::newRow("12 in 3") << 12 << 3 << 0 << 0 << QSize(420, 220) << "a bar of 12 cut into 3 equal boxes";
    QTest::newRow("2/3 of 12") << 12 << 3 << 4 << 2 << QSize(420, 220)
                               << "a bar of 12 cut into 3 equal boxes, 4 in each box, 2 boxes shaded";
    QTest::newRow("1/2 of 8") << 8 << 2 << 4 << 1 << QSize(300, 300)
                              << "a bar of 8 cut into 2 equal boxes, 4 in each box, 1 box shaded";
    QTest::newRow("11/12 of 144, narrow") << 144 << 12 << 12 << 11 << QSize(260, 160)
                                          << "a bar of 144 cut into 12 equal boxes, 12 in each box, 11 boxes shaded";
    QTest::newRow("5 lots of 10, twice the size") << 50 << 5 << 10 << 0 << QSize(840, 440)
                                                  << "a bar of 50 cut into 5 equal boxes, 10 in each box";
}

void TstDrawings::barModel()
{
    QFETCH(int, amount);
    QFETCH(int, parts);
    QFETCH(int, perPart);
    QFETCH(int, shaded);
    QFETCH(QSize, size);
    QFETCH(QString, heard);
    BarModel bar;
    bar.resize(size);
    bar.setBar(amount, parts);
    if (perPart > 0)
        bar.showWorking(perPart, shaded);
    QCOMPARE(bar.accessibleName(), heard);

    // Equal boxes, side by side, making up the bar.
    const QRectF whole = bar.barRect();
    QVERIFY(holds(QRectF(bar.rect()), whole));
    QCOMPARE(bar.boxRect(0).left(), whole.left());
    QCOMPARE(bar.boxRect(parts - 1).right(), whole.right());
    for (int i = 1; i < parts; ++i) {
        QCOMPARE(bar.boxRect(i).left(), bar.boxRect(i - 1).right());
        QCOMPARE(bar.boxRect(i).width(), bar.boxRect(0).width());
    }

    // The amount over the middle of the bar; the number in each box inside it.
    PaintRecorder drawn(bar);
    const QRectF amountBox = drawn.boxOf(QString::number(amount));
    QVERIFY(!amountBox.isEmpty());
    QVERIFY(amountBox.bottom() <= whole.top());
    QVERIFY(std::abs(amountBox.center().x() - whole.center().x()) < 1);
    QCOMPARE(drawn.texts.size(), perPart > 0 ? parts + 1 : 1);
    for (int i = 0; i < parts && perPart > 0; ++i) {
        const auto inBox = std::count_if(drawn.texts.cbegin(), drawn.texts.cend(), [&](const PaintRecorder::Text& t) {
            return t.text == QString::number(perPart) && holds(bar.boxRect(i), t.box);
        });
        QCOMPARE(int(inBox), 1);
    }
    // The shaded boxes come first; a box's lower corner shows its colour.
    for (int i = 0; i < parts; ++i) {
        const QRectF box = bar.boxRect(i);
        const QPointF low(box.center().x(), box.bottom() - box.height() / 6);
        QCOMPARE(near(pixel(bar, low), BarModel::shadeColour()), i < shaded);
    }

    bar.clearWorking();
    QCOMPARE(PaintRecorder(bar).texts.size(), 1);
    QCOMPARE(bar.accessibleName(), QStringLiteral("a bar of %1 cut into %2 equal boxes").arg(amount).arg(parts));
}

void TstDrawings::fractionWall_data()
{
    QTest::addColumn<QVector<FractionWall::Row>>("rows");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("onBricks");
    QTest::addColumn<QString>("heard");
    using Rows = QVector<FractionWall::Row>;
    QTest::newRow("1/2 and 4/8") << Rows{{2, 1}, {8, 4}} << QSize(420, 200) << true
                                 << "a row of 2 halves, 1 shaded; a row of 8 eighths, 4 shaded";
    QTest::newRow("3/8 and 5/8, twice the size") << Rows{{8, 3}, {8, 5}} << QSize(840, 400) << true
                                                 << "a row of 8 eighths, 3 shaded; a row of 8 eighths, 5 shaded";
    QTest::newRow("twelfths in a narrow box") << Rows{{3, 2}, {12, 0}} << QSize(160, 200) << false
                                              << "a row of 3 thirds, 2 shaded; a row of 12 twelfths, none shaded";
    QTest::newRow("a whole and tenths") << Rows{{1, 1}, {10, 7}, {5, 2}} << QSize(420, 260) << true
                                        << "a row of 1 whole, 1 shaded; a row of 10 tenths, 7 shaded; "
                                           "a row of 5 fifths, 2 shaded";
    QTest::newRow("too many shaded") << Rows{{4, 6}} << QSize(420, 120) << true << "a row of 4 quarters, 4 shaded";
}

void TstDrawings::fractionWall()
{
    QFETCH(QVector<FractionWall::Row>, rows);
    QFETCH(QSize, size);
    QFETCH(bool, onBricks);
    QFETCH(QString, heard);
    FractionWall wall;
    wall.resize(size);
    wall.setRows(rows);
    QCOMPARE(wall.accessibleName(), heard);
    QCOMPARE(wall.labelsOnBricks(), onBricks);

    PaintRecorder drawn(wall);
    int written = 0;
    for (int r = 0; r < rows.size(); ++r) {
        const FractionWall::Row row = wall.rows()[r];
        const QString bottom = QString::number(row.bottom);
        // Every row as long as the first, its bricks equal and side by side.
        QCOMPARE(wall.brickRect(r, 0).left(), wall.brickRect(0, 0).left());
        QCOMPARE(wall.brickRect(r, row.bottom - 1).right(), wall.brickRect(0, rows[0].bottom - 1).right());
        QVERIFY(holds(QRectF(wall.rect()), wall.brickRect(r, 0)));
        QVERIFY(holds(QRectF(wall.rect()), wall.brickRect(r, row.bottom - 1)));
        if (r > 0)
            QVERIFY(!overlap(wall.brickRect(r, 0), wall.brickRect(r - 1, 0)));
        for (int b = 0; b < row.bottom; ++b) {
            const QRectF brick = wall.brickRect(r, b);
            QCOMPARE(brick.width(), wall.brickRect(r, 0).width());
            if (b > 0)
                QCOMPARE(brick.left(), wall.brickRect(r, b - 1).right());
            const QPointF corner = brick.topLeft() + QPointF(brick.width(), brick.height()) / 5;
            QCOMPARE(near(pixel(wall, corner), FractionWall::rowColour(r)), b < row.shaded);
            // 1 over the bottom number (a whole is 1), centred on the brick or at the row's left.
            const QRectF place = onBricks ? brick : wall.rowLabelRect(r);
            for (const QString& digits : {QStringLiteral("1"), bottom}) {
                const bool found = std::any_of(drawn.texts.cbegin(), drawn.texts.cend(), [&](const auto& t) {
                    return t.text == digits && holds(place, t.box)
                        && std::abs(t.box.center().x() - place.center().x()) < 1;
                });
                QVERIFY2(found, qPrintable(QStringLiteral("row %1 brick %2: %3").arg(r).arg(b).arg(digits)));
            }
            if (!onBricks)
                break;
        }
        written += (row.bottom == 1 ? 1 : 2) * (onBricks ? row.bottom : 1);
    }
    QCOMPARE(drawn.texts.size(), written);
}

void TstDrawings::numberLine_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("mark");
    QTest::addColumn<int>("tenths"); // where the mark lies in tenths of the line; -1 before it, 11 beyond
    QTest::addColumn<QString>("toRound");
    QTest::addColumn<QSize>("size");
    const QSize usual(440, 200);
    QTest::newRow("half way") << "3.4" << "3.5" << "3.45" << 5 << "" << usual;
    QTest::newRow("first end") << "3.4" << "3.5" << "3.4" << 0 << "" << usual;
    QTest::newRow("last end, written longer") << "3.4" << "3.5" << "3.50" << 10 << "" << usual;
    QTest::newRow("third tick") << "3.4" << "3.5" << "3.43" << 3 << "" << usual;
    QTest::newRow("hundredths") << "2.71" << "2.72" << "2.715" << 5 << "" << usual;
    QTest::newRow("first thousandth") << "2.71" << "2.72" << "2.711" << 1 << "" << usual;
    QTest::newRow("whole to tenth") << "6" << "6.1" << "6.05" << 5 << "" << usual;
    QTest::newRow("across a whole, small") << "0.9" << "1" << "0.97" << 7 << "0.975" << QSize(200, 110);
    QTest::newRow("whole numbers") << "4" << "5" << "4.9" << 9 << "" << usual;
    QTest::newRow("rounding, answer at the end") << "4.6" << "4.7" << "4.7" << 10 << "4.67" << usual;
    QTest::newRow("to round beside an end") << "4.6" << "4.7" << "4.6" << 0 << "4.61" << usual;
    QTest::newRow("before") << "3.4" << "3.5" << "3.3" << -1 << "" << usual;
    QTest::newRow("just before") << "3.4" << "3.5" << "3.3999" << -1 << "3.45" << usual;
    QTest::newRow("beyond, twice the size") << "2.71" << "2.72" << "2.8" << 11 << "" << QSize(880, 400);
    QTest::newRow("just beyond") << "0.9" << "1" << "1.001" << 11 << "" << usual;
}

void TstDrawings::numberLine()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(QString, mark);
    QFETCH(int, tenths);
    QFETCH(QString, toRound);
    QFETCH(QSize, size);
    // A desktop whose decimal point is a comma changes nothing.
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    NumberLine line;
    line.resize(size);
    line.setEnds(from, to);
    QCOMPARE(line.accessibleName(), QStringLiteral("a number line from %1 to %2").arg(from, to));
    line.mark(mark);
    if (!toRound.isEmpty())
        line.markToRound(toRound);
    const QString rounding = toRound.isEmpty() ? QString() : QStringLiteral(", %1 to round").arg(toRound);
    QCOMPARE(line.accessibleName(),
             QStringLiteral("a number line from %1 to %2%3, %4 marked").arg(from, to, rounding, mark));

    // Ten equal steps between the ends; the mark exactly on its tick, or
    // pinned outside the end it lies beyond, under its label.
    const double step = line.tickX(1) - line.tickX(0);
    QVERIFY(step > 0);
    for (int t = 1; t <= NumberLine::kSteps; ++t)
        QVERIFY(std::abs(line.tickX(t) - line.tickX(t - 1) - step) < 1e-9);
    const double x = line.positionOf(mark);
    if (tenths < 0)
        QVERIFY(x < line.tickX(0) - step / 2 && x > 0);
    else if (tenths > NumberLine::kSteps)
        QVERIFY(x > line.tickX(NumberLine::kSteps) + step / 2 && x < size.width());
    else
        QCOMPARE(x, line.tickX(tenths));
    QVERIFY(line.markLabelRect().left() <= x && x <= line.markLabelRect().right());

    // The ends under their ticks, the mark above the line, the number to
    // round below it; nothing written over anything else or off the board.
    PaintRecorder drawn(line);
    QCOMPARE(drawn.texts.size(), toRound.isEmpty() ? 3 : 4);
    for (int i = 0; i < drawn.texts.size(); ++i) {
        QVERIFY(holds(QRectF(line.rect()), drawn.texts[i].box));
        for (int j = i + 1; j < drawn.texts.size(); ++j)
            QVERIFY2(!overlap(drawn.texts[i].box, drawn.texts[j].box),
                     qPrintable(drawn.texts[i].text + QStringLiteral(" over ") + drawn.texts[j].text));
    }
    QCOMPARE(drawn.texts[0].text, from);
    QCOMPARE(drawn.texts[1].text, to);
    for (int end = 0; end < 2; ++end) {
        QVERIFY(std::abs(drawn.texts[end].box.center().x() - line.tickX(end * NumberLine::kSteps)) < 1);
        QVERIFY(drawn.texts[end].box.top() > line.lineY());
    }
    for (const PaintRecorder::Text& t : drawn.texts.mid(2)) {
        const bool isMark = t.text == mark && holds(line.markLabelRect(), t.box);
        QVERIFY(isMark || (t.text == toRound && holds(line.toRoundLabelRect(), t.box)));
        QVERIFY(isMark ? t.box.bottom() < line.lineY() : t.box.top() > line.lineY());
    }
    line.clearMark();
    line.clearMarkToRound();
    QCOMPARE(PaintRecorder(line).texts.size(), 2);
    QLocale::setDefault(QLocale::c());
}

QTEST_MAIN(TstDrawings)
#include "tst_drawings.moc"
