// How Many?, Finding Amounts and Digits without their screens: every draw
// keeps the activity's rules, each answer gets its verdict and its sentence,
// and no desktop language changes a number.
#include "fractions/digitvalue.h"
#include "fractions/findingamounts.h"
#include "fractions/howmany.h"
#include "runtime/random.h"

#include <QLocale>
#include <QSet>
#include <QtTest>

namespace {
constexpr int kDraws = 5000;
const quint64 kSeeds[] = {1, 77, 2024};

HowMany::Question howMany(int thousandths, int places, int counted)
{
    HowMany::Question q;
    q.thousandths = thousandths;
    q.places = places;
    q.counted = counted;
    return q;
}
} // namespace

class TestPlaceValues : public QObject {
    Q_OBJECT
private slots:
    void spokenNumbers();
    void howManyDraws();
    void howManyVerdicts_data();
    void howManyVerdicts();
    void howManyHints_data();
    void howManyHints();
};

void TestPlaceValues::spokenNumbers()
{
    QCOMPARE(Places::spoken(QStringLiteral("0.45")), QStringLiteral("zero point four five"));
    QCOMPARE(Places::spoken(QStringLiteral("42.307")), QStringLiteral("42 point three zero seven"));
    QCOMPARE(Places::spoken(QStringLiteral("4")), QStringLiteral("four"));
    QCOMPARE(Places::written(2300, 2), QStringLiteral("2.30"));
    QCOMPARE(Places::written(42317, 0), QStringLiteral("42"));
    QCOMPARE(Places::placesOf(125), 3);
}

void TestPlaceValues::howManyDraws()
{
    for (quint64 seed : kSeeds) {
        Random::Source rnd(seed);
        HowMany::Question last;
        QSet<int> kinds;
        for (int i = 0; i < kDraws; ++i) {
            const HowMany::Question q = HowMany::draw(rnd, i ? &last : nullptr);
            QVERIFY(i == 0 || !(q == last));
            QVERIFY(q.counted >= Places::kThousandths && q.counted <= Places::kTenths);
            // Written with no more places than the place counted, and no 0 at its end.
            QVERIFY(q.places >= 0 && q.places <= -q.counted);
            QCOMPARE(Places::placesOf(q.thousandths), q.places);
            QVERIFY(q.thousandths > 0 && q.thousandths / Places::kScale <= HowMany::kLargestWhole);
            QVERIFY(q.counted != Places::kThousandths || q.thousandths < Places::kScale);
            // Always a whole count, and one the box can hold.
            QVERIFY(q.answer() > 0);
            QCOMPARE(q.answer() * Places::tenTo(Places::kMostPlaces + q.counted), q.thousandths);
            QVERIFY(QString::number(q.answer()).size() <= HowMany::kAnswerDigits);
            kinds << q.counted * 10 - q.places;
            last = q;
        }
        // Every place counted, with every number of places (thousandths in numbers below 1 only).
        QCOMPARE(kinds.size(), 2 + 3 + 3);
    }
}

void TestPlaceValues::howManyVerdicts_data()
{
    QTest::addColumn<int>("thousandths");
    QTest::addColumn<int>("places");
    QTest::addColumn<int>("counted");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("verdict");
    QTest::addColumn<QString>("statement");
    const int right = Verdict::Right, wrong = Verdict::Wrong, kept = Verdict::NotCheckable;
    QTest::newRow("37 tenths") << 3700 << 1 << -1 << "37" << right << "3.7 is 37 tenths.";
    QTest::newRow("45 hundredths") << 450 << 2 << -2 << "45" << right << "0.45 is 45 hundredths.";
    QTest::newRow("not just the 5") << 450 << 2 << -2 << "5" << wrong
                                    << "0.45 is 45 hundredths, not 5: 5 is only the digit in the hundredths column.";
    QTest::newRow("230 hundredths") << 2300 << 1 << -2 << "230" << right << "2.3 is 230 hundredths.";
    QTest::newRow("23 for 2.3 in hundredths") << 2300 << 1 << -2 << "23" << wrong << "2.3 is 230 hundredths.";
    QTest::newRow("125 thousandths") << 125 << 3 << -3 << "125" << right << "0.125 is 125 thousandths.";
    QTest::newRow("40 tenths") << 4000 << 0 << -1 << "40" << right << "4 is 40 tenths.";
    QTest::newRow("4 for 4 in tenths") << 4000 << 0 << -1 << "4" << wrong << "4 is 40 tenths.";
    QTest::newRow("one tenth") << 100 << 1 << -1 << "1" << right << "0.1 is 1 tenth.";
    QTest::newRow("empty") << 3700 << 1 << -1 << "" << kept << "Type your answer in the box first!";
    QTest::newRow("zero") << 3700 << 1 << -1 << "00" << kept << "0 is not the answer: look at the number again.";
    QTest::newRow("leading zero") << 3700 << 1 << -1 << "037" << kept << "Write your number without a 0 in front.";
    QTest::newRow("too long") << 3700 << 1 << -1 << "3700" << kept << "That number is too long.";
}

void TestPlaceValues::howManyVerdicts()
{
    QFETCH(int, thousandths);
    QFETCH(int, places);
    QFETCH(int, counted);
    QFETCH(QString, typed);
    QFETCH(int, verdict);
    QFETCH(QString, statement);
    const Verdict v = HowMany::check(howMany(thousandths, places, counted), typed);
    QCOMPARE(int(v.kind), verdict);
    QCOMPARE(v.statement, statement);
}

void TestPlaceValues::howManyHints_data()
{
    QTest::addColumn<int>("thousandths");
    QTest::addColumn<int>("places");
    QTest::addColumn<int>("counted");
    QTest::addColumn<QString>("hint");
    QTest::newRow("3.7") << 3700 << 1 << -1
                         << "3.7 is 3 ones and 7 tenths. Each one is 10 tenths, so 30 + 7 = 37 tenths.";
    QTest::newRow("0.45") << 450 << 2 << -2
                          << "0.45 is 4 tenths and 5 hundredths. Each tenth is 10 hundredths, so 40 + 5 = 45 hundredths.";
    QTest::newRow("2.3") << 2300 << 1 << -2
                         << "Each one is 100 hundredths and each tenth is 10 hundredths, so 200 + 30 = 230 hundredths.";
    QTest::newRow("4") << 4000 << 0 << -1 << "4 is 4 ones. Each one is 10 tenths, so 4 × 10 = 40 tenths.";
    QTest::newRow("0.125") << 125 << 3 << -3
                           << "Each tenth is 100 thousandths and each hundredth is 10 thousandths, so 100 + 20 + 5 = 125 thousandths.";
    QTest::newRow("0.07") << 70 << 2 << -2 << "0.07 is 7 hundredths.";
    QTest::newRow("3.01") << 3010 << 2 << -2
                          << "3.01 is 3 ones and 1 hundredth. Each one is 100 hundredths, so 300 + 1 = 301 hundredths.";
}

void TestPlaceValues::howManyHints()
{
    QFETCH(int, thousandths);
    QFETCH(int, places);
    QFETCH(int, counted);
    QFETCH(QString, hint);
    QCOMPARE(HowMany::hint(howMany(thousandths, places, counted)), hint);
}

QTEST_GUILESS_MAIN(TestPlaceValues)
#include "tst_placevalues.moc"
