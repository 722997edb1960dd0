// The shared drawings at any size: what is drawn where, shaded, and heard.
#include "kit/parts/barmodel.h"
#include "kit/parts/drawingstyle.h"
#include "kit/parts/fractionwall.h"
#include "kit/parts/numberline.h"
#include "fractions/fraction.h"
#include "kit/parts/picturerows.h"
#include "paintrecorder.h"
#include "runtime/pictures.h"

#include <QtTest>

namespace {
constexpr double kTiny = 0.01;
constexpr int kColourSlack = 16; // per channel, for the antialiased edges

bool overlap(const QRectF& a, const QRectF& b)
{
    return a.intersected(b).width() > kTiny && a.intersected(b).height() > kTiny;
}

bool holds(const QRectF& outer, const QRectF& inner)
{
    return inner.left() >= outer.left() - kTiny && inner.top() >= outer.top() - kTiny
        && inner.right() <= outer.right() + kTiny && inner.bottom() <= outer.bottom() + kTiny;
}

// Whether the widget shows about this colour at that point.
bool shows(QWidget& widget, const QPointF& at, const QColor& colour)
{
    const QColor seen = widget.grab().toImage().pixelColor(at.toPoint());
    return std::max({std::abs(seen.red() - colour.red()), std::abs(seen.green() - colour.green()),
                     std::abs(seen.blue() - colour.blue())}) <= kColourSlack;
}

// How often `text` is written inside `place`, centred across it.
int centredIn(const PaintRecorder& drawn, const QString& text, const QRectF& place)
{
    return int(std::count_if(drawn.texts.cbegin(), drawn.texts.cend(), [&](const PaintRecorder::Text& t) {
        return t.text == text && holds(place, t.box) && std::abs(t.box.center().x() - place.center().x()) < 1;
    }));
}

struct Ducks { int count, groups, shaded; QSize size; QString heard; }; // 0 groups: in rows
struct Bar { int amount, parts, perPart, shaded; QSize size; QString heard; }; // perPart 0: no working
struct Wall { QVector<FractionWall::Row> rows; QSize size; bool onBricks; QString heard; };
// `tenths`: where the mark lies in tenths of the line; -1 before it, 11 beyond.
struct Line { QString from, to, mark; int tenths; QString toRound; QSize size = {440, 200}; };
} // namespace
Q_DECLARE_METATYPE(Ducks)
Q_DECLARE_METATYPE(Bar)
Q_DECLARE_METATYPE(Wall)
Q_DECLARE_METATYPE(Line)

class TstDrawings : public QObject {
    Q_OBJECT
private slots:
    // A desktop whose decimal point is a comma changes nothing.
    void initTestCase()
    {
        Pictures::setAssetFolder(QStringLiteral(PARTITUDE_TEST_ASSETS));
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    }

    void pictureRows_data()
    {
        QTest::addColumn<Ducks>("c");
        const QSize usual(420, 260);
        QTest::newRow("1 picture") << Ducks{1, 0, 0, {300, 200}, "1 duck"};
        QTest::newRow("7 in rows of 5 and 2") << Ducks{7, 0, 0, usual, "7 ducks"};
        QTest::newRow("20 in a tall box") << Ducks{20, 0, 0, {200, 500}, "20 ducks"};
        QTest::newRow("more than 20") << Ducks{25, 0, 0, usual, "20 ducks"};
        QTest::newRow("unequal groups stay in rows") << Ducks{12, 5, 2, usual, "12 ducks"};
        QTest::newRow("12 in 4 groups") << Ducks{12, 4, 3, usual, "12 ducks in 4 groups of 3, 3 groups marked"};
        QTest::newRow("none marked") << Ducks{12, 2, 0, usual, "12 ducks in 2 groups of 6"};
        QTest::newRow("twice the size") << Ducks{20, 4, 1, {840, 520}, "20 ducks in 4 groups of 5, 1 group marked"};
        QTest::newRow("narrow") << Ducks{18, 3, 2, {220, 420}, "18 ducks in 3 groups of 6, 2 groups marked"};
        QTest::newRow("wide and low") << Ducks{16, 4, 4, {700, 140}, "16 ducks in 4 groups of 4, 4 groups marked"};
        QTest::newRow("too many marked") << Ducks{2, 2, 5, {300, 150}, "2 ducks in 2 groups of 1, 2 groups marked"};
    }

    void pictureRows()
    {
        QFETCH(Ducks, c);
        PictureRows rows;
        rows.resize(c.size);
        rows.setPictures(QStringLiteral("gif\\wb01747_.gif"), QStringLiteral("ducks"), c.count);
        rows.showGroups(c.groups, c.shaded);
        QCOMPARE(rows.accessibleName(), c.heard);
        const int count = rows.count(), groups = rows.groups();
        const QVector<QRectF> tiles = rows.pictureRects(), areas = rows.groupRects();
        const PaintRecorder drawn(rows);
        QVERIFY(tiles.size() == count && drawn.pictures.size() == count && areas.size() == groups);
        // Each picture on its own tile, all as large as the board allows.
        QRectF used;
        for (int i = 0; i < count; ++i) {
            QVERIFY(holds(QRectF(rows.rect()), tiles[i]) && holds(tiles[i], drawn.pictures[i]));
            for (int j = i + 1; j < count; ++j)
                QVERIFY(!overlap(tiles[i], tiles[j]));
            used |= tiles[i];
        }
        const double filled = groups > 0 ? 0.6 : 0.8;
        QVERIFY(used.width() > filled * c.size.width() || used.height() > filled * c.size.height());
        if (groups == 0) {
            // Rows of at most five, each centred.
            QMap<int, QRectF> byRow;
            for (int i = 0; i < count; ++i) {
                byRow[qRound(tiles[i].top())] |= tiles[i];
                QCOMPARE(qRound(tiles[i].top()) == qRound(tiles[0].top()), i < PictureRows::kRowLength);
            }
            QCOMPARE(byRow.size(), (count + PictureRows::kRowLength - 1) / PictureRows::kRowLength);
            for (const QRectF& line : std::as_const(byRow))
                QVERIFY(std::abs(line.center().x() - c.size.width() / 2.0) < 1);
            return;
        }
        // Groups stand apart; a marked group wears a thick ring of its own deep colour.
        const double tileSide = tiles.first().width(), apart = tileSide / 5;
        for (int g = 0; g < groups; ++g) {
            for (int i = 0; i < count; ++i)
                QCOMPARE(holds(areas[g], tiles[i]), i / (count / groups) == g);
            for (int h = g + 1; h < groups; ++h)
                QVERIFY(!overlap(areas[g].adjusted(-apart, -apart, apart, apart), areas[h]));
            const QPointF onRing(areas[g].left() + tileSide * 0.04, areas[g].center().y());
            QCOMPARE(shows(rows, onRing, DrawingStyle::deep(g)), g < c.shaded);
        }
        rows.clearGroups();
        QVERIFY(rows.groupRects().isEmpty());
        QCOMPARE(rows.accessibleName(), QStringLiteral("%1 ducks").arg(count));
    }

    void barModel_data()
    {
        QTest::addColumn<Bar>("c");
        QTest::newRow("12 in 3") << Bar{12, 3, 0, 0, {420, 220}, ""};
        QTest::newRow("2/3 of 12") << Bar{12, 3, 4, 2, {420, 220}, ", 4 in each box, 2 boxes shaded"};
        QTest::newRow("1/2 of 8") << Bar{8, 2, 4, 1, {300, 300}, ", 4 in each box, 1 box shaded"};
        QTest::newRow("11/12 of 144, narrow") << Bar{144, 12, 12, 11, {260, 160}, ", 12 in each box, 11 boxes shaded"};
        QTest::newRow("5 lots of 10, twice the size") << Bar{50, 5, 10, 0, {840, 440}, ", 10 in each box"};
    }

    void barModel()
    {
        QFETCH(Bar, c);
        BarModel bar;
        bar.resize(c.size);
        bar.setBar(c.amount, c.parts);
        if (c.perPart > 0)
            bar.showWorking(c.perPart, c.shaded);
        const QString heard = QStringLiteral("a bar of %1 cut into %2 equal boxes").arg(c.amount).arg(c.parts);
        QCOMPARE(bar.accessibleName(), heard + c.heard);
        const QRectF whole = bar.barRect();
        QVERIFY(holds(QRectF(bar.rect()), whole));
        const PaintRecorder drawn(bar);
        QCOMPARE(drawn.texts.size(), c.perPart > 0 ? c.parts + 1 : 1);
        QCOMPARE(centredIn(drawn, QString::number(c.amount), QRectF(whole.left(), 0, whole.width(), whole.top())), 1);
        for (int i = 0; i < c.parts; ++i) {
            const QRectF box = bar.boxRect(i);
            QCOMPARE(box.left(), i == 0 ? whole.left() : bar.boxRect(i - 1).right());
            QCOMPARE(box.width(), bar.boxRect(0).width());
            const QPointF low(box.center().x(), box.bottom() - box.height() / 6);
            QCOMPARE(shows(bar, low, BarModel::shadeColour()), i < c.shaded);
            QCOMPARE(centredIn(drawn, QString::number(c.perPart), box), c.perPart > 0 ? 1 : 0);
        }
        QCOMPARE(bar.boxRect(c.parts - 1).right(), whole.right());
        bar.clearWorking();
        QCOMPARE(PaintRecorder(bar).texts.size(), 1);
        QCOMPARE(bar.accessibleName(), heard);
    }

    void fractionWall_data()
    {
        QTest::addColumn<Wall>("c");
        QTest::newRow("1/2 and 4/8")
            << Wall{{{2, 1}, {8, 4}}, {420, 200}, true, "a row of 2 halves, 1 shaded; a row of 8 eighths, 4 shaded"};
        QTest::newRow("3/8 and 5/8, twice the size")
            << Wall{{{8, 3}, {8, 5}}, {840, 400}, true, "a row of 8 eighths, 3 shaded; a row of 8 eighths, 5 shaded"};
        QTest::newRow("twelfths in a narrow box")
            << Wall{{{3, 2}, {12, 0}}, {160, 200}, false, "a row of 3 thirds, 2 shaded; a row of 12 twelfths, none shaded"};
        QTest::newRow("a whole and tenths") << Wall{{{1, 1}, {10, 7}, {5, 2}}, {420, 260}, true,
                                                    "a row of 1 whole, 1 shaded; a row of 10 tenths, 7 shaded; "
                                                    "a row of 5 fifths, 2 shaded"};
        QTest::newRow("too many shaded") << Wall{{{4, 6}}, {420, 120}, true, "a row of 4 quarters, 4 shaded"};
    }

    // 1 over the bottom number (a whole is 1) on each brick, or once at the row's left.
    void fractionWall()
    {
        QFETCH(Wall, c);
        FractionWall wall;
        wall.resize(c.size);
        wall.setRows(c.rows);
        QCOMPARE(wall.accessibleName(), c.heard);
        QCOMPARE(wall.labelsOnBricks(), c.onBricks);
        const PaintRecorder drawn(wall);
        int written = 0;
        for (int r = 0; r < c.rows.size(); ++r) {
            const FractionWall::Row row = wall.rows()[r];
            QCOMPARE(wall.brickRect(r, row.bottom - 1).right(), wall.brickRect(0, wall.rows()[0].bottom - 1).right());
            QVERIFY(holds(QRectF(wall.rect()), wall.brickRect(r, 0).united(wall.brickRect(r, row.bottom - 1))));
            QVERIFY(r == 0 || !overlap(wall.brickRect(r, 0), wall.brickRect(r - 1, 0)));
            for (int b = 0; b < row.bottom; ++b) {
                const QRectF brick = wall.brickRect(r, b), place = c.onBricks ? brick : wall.rowLabelRect(r);
                QCOMPARE(brick.left(), b == 0 ? wall.brickRect(0, 0).left() : wall.brickRect(r, b - 1).right());
                QCOMPARE(brick.width(), wall.brickRect(r, 0).width());
                const QPointF corner = brick.topLeft() + QPointF(brick.width(), brick.height()) / 5;
                QCOMPARE(shows(wall, corner, FractionWall::rowColour(r)), b < row.shaded);
                QVERIFY(centredIn(drawn, QStringLiteral("1"), place) > 0);
                QVERIFY(centredIn(drawn, QString::number(row.bottom), place) > 0);
            }
            written += (row.bottom == 1 ? 1 : 2) * (c.onBricks ? row.bottom : 1);
        }
        QCOMPARE(drawn.texts.size(), written);
    }

    void numberLine_data()
    {
        QTest::addColumn<Line>("c");
        QTest::newRow("half way") << Line{"3.4", "3.5", "3.45", 5, ""};
        QTest::newRow("first end") << Line{"3.4", "3.5", "3.4", 0, ""};
        QTest::newRow("last end, written longer") << Line{"3.4", "3.5", "3.50", 10, ""};
        QTest::newRow("first thousandth") << Line{"2.71", "2.72", "2.711", 1, ""};
        QTest::newRow("whole to tenth") << Line{"6", "6.1", "6.05", 5, ""};
        QTest::newRow("across a whole, small") << Line{"0.9", "1", "0.97", 7, "0.975", {200, 110}};
        QTest::newRow("rounding, answer at the end") << Line{"4.6", "4.7", "4.7", 10, "4.67"};
        QTest::newRow("to round beside an end") << Line{"4.6", "4.7", "4.6", 0, "4.61"};
        QTest::newRow("just before") << Line{"3.4", "3.5", "3.3999", -1, "3.45"};
        QTest::newRow("beyond, twice the size") << Line{"2.71", "2.72", "2.8", 11, "", {880, 400}};
        QTest::newRow("just beyond") << Line{"0.9", "1", "1.001", 11, ""};
    }

    // The mark exactly on its tick, or pinned outside the end it lies beyond.
    void numberLine()
    {
        QFETCH(Line, c);
        NumberLine line;
        line.resize(c.size);
        line.setEnds(c.from, c.to);
        line.mark(c.mark);
        if (!c.toRound.isEmpty())
            line.markToRound(c.toRound);
        using Fractions::decimalWords;
        const QString rounding
            = c.toRound.isEmpty() ? QString() : QStringLiteral(", %1 to round").arg(decimalWords(c.toRound));
        QCOMPARE(line.accessibleName(), QStringLiteral("a number line from %1 to %2%3, %4 marked")
                                            .arg(decimalWords(c.from), decimalWords(c.to), rounding,
                                                 decimalWords(c.mark)));
        const double step = line.tickX(1) - line.tickX(0), x = line.positionOf(c.mark);
        if (c.tenths < 0)
            QVERIFY(x < line.tickX(0) - step / 2 && x > 0);
        else if (c.tenths > NumberLine::kSteps)
            QVERIFY(x > line.tickX(NumberLine::kSteps) + step / 2 && x < c.size.width());
        else
            QCOMPARE(x, line.tickX(c.tenths));
        QVERIFY(line.markLabelRect().left() <= x && x <= line.markLabelRect().right());
        QVERIFY(line.markLabelRect().bottom() < line.lineY());
        QVERIFY(c.toRound.isEmpty() || line.toRoundLabelRect().top() > line.lineY());

        const PaintRecorder drawn(line);
        QCOMPARE(drawn.texts.size(), c.toRound.isEmpty() ? 3 : 4);
        for (int i = 0; i < drawn.texts.size(); ++i) {
            QVERIFY(holds(QRectF(line.rect()), drawn.texts[i].box));
            for (int j = i + 1; j < drawn.texts.size(); ++j)
                QVERIFY2(!overlap(drawn.texts[i].box, drawn.texts[j].box),
                         qPrintable(drawn.texts[i].text + " over " + drawn.texts[j].text));
        }
        for (int end = 0; end < 2; ++end) {
            const double tick = line.tickX(end * NumberLine::kSteps);
            const QRectF underTick(tick - c.size.width(), line.lineY(), 2 * c.size.width(), c.size.height());
            QCOMPARE(centredIn(drawn, end ? c.to : c.from, underTick), 1);
        }
        QCOMPARE(centredIn(drawn, c.mark, line.markLabelRect()), 1);
        QCOMPARE(centredIn(drawn, c.toRound, line.toRoundLabelRect()), c.toRound.isEmpty() ? 0 : 1);
        line.clearMark();
        line.clearMarkToRound();
        QCOMPARE(PaintRecorder(line).texts.size(), 2); // the ends stay
    }
};

QTEST_MAIN(TstDrawings)
#include "tst_drawings.moc"
