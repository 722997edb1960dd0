// Equivalent Fractions and Cancelling without their screens: every draw
// keeps the activities' rules, and each answer gets its verdict and sentence.
#include "fractions/cancelling.h"
#include "fractions/equivalentchain.h"
#include "fractions/fraction.h"
#include "runtime/random.h"

#include <QSet>
#include <QtTest>

using Fractions::inLowestTerms;

class TestEquivalence : public QObject {
    Q_OBJECT
private slots:
    void chainDraws();
    void chainVerdicts_data();
    void chainVerdicts();
    void cancelDraws();
    void cancelVerdicts_data();
    void cancelVerdicts();
    void hints();
};

void TestEquivalence::chainDraws()
{
    for (quint64 seed : {3ULL, 41ULL, 2026ULL}) {
        Random::Source rnd(seed);
        EquivalentChain::Question last;
        QSet<int> bottoms, multipliers;
        for (int i = 0; i < 10000; ++i) {
            const EquivalentChain::Question q = EquivalentChain::draw(rnd, i ? &last : nullptr);
            QVERIFY(i == 0 || !(q == last));
            QVERIFY(q.bottom >= 2 && q.bottom <= 6 && q.top >= 1 && q.top < q.bottom);
            QVERIFY(inLowestTerms(q.top, q.bottom));
            QVERIFY(q.multipliers[0] >= 2 && q.multipliers[2] <= 6);
            QVERIFY(q.multipliers[0] < q.multipliers[1] && q.multipliers[1] < q.multipliers[2]);
            // One number missing in each made fraction: three in all.
            for (int f = 0; f < EquivalentChain::kMade; ++f)
                QVERIFY(q.missing[std::size_t(2 * f)] != q.missing[std::size_t(2 * f + 1)]);
            for (int n = 0; n < EquivalentChain::kNumbers; ++n)
                QVERIFY(QString::number(q.number(n)).size() <= EquivalentChain::kAnswerDigits);
            QCOMPARE(q.text().count(QLatin1Char('?')), 3);
            bottoms << q.bottom;
            multipliers << q.multipliers[0] * 100 + q.multipliers[1] * 10 + q.multipliers[2];
            last = q;
        }
        QCOMPARE(bottoms, (QSet<int>{2, 3, 4, 5, 6}));
        QCOMPARE(multipliers.size(), 10); // every three of 2..6
    }
}

void TestEquivalence::chainVerdicts_data()
{
    QTest::addColumn<QStringList>("typed");
    QTest::addColumn<int>("verdict");
    QTest::addColumn<QString>("statement");
    // 2/3 = ?/6 = 6/? = ?/12
    const QString chain = QStringLiteral("2/3 = 4/6 = 6/9 = 8/12.");
    QTest::newRow("right") << QStringList{"4", "9", "8"} << int(Verdict::Right) << chain;
    QTest::newRow("leading zero") << QStringList{"04", "09", "8"} << int(Verdict::Right) << chain;
    QTest::newRow("one wrong") << QStringList{"4", "9", "9"} << int(Verdict::Wrong) << chain;
    QTest::newRow("top of 0") << QStringList{"0", "9", "8"} << int(Verdict::Wrong) << chain;
    QTest::newRow("bottom of 0") << QStringList{"4", "0", "8"} << int(Verdict::NotCheckable)
                                 << "A bottom number cannot be 0.";
}

void TestEquivalence::chainVerdicts()
{
    QFETCH(QStringList, typed);
    QFETCH(int, verdict);
    QFETCH(QString, statement);
    EquivalentChain::Question q;
    q.top = 2;
    q.bottom = 3;
    q.multipliers = {2, 3, 4};
    q.missing = {true, false, false, true, true, false};
    QCOMPARE(q.text(), QStringLiteral("2/3 = ?/6 = 6/? = ?/12"));
    const Verdict v = EquivalentChain::check(q, typed);
    QCOMPARE(int(v.kind), verdict);
    QCOMPARE(v.statement, statement);
}

void TestEquivalence::cancelDraws()
{
    for (quint64 seed : {8ULL, 77ULL, 1234ULL}) {
        Random::Source rnd(seed);
        Cancelling::Question last;
        QSet<int> simplestBottoms, factors;
        for (int i = 0; i < 10000; ++i) {
            const Cancelling::Question q = Cancelling::draw(rnd, i ? &last : nullptr);
            QVERIFY(i == 0 || !(q == last));
            QVERIFY(q.simplestBottom >= 2 && q.simplestBottom <= 12);
            QVERIFY(q.simplestTop >= 1 && q.simplestTop < q.simplestBottom);
            QVERIFY(inLowestTerms(q.simplestTop, q.simplestBottom));
            QVERIFY(q.factor >= 2 && q.factor <= 10);
            QVERIFY(q.bottom() <= 100);
            // The shown fraction can be cancelled, and only by the factor.
            QCOMPARE(Fractions::hcf(q.top(), q.bottom()), q.factor);
            QVERIFY(q.answerText().size() <= 2 * Cancelling::kAnswerDigits + 1);
            simplestBottoms << q.simplestBottom;
            factors << q.factor;
            last = q;
        }
        QCOMPARE(simplestBottoms.size(), 11);
        QCOMPARE(factors.size(), 9);
    }
}

void TestEquivalence::cancelVerdicts_data()
{
    QTest::addColumn<QString>("top");
    QTest::addColumn<QString>("bottom");
    QTest::addColumn<int>("verdict");
    QTest::addColumn<QString>("statement");
    // 18/24
    const QString worked = QStringLiteral("18/24 cancels to 3/4: divide the top and the bottom by 6.");
    QTest::newRow("simplest") << "3" << "4" << int(Verdict::Right) << worked;
    QTest::newRow("equal, cancel further") << "9" << "12" << int(Verdict::NotCheckable)
                                           << "18/24 is equal to 9/12, but it can be cancelled further.";
    QTest::newRow("equal, larger") << "36" << "48" << int(Verdict::NotCheckable)
                                   << "18/24 is equal to 36/48, but it can be cancelled further.";
    QTest::newRow("typed back") << "18" << "24" << int(Verdict::NotCheckable)
                                << "18/24 is the fraction to cancel: divide its top and its bottom by the same number.";
    QTest::newRow("upside down") << "4" << "3" << int(Verdict::Wrong) << worked;
    QTest::newRow("top only divided") << "3" << "24" << int(Verdict::Wrong) << worked;
    QTest::newRow("top of 0") << "0" << "4" << int(Verdict::Wrong) << worked;
    QTest::newRow("bottom blank") << "3" << "" << int(Verdict::NotCheckable)
                                  << "Type a top number and a bottom number first!";
}

void TestEquivalence::cancelVerdicts()
{
    QFETCH(QString, top);
    QFETCH(QString, bottom);
    QFETCH(int, verdict);
    QFETCH(QString, statement);
    const Cancelling::Question q{3, 4, 6};
    QCOMPARE(q.instruction(), QStringLiteral("Cancel 18/24 to its simplest form."));
    const Verdict v = Cancelling::check(q, top, bottom);
    QCOMPARE(int(v.kind), verdict);
    QCOMPARE(v.statement, statement);
}

void TestEquivalence::hints()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("QString::arg")));
    EquivalentChain::Question chain;
    chain.top = 2;
    chain.bottom = 3;
    chain.multipliers = {2, 3, 4};
    QCOMPARE(EquivalentChain::hint(chain), QStringLiteral("Every fraction in the chain is 2/3 with top and bottom "
                                                          "multiplied by the same number: × 2, × 3, × 4."));
    chain.missing = {false, true, true, false, false, true};
    QCOMPARE(chain.spoken(), QStringLiteral("two thirds equals four over what number, equals how many ninths, "
                                            "equals eight over what number"));
    QCOMPARE(Cancelling::hint({3, 4, 6}), QStringLiteral("The highest common factor of 18 and 24 is 6."));
}

QTEST_MAIN(TestEquivalence)
#include "tst_equivalence.moc"
