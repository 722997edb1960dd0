#include "runtime/random.h"

#include <QSet>
#include <QtTest>

class TestRandom : public QObject {
    Q_OBJECT
private slots:
    void drawsStayInRange();
    void reseedingInATightLoopNeverRepeats_data();
    void reseedingInATightLoopNeverRepeats();
    void reseedDrawRepeatUntilEnds();
};

void TestRandom::drawsStayInRange()
{
    Random::useClock();
    int buckets[10] = {};
    for (int i = 0; i < 100000; ++i) {
        const double r = Random::Rnd();
        QVERIFY(r >= 0.0 && r < 1.0);
        ++buckets[int(r * 10)];
    }
    for (int b : buckets)
        QVERIFY2(b > 9000 && b < 11000, "draws are not spread evenly");
}

void TestRandom::reseedingInATightLoopNeverRepeats_data()
{
    QTest::addColumn<bool>("clock");
    QTest::newRow("clock") << true;
    QTest::newRow("fixed seed") << false;
}

void TestRandom::reseedingInATightLoopNeverRepeats()
{
    QFETCH(bool, clock);
    // Many re-seeds fall within one clock tick here; each must still move on.
    // Run twice: a fixed seed gives the same stream again, the clock never does.
    QList<double> runs[2];
    for (QList<double>& run : runs) {
        clock ? Random::useClock() : Random::fixSeed(7);
        QSet<double> seen;
        for (int i = 0; i < 100000; ++i) {
            Random::Randomize();
            run << Random::Rnd();
            QVERIFY2(!seen.contains(run.last()), "a re-seed gave a number seen before");
            seen.insert(run.last());
        }
    }
    QCOMPARE(runs[0] == runs[1], !clock);
}

void TestRandom::reseedDrawRepeatUntilEnds()
{
    // The screens' pattern: re-seed, draw, until the draw differs from the
    // last one. It must end at once, not spin for a clock tick.
    Random::useClock();
    int last = int(Random::Rnd() * 6 + 1);
    for (int question = 0; question < 10000; ++question) {
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

QTEST_APPLESS_MAIN(TestRandom)
#include "tst_random.moc"
