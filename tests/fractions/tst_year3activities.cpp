// Choosing a fraction of a set of pictures and finding a fraction of a number,
// without their screens: every draw keeps its activity's rules, and each
// answer gets its verdict and its sentence.
#include "fractions/fractionof.h"
#include "fractions/halvesquestion.h"
#include "fractions/partsofset.h"
#include "draws.h"
#include "runtime/random.h"
#include "verdicttext.h"

#include <QSet>
#include <QtTest>

Q_DECLARE_METATYPE(PartsOfSet::Question)
Q_DECLARE_METATYPE(FractionOf::Question)

class TestYear3Activities : public QObject {
    Q_OBJECT
private slots:
    void setDraws()
    {
        // Each bottom number's counts, as the pictures can be shared.
        const QMap<int, QSet<int>> counts{{2, {2, 4, 6, 8, 10, 12, 14, 16, 18, 20}},
                                          {3, {3, 6, 9, 12, 15, 18}},
                                          {4, {4, 8, 12, 16, 20}},
                                          {10, {10, 20}}};
        const auto all = drawMany<PartsOfSet::Question>(PartsOfSet::draw, 3000);
        QVERIFY(!repeatsRunning(all, [](const PartsOfSet::Question& a, const PartsOfSet::Question& b) { return a.set == b.set; }));
        QMap<int, QSet<int>> seenCounts;
        QSet<QString> seenFractions;
        for (const PartsOfSet::Question& q : all) {
            QVERIFY(q.set >= 1 && q.set <= Halves::kSetCount);
            QVERIFY(q.howmany <= PartsOfSet::kMostPictures && q.howmany % q.bottom == 0);
            QVERIFY(counts.value(q.bottom).contains(q.howmany));
            QVERIFY(q.target() * q.bottom == q.howmany * q.top && q.target() >= 1 && q.target() < q.howmany);
            seenCounts[q.bottom] << q.howmany;
            seenFractions << QStringLiteral("%1/%2").arg(q.top).arg(q.bottom);
        }
        QCOMPARE(seenCounts, counts);
        QCOMPARE(seenFractions, (QSet<QString>{"1/2", "1/3", "2/3", "1/4", "3/4", "1/10", "3/10", "7/10", "9/10"}));
    }

    // Ducks.
    void setVerdicts_data()
    {
        QTest::addColumn<PartsOfSet::Question>("q");
        QTest::addColumn<int>("chosen");
        QTest::addColumn<QString>("verdict");
        const PartsOfSet::Question twoThirds{2, 3, 12, 2}, oneTenth{1, 10, 10, 2}, nineTenths{9, 10, 20, 2};
        QTest::newRow("2/3 of 12 right") << twoThirds << 8 << "right: You chose two thirds of the ducks.";
        QTest::newRow("one third for two") << twoThirds << 4 << "wrong: You should have clicked on 8 pictures";
        QTest::newRow("1/10 of 10: one") << oneTenth << 2 << "wrong: You should have clicked on 1 picture";
        QTest::newRow("9/10 of 20 right") << nineTenths << 18 << "right: You chose nine tenths of the ducks.";
    }

    void setVerdicts()
    {
        QFETCH(PartsOfSet::Question, q);
        QFETCH(int, chosen);
        QTEST(said(PartsOfSet::check(q, chosen)), "verdict");
    }

    void numberDraws_data()
    {
        QTest::addColumn<int>("year");
        QTest::addColumn<QList<int>>("bottoms");
        QTest::addColumn<int>("leastTimes");
        QTest::addColumn<int>("mostTimes");
        QTest::addColumn<int>("digits");
        QTest::newRow("Year 3") << 3 << QList<int>{2, 3, 4, 5, 10} << 1 << 10 << 2;
        QTest::newRow("Year 5") << 5 << QList<int>{2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12} << 2 << 12 << 3;
    }

    void numberDraws()
    {
        QFETCH(int, year);
        QFETCH(QList<int>, bottoms);
        QFETCH(int, leastTimes);
        QFETCH(int, mostTimes);
        QFETCH(int, digits);
        const FractionOf::Ranges& ranges = year == 3 ? FractionOf::kYear3 : FractionOf::kYear5;
        QCOMPARE(FractionOf::answerDigits(ranges), digits);
        const auto all = drawMany<FractionOf::Question>(
            [&](Random::Source& rnd, const FractionOf::Question* last) { return FractionOf::draw(ranges, rnd, last); }, 5000, 8);
        QVERIFY(!repeatsRunning(all));
        QSet<int> seenBottoms, seenTimes;
        int longest = 0;
        for (const FractionOf::Question& q : all) {
            QVERIFY(bottoms.contains(q.bottom) && q.top >= 1 && q.top < q.bottom);
            const int times = q.amount / q.bottom;
            QVERIFY(q.amount == q.bottom * times && times >= leastTimes && times <= mostTimes);
            QCOMPARE(q.answer() * q.bottom, q.amount * q.top);
            longest = std::max(longest, int(QString::number(q.answer()).size()));
            seenBottoms << q.bottom;
            seenTimes << times;
        }
        QCOMPARE(longest, digits);
        QCOMPARE(seenBottoms.size(), bottoms.size());
        QCOMPARE(seenTimes.size(), mostTimes - leastTimes + 1);
    }

    void numberVerdicts_data()
    {
        using Q = FractionOf::Question;
        QTest::addColumn<Q>("q");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("verdict");
        QTest::newRow("right") << Q{2, 3, 12} << "8" << "right: 2/3 of 12 is 8.";
        QTest::newRow("leading zero") << Q{3, 5, 40} << "024" << "right: 3/5 of 40 is 24.";
        QTest::newRow("one third, not two") << Q{2, 3, 12} << "4" << "wrong: 2/3 of 12 is 8.";
        QTest::newRow("the amount") << Q{7, 12, 144} << "144" << "wrong: 7/12 of 144 is 84.";
        QTest::newRow("zero") << Q{1, 2, 4} << "00" << "refused: 0 is not the answer: look at the bar again.";
    }

    void numberVerdicts()
    {
        QFETCH(FractionOf::Question, q);
        QFETCH(QString, typed);
        QTEST(said(FractionOf::check(q, typed)), "verdict");
    }

    void hints()
    {
        // Every placeholder filled, none left over.
        QTest::failOnWarning(QRegularExpression(QStringLiteral("QString::arg")));
        QCOMPARE(PartsOfSet::hint({2, 3, 12, 2}),
                 QStringLiteral("12 ducks in 3 equal groups is 4 in each group. Two thirds is 2 groups: 8 ducks."));
        QCOMPARE(PartsOfSet::hint({1, 10, 10, 3}),
                 QStringLiteral("10 suns in 10 equal groups is 1 in each group. One tenth is 1 group: 1 sun."));
        const PartsOfSet::Question q{3, 4, 8, 2};
        QCOMPARE(PartsOfSet::progress(q, 0), QStringLiteral("You have not chosen any yet."));
        QCOMPARE(PartsOfSet::progress(q, 5), QStringLiteral("You have chosen 5: that is not enough yet."));
        QCOMPARE(PartsOfSet::progress(q, 6), QStringLiteral("You have chosen 6: that is just right!"));
        QCOMPARE(PartsOfSet::progress(q, 7), QStringLiteral("You have chosen 7: that is too many."));
        QCOMPARE(FractionOf::hint({2, 3, 12}), QStringLiteral("First 1/3 of 12: 12 ÷ 3 = 4. Then 2/3 is 2 lots of 4: 8."));
        QCOMPARE(FractionOf::hint({1, 5, 35}), QStringLiteral("To find 1/5 of 35, share 35 into 5 equal boxes: 35 ÷ 5 = 7."));
    }
};

QTEST_APPLESS_MAIN(TestYear3Activities)
#include "tst_year3activities.moc"
