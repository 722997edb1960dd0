#include "runtime/random.h"

#include <QSet>
#include <QtTest>

class TestRandom : public QObject {
    Q_OBJECT
private slots:
    void drawsStayInRange()
    {
        Random::useClock();
        int buckets[10] = {};
        for (int i = 0; i < 20000; ++i) {
            const double r = Random::Rnd();
            QVERIFY(r >= 0.0 && r < 1.0);
            ++buckets[int(r * 10)];
        }
        for (int b : buckets)
            QVERIFY2(b > 1800 && b < 2200, "draws are not spread evenly");
    }

    void reseedingInATightLoopNeverRepeats_data()
    {
        QTest::addColumn<bool>("clock");
        QTest::newRow("clock") << true;
        QTest::newRow("fixed seed") << false;
    }

    void reseedingInATightLoopNeverRepeats()
    {
        QFETCH(bool, clock);
        // Many re-seeds fall within one clock tick; run twice, a fixed seed repeats its stream, the clock never does.
        QList<double> runs[2];
        for (QList<double>& run : runs) {
            clock ? Random::useClock() : Random::fixSeed(7);
            QSet<double> seen;
            for (int i = 0; i < 20000; ++i) {
                Random::Randomize();
                run << Random::Rnd();
                QVERIFY2(!seen.contains(run.last()), "a re-seed gave a number seen before");
                seen.insert(run.last());
            }
        }
        QCOMPARE(runs[0] == runs[1], !clock);
    }

    void reseedDrawRepeatUntilEnds()
    {
        // The screens' pattern: re-seed and draw until the draw differs from the last; it ends at once.
        Random::useClock();
        int last = int(Random::Rnd() * 6 + 1);
        for (int question = 0; question < 2000; ++question) {
            int n = 0, tries = 0;
            do {
                Random::Randomize();
                n = int(Random::Rnd() * 6 + 1);
                ++tries;
            } while (n == last && tries < 1000);
            QVERIFY(tries < 50);
            last = n;
        }
    }
};

QTEST_APPLESS_MAIN(TestRandom)
#include "tst_random.moc"
