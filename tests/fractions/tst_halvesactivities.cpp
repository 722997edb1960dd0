// Halves and Quarters 2 and 3 without their screens: every draw keeps the
// activities' rules, and each answer gets its verdict and its sentence.
#include "fractions/halvesofnumbers.h"
#include "fractions/halvesquestion.h"
#include "fractions/halvesshapes.h"
#include "draws.h"
#include "runtime/random.h"
#include "verdicttext.h"

#include <QSet>
#include <QtTest>

Q_DECLARE_METATYPE(HalvesShapes::Question)
Q_DECLARE_METATYPE(HalvesOfNumbers::Question)

class TestHalvesActivities : public QObject {
    Q_OBJECT
private slots:
    void shapeDraws()
    {
        const auto all = drawMany<HalvesShapes::Question>(HalvesShapes::draw, 5000, 1);
        QVERIFY(!repeatsRunning(all));
        QSet<QString> seen;
        for (const HalvesShapes::Question& q : all) {
            // 2 parts ask for one half; 4 parts for 1, 2 or 3 quarters or one half.
            QVERIFY(q.parts == 4 || (q.parts == 2 && q.top == 1 && q.bottom == 2));
            QVERIFY(q.bottom == 2 || q.bottom == 4);
            QVERIFY(q.partsToColour() >= 1 && q.partsToColour() < q.parts);
            // Circles and strips come in 2 and 4; the square's cuts fix their count.
            const bool twoOnly = q.kind == ShapeKind::SquareAcross || q.kind == ShapeKind::SquareDown
                || q.kind == ShapeKind::SquareCorners;
            const bool fourOnly = q.kind == ShapeKind::SquareGrid || q.kind == ShapeKind::SquareStrips
                || q.kind == ShapeKind::SquareTriangles;
            QVERIFY(!(twoOnly && q.parts != 2) && !(fourOnly && q.parts != 4));
            seen << QStringLiteral("%1:%2:%3/%4").arg(int(q.kind)).arg(q.parts).arg(q.top).arg(q.bottom);
        }
        // 5 cuts in 2 with one half each, 5 cuts in 4 with four fractions each.
        QCOMPARE(seen.size(), 5 + 5 * 4);
    }

    void shapeVerdicts_data()
    {
        QTest::addColumn<HalvesShapes::Question>("q");
        QTest::addColumn<int>("coloured");
        QTest::addColumn<QString>("verdict");
        using K = ShapeKind;
        QTest::newRow("3/4 right") << HalvesShapes::Question{K::SquareGrid, 4, 3, 4} << 3
                                   << "right: You coloured three quarters of the square.";
        QTest::newRow("1/2 of 4 right")
            << HalvesShapes::Question{K::SquareGrid, 4, 1, 2} << 2
            << "right: You coloured one half of the square. Two quarters is the same as one half.";
        QTest::newRow("1/2 of 2 right") << HalvesShapes::Question{K::Strip, 2, 1, 2} << 1
                                        << "right: You coloured one half of the strip.";
        QTest::newRow("3 for 1/4") << HalvesShapes::Question{K::SquareGrid, 4, 1, 4} << 3
                                   << "wrong: You coloured 3 of the 4 parts: that is three quarters. One quarter is 1 part.";
        QTest::newRow("1 for 1/2 of 4") << HalvesShapes::Question{K::Circle, 4, 1, 2} << 1
                                        << "wrong: You coloured 1 of the 4 parts: that is one quarter. One half is 2 parts.";
        QTest::newRow("2 of 2 for 1/2") << HalvesShapes::Question{K::Strip, 2, 1, 2} << 2
                                        << "wrong: You coloured 2 of the 2 parts: that is two halves. One half is 1 part.";
        QTest::newRow("none") << HalvesShapes::Question{K::SquareGrid, 4, 3, 4} << 0 << "refused: You must colour some parts!";
    }

    void shapeVerdicts()
    {
        QFETCH(HalvesShapes::Question, q);
        QFETCH(int, coloured);
        QTEST(said(HalvesShapes::check(q, coloured)), "verdict");
    }

    void hints()
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

    void numberDraws()
    {
        const auto all = drawMany<HalvesOfNumbers::Question>(HalvesOfNumbers::draw, 3000, 5);
        QVERIFY(!repeatsRunning(all, [](const HalvesOfNumbers::Question& a, const HalvesOfNumbers::Question& b) { return a.set == b.set; }));
        QSet<int> halves, quarters;
        for (const HalvesOfNumbers::Question& q : all) {
            QVERIFY(q.set >= 1 && q.set <= Halves::kSetCount);
            QVERIFY(q.amount >= q.bottom && q.amount <= 20 && q.amount % q.bottom == 0);
            QVERIFY((q.bottom == 2 && q.top == 1) || (q.bottom == 4 && q.top >= 1 && q.top <= 3));
            QVERIFY(q.answer() * q.bottom == q.amount * q.top);
            QVERIFY(QString::number(q.answer()).size() <= HalvesOfNumbers::kAnswerDigits);
            (q.bottom == 2 ? halves : quarters) << q.amount;
        }
        QCOMPARE(halves, (QSet<int>{2, 4, 6, 8, 10, 12, 14, 16, 18, 20}));
        QCOMPARE(quarters, (QSet<int>{4, 8, 12, 16, 20}));
    }

    void numberVerdicts_data()
    {
        QTest::addColumn<HalvesOfNumbers::Question>("q");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("verdict");
        QTest::newRow("right") << HalvesOfNumbers::Question{3, 4, 12} << "9" << "right: Three quarters of 12 is 9.";
        QTest::newRow("leading zero") << HalvesOfNumbers::Question{1, 2, 12} << "06" << "right: One half of 12 is 6.";
        QTest::newRow("one quarter, not three") << HalvesOfNumbers::Question{3, 4, 12} << "3"
                                                << "wrong: Three quarters of 12 is 9.";
        QTest::newRow("two quarters") << HalvesOfNumbers::Question{2, 4, 8} << "2" << "wrong: Two quarters of 8 is 4.";
        QTest::newRow("empty") << HalvesOfNumbers::Question{1, 2, 4} << "" << "refused: Type your answer in the box first!";
        QTest::newRow("zero") << HalvesOfNumbers::Question{1, 2, 4} << "0"
                              << "refused: 0 is not the answer: look at the pictures again.";
    }

    void numberVerdicts()
    {
        QFETCH(HalvesOfNumbers::Question, q);
        QFETCH(QString, typed);
        QTEST(said(HalvesOfNumbers::check(q, typed)), "verdict");
    }
};

QTEST_APPLESS_MAIN(TestHalvesActivities)
#include "tst_halvesactivities.moc"
