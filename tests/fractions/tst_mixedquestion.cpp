#include "fractions/mixedquestion.h"
#include "runtime/random.h"
#include "shell/module1.h"

#include <QtTest>

Q_DECLARE_METATYPE(MixedQuestion)

namespace {
constexpr int toMixed = MixedQuestion::kToMixed, toImproper = MixedQuestion::kToImproper;
}

class TestMixedQuestion : public QObject {
    Q_OBJECT
private slots:
    // Proper fractions in lowest terms beside a whole number in its direction's range;
    // over many seeds both directions and the ends of the ranges (3/2 the smallest) come up.
    void drawsOverManySeeds()
    {
        int count[3] = {}, smallest[3] = {0, 1000, 1000}, largest[3] = {}, largestWhole[3] = {};
        QSet<int> tenths;
        for (quint64 seed = 1; seed <= 6000; ++seed) {
            Random::fixSeed(seed);
            const MixedQuestion q = MixedQuestion::draw(Random::program());
            const int d = q.direction;
            QVERIFY(d == toMixed || d == toImproper);
            QVERIFY2(q.whole >= 1 && q.numer >= 1 && q.numer < q.denom && q.denom <= 10, qPrintable(q.answerText()));
            QVERIFY(Module1::hcf(q.numer, q.denom) == 1 && Module1::hcf(q.improperNumerator(), q.denom) == 1);
            ++count[d];
            smallest[d] = std::min(smallest[d], int(q.improperNumerator()));
            largest[d] = std::max(largest[d], int(q.improperNumerator()));
            largestWhole[d] = std::max(largestWhole[d], int(q.whole));
            if (q.denom == 10)
                tenths << q.numer;
        }
        QVERIFY2(count[1] > 2700 && count[2] > 2700, qPrintable(QStringLiteral("%1 %2").arg(count[1]).arg(count[2])));
        QCOMPARE((QList<int>{smallest[1], largest[1], largestWhole[1], smallest[2], largest[2], largestWhole[2]}),
                 (QList<int>{3, 59, 5, 3, 99, 9}));
        QCOMPARE(tenths, (QSet<int>{1, 3, 7, 9}));
    }

    // The question is 11/4 = 2 and 3/4 either way; boxes Text1..Text5.
    void onlyTheExactNumbersAreRight_data()
    {
        QTest::addColumn<int>("direction");
        QTest::addColumn<QList<int>>("boxes");
        QTest::addColumn<bool>("right");
        QTest::newRow("mixed number, other boxes ignored") << toMixed << QList<int>{2, 4, 11, 3, 4} << true;
        QTest::newRow("numerator and denominator swapped") << toMixed << QList<int>{2, 3, 0, 4, 0} << false;
        QTest::newRow("whole and numerator only") << toMixed << QList<int>{2, 0, 0, 3, 0} << false;
        QTest::newRow("improper fraction, other boxes ignored") << toImproper << QList<int>{2, 4, 11, 3, 4} << true;
        QTest::newRow("unreduced 22/8") << toImproper << QList<int>{0, 0, 22, 0, 8} << false;
        QTest::newRow("numerator only") << toImproper << QList<int>{0, 0, 11, 0, 0} << false;
    }

    void onlyTheExactNumbersAreRight()
    {
        QFETCH(int, direction);
        QFETCH(QList<int>, boxes);
        const MixedQuestion q{direction, 2, 3, 4};
        QTEST(q.isAnswer({boxes[0], boxes[1], boxes[2], boxes[3], boxes[4]}), "right");
    }

    // The answer sentence and the hint in the four cases of each direction.
    void sentences_data()
    {
        QTest::addColumn<MixedQuestion>("q");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("product");
        QTest::addColumn<QString>("hint");
        QTest::newRow("11/4") << MixedQuestion{toMixed, 2, 3, 4} << "11/4 is 2 and 3/4" << ""
                              << "8 quarters is 2 whole ones with 3 quarters left over.";
        QTest::newRow("22/7") << MixedQuestion{toMixed, 3, 1, 7} << "22/7 is 3 and 1/7" << ""
                              << "21 sevenths is 3 whole ones with 1 seventh left over.";
        QTest::newRow("17/9") << MixedQuestion{toMixed, 1, 8, 9} << "17/9 is 1 and 8/9" << ""
                              << "9 ninths is 1 whole one with 8 ninths left over.";
        QTest::newRow("3/2") << MixedQuestion{toMixed, 1, 1, 2} << "3/2 is 1 and 1/2" << ""
                             << "2 halves is 1 whole one with 1 half left over.";
        QTest::newRow("2 and 3/4") << MixedQuestion{toImproper, 2, 3, 4} << "2 and 3/4 is 11/4" << "2 x 4 = 8"
                                   << "Each whole number is 4 quarters. You have 2 whole numbers and 3 quarters.";
        QTest::newRow("9 and 1/10") << MixedQuestion{toImproper, 9, 1, 10} << "9 and 1/10 is 91/10" << "9 x 10 = 90"
                                    << "Each whole number is 10 tenths. You have 9 whole numbers and 1 tenth.";
        QTest::newRow("1 and 5/8") << MixedQuestion{toImproper, 1, 5, 8} << "1 and 5/8 is 13/8" << "1 x 8 = 8"
                                   << "Each whole number is 8 eighths. You have 1 whole number and 5 eighths.";
        QTest::newRow("1 and 1/2") << MixedQuestion{toImproper, 1, 1, 2} << "1 and 1/2 is 3/2" << "1 x 2 = 2"
                                   << "Each whole number is 2 halves. You have 1 whole number and 1 half.";
        // Year 6 goes on to elevenths and twelfths.
        QTest::newRow("23/11") << MixedQuestion{toMixed, 2, 1, 11} << "23/11 is 2 and 1/11" << ""
                               << "22 elevenths is 2 whole ones with 1 eleventh left over.";
        QTest::newRow("12 and 11/12") << MixedQuestion{toImproper, 12, 11, 12} << "12 and 11/12 is 155/12" << "12 x 12 = 144"
                                      << "Each whole number is 12 twelfths. You have 12 whole numbers and 11 twelfths.";
    }

    void sentences()
    {
        QFETCH(MixedQuestion, q);
        QTEST(q.answerText(), "answer");
        QTEST(q.hintText(), "hint");
        QTEST(q.productText(), "product");
    }

    // The boards read the boxes of the question's own direction; 11/4 = 2 and 3/4 again.
    void boardCheck_data()
    {
        QTest::addColumn<int>("direction");
        QTest::addColumn<QList<int>>("typed");
        QTest::addColumn<int>("kind");
        QTest::newRow("mixed number right") << toMixed << QList<int>{2, 3, 4} << int(Verdict::Right);
        QTest::newRow("numerator and denominator swapped") << toMixed << QList<int>{2, 4, 3} << int(Verdict::Wrong);
        QTest::newRow("an empty box") << toMixed << QList<int>{2, 0, 4} << int(Verdict::NotCheckable);
        QTest::newRow("improper fraction right") << toImproper << QList<int>{11, 4} << int(Verdict::Right);
        QTest::newRow("unreduced 22/8") << toImproper << QList<int>{22, 8} << int(Verdict::Wrong);
        QTest::newRow("nothing typed") << toImproper << QList<int>{0, 0} << int(Verdict::NotCheckable);
    }

    void boardCheck()
    {
        QFETCH(int, direction);
        QFETCH(QList<int>, typed);
        QFETCH(int, kind);
        const MixedQuestion q{direction, 2, 3, 4};
        const Verdict verdict = q.check(typed);
        QCOMPARE(int(verdict.kind), kind);
        QCOMPARE(verdict.statement, kind == Verdict::NotCheckable ? QStringLiteral("Type a number in every box first!")
                                                                  : q.answerText() + QLatin1Char('.'));
        const bool mixed = direction == toMixed;
        QCOMPARE(q.instruction(true), mixed ? QStringLiteral("Change eleven quarters to a mixed number.")
                                            : QStringLiteral("Change two and three quarters to an improper fraction."));
        QCOMPARE(q.instruction(false), mixed ? QStringLiteral("Change 11/4 to a mixed number.")
                                             : QStringLiteral("Change 2 and 3/4 to an improper fraction."));
    }
};

QTEST_APPLESS_MAIN(TestMixedQuestion)
#include "tst_mixedquestion.moc"
