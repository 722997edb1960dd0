// Halves and Quarters 2 and 3 without their screens: every draw keeps the
// activities' rules, and each answer gets its verdict and its sentence.
#include "fractions/halvesofnumbers.h"
#include "fractions/halvesquestion.h"
#include "fractions/halvesshapes.h"
#include "runtime/random.h"

#include <QSet>
#include <QtTest>

class TestHalvesActivities : public QObject {
    Q_OBJECT
private slots:
    void shapeDraws();
    void shapeVerdicts_data();
    void shapeVerdicts();
    void hints();
    void numberDraws();
    void numberVerdicts_data();
    void numberVerdicts();
};

void TestHalvesActivities::shapeDraws()
{
    for (quint64 seed : {1ULL, 99ULL, 2024ULL}) {
        Random::Source rnd(seed);
        HalvesShapes::Question last;
        QSet<QString> seen;
        for (int i = 0; i < 10000; ++i) {
            const HalvesShapes::Question q = HalvesShapes::draw(rnd, i ? &last : nullptr);
            QVERIFY(i == 0 || !(q == last));
            QVERIFY(q.parts == 2 || q.parts == 4);
            // 2 parts ask for one half; 4 parts for 1, 2 or 3 quarters or one half.
            QVERIFY(q.parts == 4 || (q.top == 1 && q.bottom == 2));
            QVERIFY(q.bottom == 2 || q.bottom == 4);
            QVERIFY(q.partsToColour() >= 1 && q.partsToColour() < q.parts);
            // Circles and strips come in 2 and 4; the square's cuts fix their count.
            const bool twoOnly = q.kind == ShapeKind::SquareAcross || q.kind == ShapeKind::SquareDown
                || q.kind == ShapeKind::SquareCorners;
            const bool fourOnly = q.kind == ShapeKind::SquareGrid || q.kind == ShapeKind::SquareStrips
                || q.kind == ShapeKind::SquareTriangles;
            QVERIFY(!(twoOnly && q.parts != 2) && !(fourOnly && q.parts != 4));
            seen << QStringLiteral("%1:%2:%3/%4").arg(int(q.kind)).arg(q.parts).arg(q.top).arg(q.bottom);
            last = q;
        }
        // 5 cuts in 2 with one half each, 5 cuts in 4 with four fractions each.
        QCOMPARE(seen.size(), 5 + 5 * 4);
    }
}

void TestHalvesActivities::shapeVerdicts_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("parts");
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("bottom");
    QTest::addColumn<int>("coloured");
    QTest::addColumn<int>("verdict");
    QTest::addColumn<QString>("statement");
    const int square = int(ShapeKind::SquareGrid), circle = int(ShapeKind::Circle), strip = int(ShapeKind::Strip);
    QTest::newRow("3/4 right") << square << 4 << 3 << 4 << 3 << int(Verdict::Right)
                               << "You coloured three quarters of the square.";
    QTest::newRow("1/2 of 4 right") << square << 4 << 1 << 2 << 2 << int(Verdict::Right)
                                    << "You coloured one half of the square. Two quarters is the same as one half.";
    QTest::newRow("2/4 right") << circle << 4 << 2 << 4 << 2 << int(Verdict::Right)
                               << "You coloured two quarters of the circle.";
    QTest::newRow("1/2 of 2 right") << strip << 2 << 1 << 2 << 1 << int(Verdict::Right)
                                    << "You coloured one half of the strip.";
    QTest::newRow("3 for 1/4") << square << 4 << 1 << 4 << 3 << int(Verdict::Wrong)
                               << "You coloured 3 of the 4 parts: that is three quarters. One quarter is 1 part.";
    QTest::newRow("1 for 1/2 of 4") << circle << 4 << 1 << 2 << 1 << int(Verdict::Wrong)
                                    << "You coloured 1 of the 4 parts: that is one quarter. One half is 2 parts.";
    QTest::newRow("2 of 2 for 1/2") << strip << 2 << 1 << 2 << 2 << int(Verdict::Wrong)
                                    << "You coloured 2 of the 2 parts: that is two halves. One half is 1 part.";
    QTest::newRow("none") << square << 4 << 3 << 4 << 0 << int(Verdict::NotCheckable) << "You must colour some parts!";
}

void TestHalvesActivities::shapeVerdicts()
{
    QFETCH(int, kind);
    QFETCH(int, parts);
    QFETCH(int, top);
    QFETCH(int, bottom);
    QFETCH(int, coloured);
    QFETCH(int, verdict);
    QFETCH(QString, statement);
    const HalvesShapes::Question q{ShapeKind(kind), parts, top, bottom};
    const Verdict v = HalvesShapes::check(q, coloured);
    QCOMPARE(int(v.kind), verdict);
    QCOMPARE(v.statement, statement);
}

void TestHalvesActivities::hints()
{
    // Every placeholder filled, none left over (one group has no count).
    QTest::failOnWarning(QRegularExpression(QStringLiteral("QString::arg")));
    QCOMPARE(HalvesShapes::hint({ShapeKind::SquareGrid, 4, 3, 4}, 1),
             QStringLiteral("The square is cut into 4 equal parts. Three quarters is 3 of them. You have coloured 1."));
    QCOMPARE(HalvesShapes::hint({ShapeKind::Circle, 2, 1, 2}, 0),
             QStringLiteral("The circle is cut into 2 equal parts. One half is 1 of them. You have not coloured any yet."));
    QCOMPARE(HalvesOfNumbers::hint({3, 4, 12, 2}, QStringLiteral("ducks")),
             QStringLiteral("Share the 12 ducks into 4 equal groups: 3 in each group. Three quarters is 3 groups: 9 ducks."));
    QCOMPARE(HalvesOfNumbers::hint({1, 2, 8, 2}, QStringLiteral("suns")),
             QStringLiteral("Share the 8 suns into 2 equal groups: 4 in each group. One half is 1 group: 4 suns."));
}

void TestHalvesActivities::numberDraws()
{
    for (quint64 seed : {5ULL, 6ULL, 7ULL}) {
        Random::Source rnd(seed);
        HalvesOfNumbers::Question last;
        QSet<int> halves, quarters;
        for (int i = 0; i < 10000; ++i) {
            const HalvesOfNumbers::Question q = HalvesOfNumbers::draw(rnd, i ? &last : nullptr);
            QVERIFY(i == 0 || (!(q == last) && q.set != last.set));
            QVERIFY(q.set >= 1 && q.set <= Halves::kSetCount);
            QVERIFY(q.amount >= q.bottom && q.amount <= 20 && q.amount % q.bottom == 0);
            QVERIFY((q.bottom == 2 && q.top == 1) || (q.bottom == 4 && q.top >= 1 && q.top <= 3));
            QVERIFY(q.answer() * q.bottom == q.amount * q.top);
            QVERIFY(QString::number(q.answer()).size() <= HalvesOfNumbers::kAnswerDigits);
            (q.bottom == 2 ? halves : quarters) << q.amount;
            last = q;
        }
        QCOMPARE(halves, (QSet<int>{2, 4, 6, 8, 10, 12, 14, 16, 18, 20}));
        QCOMPARE(quarters, (QSet<int>{4, 8, 12, 16, 20}));
    }
}

void TestHalvesActivities::numberVerdicts_data()
{
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("bottom");
    QTest::addColumn<int>("amount");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("verdict");
    QTest::addColumn<QString>("statement");
    QTest::newRow("right") << 3 << 4 << 12 << "9" << int(Verdict::Right) << "Three quarters of 12 is 9.";
    QTest::newRow("leading zero") << 1 << 2 << 12 << "06" << int(Verdict::Right) << "One half of 12 is 6.";
    QTest::newRow("one quarter, not three") << 3 << 4 << 12 << "3" << int(Verdict::Wrong) << "Three quarters of 12 is 9.";
    QTest::newRow("two quarters") << 2 << 4 << 8 << "2" << int(Verdict::Wrong) << "Two quarters of 8 is 4.";
    QTest::newRow("empty") << 1 << 2 << 4 << "" << int(Verdict::NotCheckable) << "Type your answer in the box first!";
    QTest::newRow("zero") << 1 << 2 << 4 << "0" << int(Verdict::NotCheckable)
                          << "0 is not the answer: look at the pictures again.";
}

void TestHalvesActivities::numberVerdicts()
{
    QFETCH(int, top);
    QFETCH(int, bottom);
    QFETCH(int, amount);
    QFETCH(QString, typed);
    QFETCH(int, verdict);
    QFETCH(QString, statement);
    const HalvesOfNumbers::Question q{top, bottom, amount, 2};
    const Verdict v = HalvesOfNumbers::check(q, typed);
    QCOMPARE(int(v.kind), verdict);
    QCOMPARE(v.statement, statement);
}

QTEST_APPLESS_MAIN(TestHalvesActivities)
#include "tst_halvesactivities.moc"
