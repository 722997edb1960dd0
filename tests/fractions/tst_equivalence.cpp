// Equivalent Fractions and Cancelling without their screens: every draw
// keeps the activities' rules, and each answer gets its verdict and sentence.
#include "fractions/cancelling.h"
#include "fractions/equivalentchain.h"
#include "fractions/fraction.h"
#include "draws.h"
#include "runtime/random.h"
#include "verdicttext.h"

#include <QSet>
#include <QtTest>

using Fractions::inLowestTerms;

class TestEquivalence : public QObject {
    Q_OBJECT
private slots:
    void chainDraws()
    {
        const auto all = drawMany<EquivalentChain::Question>(EquivalentChain::draw, 3000);
        QVERIFY(!repeatsRunning(all));
        QSet<int> bottoms, multipliers;
        for (const EquivalentChain::Question& q : all) {
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
        }
        QCOMPARE(bottoms, (QSet<int>{2, 3, 4, 5, 6}));
        QCOMPARE(multipliers.size(), 10); // every three of 2..6
    }

    // 2/3 = ?/6 = 6/? = ?/12
    void chainVerdicts_data()
    {
        QTest::addColumn<QStringList>("typed");
        QTest::addColumn<QString>("verdict");
        const QString chain = QStringLiteral("2/3 = 4/6 = 6/9 = 8/12.");
        QTest::newRow("right") << QStringList{"4", "9", "8"} << "right: " + chain;
        QTest::newRow("leading zero") << QStringList{"04", "09", "8"} << "right: " + chain;
        QTest::newRow("one wrong") << QStringList{"4", "9", "9"} << "wrong: " + chain;
        QTest::newRow("top of 0") << QStringList{"0", "9", "8"} << "wrong: " + chain;
        QTest::newRow("bottom of 0") << QStringList{"4", "0", "8"} << "refused: A bottom number cannot be 0.";
    }

    void chainVerdicts()
    {
        QFETCH(QStringList, typed);
        const EquivalentChain::Question q{2, 3, {2, 3, 4}, {true, false, false, true, true, false}};
        QCOMPARE(q.text(), QStringLiteral("2/3 = ?/6 = 6/? = ?/12"));
        QTEST(said(EquivalentChain::check(q, typed)), "verdict");
    }

    void cancelDraws()
    {
        const auto all = drawMany<Cancelling::Question>(Cancelling::draw, 3000, 8);
        QVERIFY(!repeatsRunning(all));
        QSet<int> simplestBottoms, factors;
        for (const Cancelling::Question& q : all) {
            QVERIFY(q.simplestBottom >= 2 && q.simplestBottom <= 12);
            QVERIFY(q.simplestTop >= 1 && q.simplestTop < q.simplestBottom);
            QVERIFY(inLowestTerms(q.simplestTop, q.simplestBottom));
            QVERIFY(q.factor >= 2 && q.factor <= 10 && q.bottom() <= 100);
            // The shown fraction can be cancelled, and only by the factor.
            QCOMPARE(Fractions::hcf(q.top(), q.bottom()), q.factor);
            QVERIFY(q.answerText().size() <= 2 * Cancelling::kAnswerDigits + 1);
            simplestBottoms << q.simplestBottom;
            factors << q.factor;
        }
        QCOMPARE(simplestBottoms.size(), 11);
        QCOMPARE(factors.size(), 9);
    }

    // 18/24
    void cancelVerdicts_data()
    {
        QTest::addColumn<QString>("top");
        QTest::addColumn<QString>("bottom");
        QTest::addColumn<QString>("verdict");
        const QString worked = QStringLiteral("18/24 cancels to 3/4: divide the top and the bottom by 6.");
        QTest::newRow("simplest") << "3" << "4" << "right: " + worked;
        QTest::newRow("equal, cancel further")
            << "9" << "12" << "refused: 18/24 is equal to 9/12, but it can be cancelled further.";
        QTest::newRow("typed back")
            << "18" << "24" << "refused: 18/24 is the fraction to cancel: divide its top and its bottom by the same number.";
        QTest::newRow("upside down") << "4" << "3" << "wrong: " + worked;
        QTest::newRow("top of 0") << "0" << "4" << "wrong: " + worked;
        QTest::newRow("bottom blank") << "3" << "" << "refused: Type a top number and a bottom number first!";
    }

    void cancelVerdicts()
    {
        QFETCH(QString, top);
        QFETCH(QString, bottom);
        const Cancelling::Question q{3, 4, 6};
        QCOMPARE(q.instruction(), QStringLiteral("Cancel 18/24 to its simplest form."));
        QTEST(said(Cancelling::check(q, top, bottom)), "verdict");
    }

    void hints()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral("QString::arg")));
        const EquivalentChain::Question chain{2, 3, {2, 3, 4}, {false, true, true, false, false, true}};
        QCOMPARE(EquivalentChain::hint(chain), QStringLiteral("Every fraction in the chain is 2/3 with top and bottom "
                                                              "multiplied by the same number: × 2, × 3, × 4."));
        QCOMPARE(chain.spoken(), QStringLiteral("two thirds equals four over what number, equals how many ninths, "
                                                "equals eight over what number"));
        QCOMPARE(Cancelling::hint({3, 4, 6}), QStringLiteral("The highest common factor of 18 and 24 is 6."));
    }
};

QTEST_MAIN(TestEquivalence)
#include "tst_equivalence.moc"
