// The questions of Halves and Quarters, drawn many times over many seeds.
#include "activities/halves/halvesquestion.h"
#include "runtime/random.h"

#include <QSet>
#include <QtTest>

using namespace Halves;

class TestHalvesQuestion : public QObject {
    Q_OBJECT
private slots:
    void drawsFollowTheRules_data();
    void drawsFollowTheRules();
    void wordsOfAQuestion_data();
    void wordsOfAQuestion();
};

void TestHalvesQuestion::drawsFollowTheRules_data()
{
    QTest::addColumn<quint64>("seed");
    for (quint64 seed : {1ULL, 2ULL, 77ULL, 4096ULL, 123456789ULL})
        QTest::addRow("seed %llu", seed) << seed;
}

// A long run of questions, each drawn after the one before, as the board
// draws them: every count is a multiple of its parts, the target is a whole
// number from 1 to 8, neither the set nor the count comes twice in a row,
// and every set, both fractions and every possible count turn up.
void TestHalvesQuestion::drawsFollowTheRules()
{
    QFETCH(quint64, seed);
    Random::fixSeed(seed);
    const QSet<int> halfCounts{2, 4, 6, 8, 10, 12, 14, 16};
    const QSet<int> quarterCounts{4, 8, 12, 16};
    QSet<int> sets, halves, quarters;
    int halfQuestions = 0;
    Question last;
    for (int i = 0; i < 2000; ++i) {
        const Question q = drawQuestion(last.set, last.howmany);
        QVERIFY2(q.parts == 2 || q.parts == 4, qPrintable(QString::number(q.parts)));
        QVERIFY(q.set >= 1 && q.set <= kSetCount);
        QVERIFY((q.parts == 2 ? halfCounts : quarterCounts).contains(q.howmany));
        QCOMPARE(q.target * q.parts, q.howmany);
        QVERIFY(q.target >= 1 && q.target <= 8);
        QVERIFY(q.set != last.set);
        QVERIFY(q.howmany != last.howmany);
        sets << q.set;
        (q.parts == 2 ? halves : quarters) << q.howmany;
        halfQuestions += q.parts == 2;
        last = q;
    }
    QCOMPARE(sets.size(), kSetCount);
    QCOMPARE(halves, halfCounts);
    QCOMPARE(quarters, quarterCounts);
    // The 3s are thrown away, not turned into 2s or 4s: about as many of each.
    QVERIFY2(halfQuestions > 850 && halfQuestions < 1150, qPrintable(QString::number(halfQuestions)));
}

void TestHalvesQuestion::wordsOfAQuestion_data()
{
    QTest::addColumn<int>("parts");
    QTest::addColumn<int>("set");
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("instruction");
    QTest::addColumn<QString>("right");
    QTest::addColumn<QString>("wrong");
    QTest::addColumn<QString>("file");
    QTest::newRow("one holly") << 2 << 1 << 1 << "Click on one half of the holly" << "You chose one half of the holly"
                               << "You should have clicked on 1 picture" << "gif\\leaf.gif";
    QTest::newRow("ducks") << 4 << 2 << 2 << "Click on one quarter of the ducks" << "You chose one quarter of the ducks"
                           << "You should have clicked on 2 pictures" << "gif\\wb01747_.gif";
    QTest::newRow("suns") << 2 << 3 << 8 << "Click on one half of the suns" << "You chose one half of the suns"
                          << "You should have clicked on 8 pictures" << "gif\\wb01330_.gif";
    QTest::newRow("dinosaurs") << 4 << 4 << 1 << "Click on one quarter of the dinosaurs"
                               << "You chose one quarter of the dinosaurs" << "You should have clicked on 1 picture"
                               << "gif\\wb01742_.gif";
    QTest::newRow("spiders") << 2 << 5 << 3 << "Click on one half of the spiders" << "You chose one half of the spiders"
                             << "You should have clicked on 3 pictures" << "gif\\wb01299_.gif";
    QTest::newRow("gorillas") << 4 << 6 << 4 << "Click on one quarter of the gorillas"
                              << "You chose one quarter of the gorillas" << "You should have clicked on 4 pictures"
                              << "gif\\wb01746_.gif";
}

void TestHalvesQuestion::wordsOfAQuestion()
{
    QFETCH(int, parts);
    QFETCH(int, set);
    QFETCH(int, target);
    QFETCH(QString, instruction);
    QFETCH(QString, right);
    QFETCH(QString, wrong);
    QFETCH(QString, file);
    const Question q{parts, set, target * parts, target};
    QCOMPARE(q.instruction(), instruction);
    QCOMPARE(q.rightAnswer(), right);
    QCOMPARE(shouldHaveClicked(q.target), wrong);
    QCOMPARE(q.pictureFile(), file);
}

QTEST_MAIN(TestHalvesQuestion)
#include "tst_halvesquestion.moc"
