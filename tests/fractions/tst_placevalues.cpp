// How Many?, Finding Amounts and Digits without their screens: every draw
// keeps the activity's rules, each answer gets its verdict and its sentence,
// and no desktop language changes a number.
#include "fractions/digitvalue.h"
#include "fractions/findingamounts.h"
#include "fractions/fraction.h"
#include "fractions/howmany.h"
#include "draws.h"
#include "runtime/random.h"
#include "verdicttext.h"

#include <QLocale>
#include <QSet>
#include <QtTest>

using Amount = Amounts::Question;
using Count = HowMany::Question;
Q_DECLARE_METATYPE(Amounts::Question)
Q_DECLARE_METATYPE(HowMany::Question)

namespace {
constexpr int kDraws = 3000;
} // namespace

class TestPlaceValues : public QObject {
    Q_OBJECT
private slots:
    void spokenNumbers()
    {
        QCOMPARE(Places::spoken(QStringLiteral("0.45")), QStringLiteral("zero point four five"));
        QCOMPARE(Places::spoken(QStringLiteral("42.307")), QStringLiteral("42 point three zero seven"));
        QCOMPARE(Places::spoken(QStringLiteral("4")), QStringLiteral("four"));
        QCOMPARE(Places::written(2300, 2), QStringLiteral("2.30"));
        QCOMPARE(Places::written(42317, 0), QStringLiteral("42"));
        QCOMPARE(Places::placesOf(125), 3);
    }

    void howManyDraws()
    {
        const auto all = drawMany<Count>(HowMany::draw, kDraws);
        QVERIFY(!repeatsRunning(all));
        QSet<int> kinds;
        for (const Count& q : all) {
            QVERIFY(q.counted >= Places::kThousandths && q.counted <= Places::kTenths);
            // Written with no more places than the place counted, and no 0 at its end.
            QVERIFY(q.places >= 0 && q.places <= -q.counted);
            QCOMPARE(Places::placesOf(q.thousandths), q.places);
            QVERIFY(q.thousandths > 0 && q.thousandths / Places::kScale <= HowMany::kLargestWhole);
            QVERIFY(q.counted != Places::kThousandths || q.thousandths < Places::kScale);
            // Always a whole count, and one the box can hold.
            QVERIFY(q.answer() > 0 && QString::number(q.answer()).size() <= HowMany::kAnswerDigits);
            QCOMPARE(q.answer() * Places::tenTo(Places::kMostPlaces + q.counted), q.thousandths);
            kinds << q.counted * 10 - q.places;
        }
        // Every place counted, with every number of places (thousandths in numbers below 1 only).
        QCOMPARE(kinds.size(), 2 + 3 + 3);
    }

    void howManyVerdicts_data()
    {
        QTest::addColumn<Count>("q");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("verdict");
        QTest::newRow("37 tenths") << Count{3700, 1, -1} << "37" << "right: 3.7 is 37 tenths.";
        QTest::newRow("45 hundredths") << Count{450, 2, -2} << "45" << "right: 0.45 is 45 hundredths.";
        QTest::newRow("not just the 5")
            << Count{450, 2, -2} << "5" << "wrong: 0.45 is 45 hundredths, not 5: 5 is only the digit in the hundredths column.";
        QTest::newRow("230 hundredths") << Count{2300, 1, -2} << "230" << "right: 2.3 is 230 hundredths.";
        QTest::newRow("23 for 2.3 in hundredths") << Count{2300, 1, -2} << "23" << "wrong: 2.3 is 230 hundredths.";
        QTest::newRow("125 thousandths") << Count{125, 3, -3} << "125" << "right: 0.125 is 125 thousandths.";
        QTest::newRow("40 tenths") << Count{4000, 0, -1} << "40" << "right: 4 is 40 tenths.";
        QTest::newRow("4 for 4 in tenths") << Count{4000, 0, -1} << "4" << "wrong: 4 is 40 tenths.";
        QTest::newRow("one tenth") << Count{100, 1, -1} << "1" << "right: 0.1 is 1 tenth.";
        QTest::newRow("zero") << Count{3700, 1, -1} << "00" << "refused: 0 is not the answer: look at the number again.";
        QTest::newRow("too long") << Count{3700, 1, -1} << "3700" << "refused: That number is too long.";
    }

    void howManyVerdicts()
    {
        QFETCH(Count, q);
        QFETCH(QString, typed);
        QTEST(said(HowMany::check(q, typed)), "verdict");
    }

    void howManyHints_data()
    {
        QTest::addColumn<Count>("q");
        QTest::addColumn<QString>("hint");
        QTest::newRow("3.7") << Count{3700, 1, -1}
                             << "3.7 is 3 ones and 7 tenths. Each one is 10 tenths, so 30 + 7 = 37 tenths.";
        QTest::newRow("0.45")
            << Count{450, 2, -2}
            << "0.45 is 4 tenths and 5 hundredths. Each tenth is 10 hundredths, so 40 + 5 = 45 hundredths.";
        QTest::newRow("2.3") << Count{2300, 1, -2}
                             << "Each one is 100 hundredths and each tenth is 10 hundredths, so 200 + 30 = 230 hundredths.";
        QTest::newRow("4") << Count{4000, 0, -1} << "4 is 4 ones. Each one is 10 tenths, so 4 × 10 = 40 tenths.";
        QTest::newRow("0.125")
            << Count{125, 3, -3}
            << "Each tenth is 100 thousandths and each hundredth is 10 thousandths, so 100 + 20 + 5 = 125 thousandths.";
        QTest::newRow("0.07") << Count{70, 2, -2} << "0.07 is 7 hundredths.";
        QTest::newRow("3.01") << Count{3010, 2, -2}
                              << "3.01 is 3 ones and 1 hundredth. Each one is 100 hundredths, so 300 + 1 = 301 hundredths.";
    }

    void howManyHints()
    {
        QFETCH(Count, q);
        QTEST(HowMany::hint(q), "hint");
    }

    void amountDraws()
    {
        const QSet<int> percents(std::begin(Amounts::kPercents), std::end(Amounts::kPercents));
        const auto all = drawMany<Amount>(Amounts::draw, kDraws);
        QVERIFY(!repeatsRunning(all));
        QSet<int> kinds, units;
        for (const Amount& q : all) {
            QVERIFY(q.amount >= 1 && q.amount <= Amounts::kLargestAmount);
            if (q.isPercent()) {
                QVERIFY(percents.contains(q.percent));
                QCOMPARE(q.amount * q.percent % 100, 0);
                kinds << q.percent;
            } else {
                QVERIFY(q.bottom >= Amounts::kSmallestBottom && q.bottom <= Amounts::kLargestBottom);
                QVERIFY(q.top >= 1 && q.top < q.bottom && Fractions::inLowestTerms(q.top, q.bottom));
                QCOMPARE(q.amount % q.bottom, 0);
                kinds << -q.bottom;
            }
            // A whole answer the box holds, and a bar whose boxes each hold a whole number.
            QVERIFY(q.answer() > 0 && QString::number(q.answer()).size() <= Amounts::kAnswerDigits);
            const Amounts::Bar bar = Amounts::bar(q);
            QCOMPARE(bar.parts * bar.perPart, q.amount);
            QVERIFY(bar.shaded >= 0 && bar.shaded <= bar.parts && bar.perPart * bar.shaded <= q.answer());
            units << int(q.unit);
        }
        QCOMPARE(kinds.size(), int(percents.size()) + Amounts::kLargestBottom - 1);
        QCOMPARE(units.size(), 4);
    }

    void amountVerdicts_data()
    {
        using U = Amounts::Unit;
        QTest::addColumn<Amount>("q");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("verdict");
        QTest::newRow("25% of 80") << Amount{25, 0, 0, 80} << "20" << "right: 25% of 80 is 20.";
        QTest::newRow("3/8 of 64") << Amount{0, 3, 8, 64} << "24" << "right: 3/8 of 64 is 24.";
        QTest::newRow("one eighth for 3/8") << Amount{0, 3, 8, 64} << "8" << "wrong: 3/8 of 64 is 24.";
        QTest::newRow("10% of 250 kg") << Amount{10, 0, 0, 250, U::Kilograms} << "25" << "right: 10% of 250 kg is 25 kg.";
        QTest::newRow("15% of £60") << Amount{15, 0, 0, 60, U::Pounds} << "9" << "right: 15% of £60 is £9.";
        QTest::newRow("1% of 300 m") << Amount{1, 0, 0, 300, U::Metres} << "30" << "wrong: 1% of 300 m is 3 m.";
        QTest::newRow("empty") << Amount{25, 0, 0, 80} << "" << "refused: Type your answer in the box first!";
        QTest::newRow("leading zero") << Amount{25, 0, 0, 80} << "020" << "refused: Write your number without a 0 in front.";
        QTest::newRow("too long") << Amount{25, 0, 0, 80} << "2000" << "refused: That number is too long.";
    }

    void amountVerdicts()
    {
        QFETCH(Amount, q);
        QFETCH(QString, typed);
        QTEST(said(Amounts::check(q, typed)), "verdict");
    }

    void amountHints_data()
    {
        QTest::addColumn<Amount>("q");
        QTest::addColumn<QString>("hint");
        QTest::newRow("1%") << Amount{1, 0, 0, 300} << "1% is one hundredth: 300 ÷ 100 = 3.";
        QTest::newRow("5%") << Amount{5, 0, 0, 60} << "10% is one tenth: 60 ÷ 10 = 6. 5% is half of 10%: 6 ÷ 2 = 3.";
        QTest::newRow("10%") << Amount{10, 0, 0, 250} << "10% is one tenth: 250 ÷ 10 = 25.";
        QTest::newRow("15%") << Amount{15, 0, 0, 60}
                             << "15% is 10% and 5%. 10% of 60 is 6 and 5% is half of that, 3: 6 + 3 = 9.";
        QTest::newRow("20%") << Amount{20, 0, 0, 70} << "10% is one tenth: 70 ÷ 10 = 7. 20% is two lots of 10%: 7 × 2 = 14.";
        QTest::newRow("25%") << Amount{25, 0, 0, 80} << "25% is one quarter: 80 ÷ 4 = 20.";
        QTest::newRow("50%") << Amount{50, 0, 0, 90} << "50% is one half: 90 ÷ 2 = 45.";
        QTest::newRow("75%") << Amount{75, 0, 0, 80} << "75% is three quarters: 80 ÷ 4 = 20, and 20 × 3 = 60.";
        QTest::newRow("1/8") << Amount{0, 1, 8, 64} << "To find 1/8 of 64, divide by 8: 64 ÷ 8 = 8.";
        QTest::newRow("3/8") << Amount{0, 3, 8, 64} << "1/8 of 64 is 64 ÷ 8 = 8, so 3/8 of 64 is 8 × 3 = 24.";
    }

    void amountHints()
    {
        QFETCH(Amount, q);
        QTEST(Amounts::hint(q), "hint");
    }

    void digitDraws()
    {
        const auto all = drawMany<Digits::Question>(Digits::draw, kDraws);
        QVERIFY(!repeatsRunning(all));
        QSet<int> marked;
        for (const Digits::Question& q : all) {
            const QString number = q.number();
            QVERIFY(q.thousandths / Places::kScale <= Digits::kLargestWhole);
            QVERIFY(q.places >= 1 && q.places <= Places::kMostPlaces);
            QCOMPARE(Places::placesOf(q.thousandths), q.places);
            // The marked digit is in the number, not 0, and the only one of its kind.
            QVERIFY(q.digit() > 0);
            QCOMPARE(number.at(q.markedIndex()), QChar(u'0' + q.digit()));
            QCOMPARE(number.count(number.at(q.markedIndex())), 1);
            // Four different places, the marked one on the right card.
            QCOMPARE(q.cards.size(), Digits::kCards);
            QCOMPARE(QSet<int>(q.cards.begin(), q.cards.end()).size(), Digits::kCards);
            for (int place : q.cards)
                QVERIFY(place >= Places::kThousandths && place <= Places::kTens);
            QCOMPARE(q.cards.value(q.right), q.marked);
            marked << q.marked * 10 + q.right;
        }
        QCOMPARE(marked.size(), 5 * Digits::kCards); // every place, on every card
    }

    void digitTexts()
    {
        Digits::Question q; // 42.317, the 3 marked
        q.cards = {Places::kTens, Places::kOnes, Places::kTenths, Places::kThousandths};
        q.right = 2;
        QCOMPARE(q.instruction(), QStringLiteral("What is the value of the 3?"));
        QCOMPARE(q.cardTexts(), QStringList({"3 tens (30)", "3 ones (3)", "3 tenths (0.3)", "3 thousandths (0.003)"}));
        QCOMPARE(q.spokenCards().value(2), QStringLiteral("3 tenths (zero point three)"));
        QCOMPARE(Digits::valueText(1, Places::kTens), QStringLiteral("1 ten (10)"));
        QCOMPARE(Digits::valueText(1, Places::kHundredths), QStringLiteral("1 hundredth (0.01)"));
        QCOMPARE(int(Digits::check(q, 2).kind), int(Verdict::Right));
        QCOMPARE(said(Digits::check(q, 3)), QStringLiteral("wrong: The 3 in 42.317 is 3 tenths (0.3)."));
        QCOMPARE(Digits::hint(q), QStringLiteral("Look at 42.317 in its place-value columns: the head of the column "
                                                 "the 3 stands in names its value."));
    }

    // A desktop that writes 0,45 and 1.000 changes neither the texts nor the verdicts.
    void sameInEveryLanguage()
    {
        const Count count{450, 2, -2};
        const Amount amount{15, 0, 0, 1000, Amounts::Unit::Pounds};
        Digits::Question digit;
        digit.cards = {Places::kTenths, Places::kOnes, Places::kTens, Places::kHundredths};
        const auto texts = [&] {
            return QStringList{count.instruction(), said(HowMany::check(count, QStringLiteral("45"))),
                               amount.instruction(), said(Amounts::check(amount, QStringLiteral("150"))),
                               digit.cardTexts().join(QLatin1Char('|')), Places::spoken(QStringLiteral("0.45"))};
        };
        const QStringList english = texts();
        QCOMPARE(english[0], QStringLiteral("How many hundredths are there in 0.45?"));
        QCOMPARE(english[1], QStringLiteral("right: 0.45 is 45 hundredths."));
        QCOMPARE(english[3], QStringLiteral("right: 15% of £1000 is £150."));
        for (QLocale::Language language : {QLocale::German, QLocale::French}) {
            QLocale::setDefault(QLocale(language));
            QCOMPARE(texts(), english);
        }
        QLocale::setDefault(QLocale::c());
    }
};

QTEST_GUILESS_MAIN(TestPlaceValues)
#include "tst_placevalues.moc"
