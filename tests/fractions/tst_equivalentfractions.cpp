// Equivalent Fractions 1, 2 and 3 without their screens: every draw keeps
// the activities' rules, and each answer gets its verdict and its sentence.
#include "fractions/equivalentfractions.h"
#include "fractions/fraction.h"
#include "draws.h"
#include "runtime/random.h"
#include "verdicttext.h"

#include <QSet>
#include <QtTest>

using Equivalent::Blank;
using Equivalent::Pair;
using Fractions::Fraction;
Q_DECLARE_METATYPE(Equivalent::Pair)

class TestEquivalentFractions : public QObject {
    Q_OBJECT
private slots:
    void pairDraws_data()
    {
        QTest::addColumn<bool>("onWall");
        QTest::newRow("on the wall") << true;
        QTest::newRow("anywhere") << false;
    }

    // Both fractions equal, the first in lowest terms below 1, every range kept,
    // no question twice in a row, and every place of the blank comes.
    void pairDraws()
    {
        QFETCH(bool, onWall);
        const auto all = drawMany<Pair>(onWall ? Equivalent::drawOnWall : Equivalent::drawAnywhere, 5000);
        QVERIFY(!repeatsRunning(all));
        QSet<int> blanks, bottoms, factors;
        for (const Pair& p : all) {
            QVERIFY(Fractions::inLowestTerms(p.top, p.bottom) && p.top >= 1 && p.top < p.bottom);
            const int first = onWall ? Equivalent::kWallSmallestBottom : Equivalent::kSmallestBottom;
            const int most = onWall ? Equivalent::kWallLargestBottom : Equivalent::kLargestBottom;
            QVERIFY(p.bottom >= first && p.bottom <= most);
            QVERIFY(p.factor >= 2 && p.factor <= (onWall ? 4 : 5));
            QCOMPARE(Fraction(p.number(Blank::FirstTop), p.number(Blank::FirstBottom)),
                     Fraction(p.number(Blank::SecondTop), p.number(Blank::SecondBottom)));
            if (onWall)
                QVERIFY(!p.largerFirst && p.blank == Blank::SecondTop
                        && p.bottom * p.factor <= Equivalent::kWallLargestSecondBottom);
            QVERIFY(QString::number(p.answer()).size() <= Equivalent::kAnswerDigits);
            blanks << int(p.blank) * 2 + int(p.largerFirst);
            bottoms << p.bottom;
            factors << p.factor;
        }
        QCOMPARE(blanks.size(), onWall ? 1 : 8);
        QCOMPARE(bottoms.size(), onWall ? 5 : 11);
        QCOMPARE(factors.size(), onWall ? 3 : 4);
    }

    // One card equal to the fraction, with top and bottom multiplied by the same
    // number; three traps unequal to it and to one another; all below 1.
    void choiceDraws()
    {
        const auto all = drawMany<Equivalent::Choice>(Equivalent::drawChoice, 5000, 8);
        QVERIFY(!repeatsRunning(all));
        QSet<int> rightPlaces;
        for (const Equivalent::Choice& c : all) {
            QVERIFY(Fractions::inLowestTerms(c.top, c.bottom) && c.top < c.bottom);
            QVERIFY(c.bottom <= Equivalent::kChoiceLargestBottom && c.factor >= 2 && c.factor <= 5);
            QSet<QString> values;
            for (int n = 0; n < Equivalent::kCards; ++n) {
                const Equivalent::Card& card = c.cards[n];
                QVERIFY(card.top >= 1 && card.top < card.bottom && card.bottom <= Equivalent::kCardLargestBottom);
                QCOMPARE(Fraction(card.top, card.bottom) == Fraction(c.top, c.bottom), n == c.right);
                values << Fraction(card.top, card.bottom).text();
            }
            QCOMPARE(values.size(), Equivalent::kCards);
            QCOMPARE(c.cards[c.right].top, c.top * c.factor);
            QCOMPARE(c.cards[c.right].bottom, c.bottom * c.factor);
            rightPlaces << c.right;
        }
        QCOMPARE(rightPlaces.size(), Equivalent::kCards);
    }

    // 12/16 = 3/?
    void pairVerdicts_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("verdict");
        QTest::newRow("right") << "4" << "right: 12/16 is equal to 3/4.";
        QTest::newRow("leading zero") << "04" << "right: 12/16 is equal to 3/4.";
        QTest::newRow("the larger bottom") << "16" << "wrong: 12/16 is equal to 3/4.";
        QTest::newRow("the factor") << "3" << "wrong: 12/16 is equal to 3/4.";
        QTest::newRow("zero") << "00" << "refused: The missing number is never 0: look at the fractions again.";
    }

    void pairVerdicts()
    {
        QFETCH(QString, typed);
        const Pair p{3, 4, 4, true, Blank::SecondBottom};
        QCOMPARE(p.text(), QStringLiteral("12/16 = 3/?"));
        QTEST(said(Equivalent::check(p, typed)), "verdict");
    }

    void choiceVerdicts()
    {
        const Equivalent::Choice c{2, 3, 2, {{{3, 4}, {2, 6}, {4, 6}, {4, 9}}}, 2};
        QCOMPARE(said(Equivalent::checkChoice(c, 2)), QStringLiteral("right: 4/6 is equal to 2/3."));
        QCOMPARE(said(Equivalent::checkChoice(c, 1)), QStringLiteral("wrong: 2/6 is not equal to 2/3: 4/6 is."));
        QCOMPARE(said(Equivalent::checkChoice(c, -1)), QStringLiteral("refused: Choose one of the cards first!"));
        QCOMPARE(Equivalent::choiceHint(c),
                 QStringLiteral("Multiply the top and the bottom by the same number: 2 × 2 = 4 and 3 × 2 = 6."));
    }

    // The question as written and read, and its hint, for each place of the blank.
    void sentences_data()
    {
        QTest::addColumn<Pair>("p");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("spoken");
        QTest::addColumn<QString>("hint");
        QTest::newRow("making the bottom") << Pair{3, 4, 3, false, Blank::SecondBottom} << "3/4 = 9/?"
                                           << "three quarters equals nine out of how many?"
                                           << "3 × 3 = 9, so the bottom is multiplied by 3 too: 4 × 3 = 12.";
        QTest::newRow("making the top") << Pair{2, 3, 4, false, Blank::SecondTop} << "2/3 = ?/12"
                                        << "two thirds equals how many twelfths?"
                                        << "3 × 4 = 12, so the top is multiplied by 4 too: 2 × 4 = 8.";
        QTest::newRow("simplifying the top") << Pair{3, 5, 2, false, Blank::FirstTop} << "?/5 = 6/10"
                                             << "How many fifths equal six tenths?"
                                             << "10 ÷ 2 = 5, so the top is divided by 2 too: 6 ÷ 2 = 3.";
        QTest::newRow("simplifying the bottom") << Pair{3, 4, 4, true, Blank::SecondBottom} << "12/16 = 3/?"
                                                << "twelve 16ths equals three out of how many?"
                                                << "12 ÷ 4 = 3, so the bottom is divided by 4 too: 16 ÷ 4 = 4.";
        QTest::newRow("larger first, making") << Pair{1, 2, 5, true, Blank::FirstBottom} << "5/? = 1/2"
                                              << "five out of how many equals one half?"
                                              << "1 × 5 = 5, so the bottom is multiplied by 5 too: 2 × 5 = 10.";
    }

    void sentences()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral("QString::arg")));
        QFETCH(Pair, p);
        QTEST(p.text(), "text");
        QTEST(p.spoken(), "spoken");
        QTEST(Equivalent::hint(p), "hint");
        if (!p.largerFirst && p.blank == Blank::SecondTop)
            QCOMPARE(Equivalent::wallHint(p), QStringLiteral("12 ÷ 3 = 4, so the top is multiplied by 4 too: 2 × 4 = 8."));
    }
};

QTEST_APPLESS_MAIN(TestEquivalentFractions)
#include "tst_equivalentfractions.moc"
