// Decimals Between and Rounding without their screens: every draw keeps the
// activities' rules, typed answers get their verdicts, and nothing changes
// under a language that writes decimals with a comma.
#include "fractions/decimalsbetween.h"
#include "fractions/fraction.h"
#include "fractions/rounding.h"
#include "draws.h"
#include "runtime/random.h"
#include "verdicttext.h"

#include <QtTest>
#include <clocale>

Q_DECLARE_METATYPE(Rounding::Question)

namespace {
// How many places a number is written with.
int placesOf(const QString& text)
{
    const int point = int(text.indexOf(QLatin1Char('.')));
    return point < 0 ? 0 : int(text.size()) - point - 1;
}
} // namespace

class TestDecimalActivities : public QObject {
    Q_OBJECT
private slots:
    void draws()
    {
        const auto betweens = drawMany<DecimalsBetween::Question>(DecimalsBetween::draw, 5000);
        const auto roundings = drawMany<Rounding::Question>(Rounding::draw, 5000);
        QVERIFY(!repeatsRunning(betweens) && !repeatsRunning(roundings));
        QSet<int> placesSeen, askedSeen, halvesAsked;
        for (const DecimalsBetween::Question& b : betweens) {
            // Neighbours at the longer one's last place, one to three places.
            const int places = std::max(placesOf(b.from()), placesOf(b.to()));
            QVERIFY(places >= 1 && places <= 3);
            QCOMPARE(b.high().billionths() - b.low().billionths(), DecimalValue::fromUnits(1, places).billionths());
            QVERIFY(b.low() >= DecimalValue() && b.low() < DecimalValue::fromUnits(DecimalsBetween::kWholesBelow, 0));
            QVERIFY(b.low() < b.middle() && b.middle() < b.high());
            placesSeen << places;
        }
        for (const Rounding::Question& r : roundings) {
            const QString n = r.written();
            QVERIFY(r.number() < DecimalValue::fromUnits(Rounding::kLargestWhole + 1, 0));
            QVERIFY(!n.endsWith(QLatin1Char('0')) && placesOf(n) > r.asked);
            const bool half = r.number().digitAt(r.asked + 1) == 5 && placesOf(n) == r.asked + 1;
            QVERIFY(half || (placesOf(n) >= 2 && placesOf(n) <= 3));
            // An exact half rounds up; the answer is one of the two ends of the line.
            QCOMPARE(r.answerText(), half || r.number().digitAt(r.asked + 1) >= 5 ? r.above() : r.below());
            QVERIFY(DecimalValue::fromText(r.below()) < r.number() && r.number() < DecimalValue::fromText(r.above()));
            askedSeen << r.asked;
            if (half)
                halvesAsked << r.asked;
        }
        QCOMPARE(placesSeen.size(), 3);
        QCOMPARE(askedSeen.size(), 3);
        QCOMPARE(halvesAsked.size(), 3);
    }

    void betweenVerdicts_data()
    {
        QTest::addColumn<int>("places");
        QTest::addColumn<int>("lowUnits");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("verdict");
        QTest::newRow("half way") << 1 << 34 << "3.45" << "right: 3.45 is between 3.4 and 3.5.";
        QTest::newRow("the upper end") << 1 << 34 << "3.5" << "wrong: 3.5 is not between 3.4 and 3.5. Try 3.45.";
        QTest::newRow("the lower end, longer") << 1 << 34 << "3.40" << "wrong: 3.40 is not between 3.4 and 3.5. Try 3.45.";
        QTest::newRow("digits joined") << 1 << 34 << "345" << "wrong: 345 is not between 3.4 and 3.5. Try 3.45.";
        QTest::newRow("more digits is not bigger") << 2 << 271 << "2.8" << "wrong: 2.8 is not between 2.71 and 2.72. Try 2.715.";
        QTest::newRow("across a whole") << 1 << 9 << ".95" << "right: .95 is between 0.9 and 1.";
        QTest::newRow("a point at the end") << 1 << 9 << "1." << "wrong: 1 is not between 0.9 and 1. Try 0.95.";
        QTest::newRow("zero") << 2 << 0 << "0" << "wrong: 0 is not between 0 and 0.01. Try 0.005.";
        QTest::newRow("a comma") << 1 << 34 << "3,45" << "refused: Type a point for a decimal, not a comma.";
        QTest::newRow("two points") << 1 << 34 << "3.4.5" << "refused: A number has only one point.";
        QTest::newRow("a 0 in front") << 1 << 34 << "03.45" << "refused: Write the number without a 0 in front.";
        QTest::newRow("too long") << 1 << 34 << "3.4000000000001" << "refused: That number is too long.";
        QTest::newRow("a sign") << 1 << 34 << "-3.45" << "refused: Type only digits and a point.";
    }

    void betweenVerdicts()
    {
        QFETCH(int, places);
        QFETCH(int, lowUnits);
        QFETCH(QString, typed);
        QTEST(said(DecimalsBetween::check({places, lowUnits}, typed)), "verdict");
    }

    void roundingVerdicts_data()
    {
        QTest::addColumn<Rounding::Question>("q");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("verdict");
        const int right = Verdict::Right, wrong = Verdict::Wrong, keep = Verdict::NotCheckable;
        QTest::newRow("4.67 to one place") << Rounding::Question{2, 467, 1} << "4.7" << right;
        QTest::newRow("4.67 cut, not rounded") << Rounding::Question{2, 467, 1} << "4.6" << wrong;
        QTest::newRow("4.67 to the whole, a place too many") << Rounding::Question{2, 467, 0} << "5.0" << wrong;
        QTest::newRow("4.697 to two places, 4.70") << Rounding::Question{3, 4697, 2} << "4.70" << right;
        QTest::newRow("4.697 to two places, 4.7") << Rounding::Question{3, 4697, 2} << "4.7" << right;
        QTest::newRow("2.5 rounds up to 3") << Rounding::Question{1, 25, 0} << "3" << right;
        QTest::newRow("the number itself") << Rounding::Question{2, 467, 1} << "4.67" << wrong;
        QTest::newRow("0.4 to the whole is 0") << Rounding::Question{2, 41, 0} << "0" << right;
        QTest::newRow("99.5 to the whole") << Rounding::Question{1, 995, 0} << "100" << right;
        QTest::newRow("99.997 to two places") << Rounding::Question{3, 99997, 2} << "100.00" << right;
        QTest::newRow("a comma") << Rounding::Question{2, 467, 1} << "4,7" << keep;
        QTest::newRow("too long") << Rounding::Question{2, 467, 1} << "4.700000" << keep;
    }

    void roundingVerdicts()
    {
        QFETCH(Rounding::Question, q);
        QFETCH(QString, typed);
        QFETCH(int, verdict);
        const Verdict v = Rounding::check(q, typed);
        QCOMPARE(int(v.kind), verdict);
        if (verdict != Verdict::NotCheckable)
            QCOMPARE(v.statement, q.statement());
    }

    void hints()
    {
        DecimalsBetween::Question between;
        QCOMPARE(between.instruction(), QStringLiteral("Type a decimal between 3.4 and 3.5."));
        QCOMPARE(DecimalsBetween::hint(between),
                 QStringLiteral("Write them with one more place: 3.40 and 3.50. Any of 3.41 to 3.49 lies between."));
        QCOMPARE(DecimalsBetween::hint({2, 99}),
                 QStringLiteral("Write them with one more place: 0.990 and 1.000. Any of 0.991 to 0.999 lies between."));

        const Rounding::Question up{2, 467, 1};
        QCOMPARE(up.instruction(), QStringLiteral("Round 4.67 to one decimal place."));
        QCOMPARE(up.statement(), QStringLiteral("4.67 rounded to one decimal place is 4.7."));
        QCOMPARE(Rounding::hint(up), QStringLiteral("Look at the digit after the place you round to: 7 "
                                                    "is 5 or more, so round up to 4.7."));
        QCOMPARE(Rounding::hint({1, 25, 0}), QStringLiteral("Look at the digit after the place you round to: 5 "
                                                             "is 5 or more, so round up to 3."));
        const Rounding::Question down{3, 12342, 0};
        QCOMPARE(down.instruction(), QStringLiteral("Round 12.342 to the nearest whole number."));
        QCOMPARE(Rounding::hint(down), QStringLiteral("Look at the digit after the place you round to: 3 is less "
                                                      "than 5, so round down to 12."));
        const Rounding::Question two{3, 4697, 2};
        QCOMPARE(two.statement(), QStringLiteral("4.697 rounded to two decimal places is 4.70."));
        QCOMPARE(two.below() + QLatin1Char(' ') + two.above(), QStringLiteral("4.69 4.70"));
    }

    void words_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("spoken");
        QTest::newRow("tenths") << "3.4" << "three point four";
        QTest::newRow("a zero kept") << "4.70" << "four point seven zero";
        QTest::newRow("a whole") << "6" << "six";
        QTest::newRow("no whole") << ".5" << "point five";
        QTest::newRow("beyond twenty") << "42.317" << "42 point three one seven";
        QTest::newRow("a point at the end") << "3." << "three";
        QTest::newRow("not a number") << "3,4" << "3,4";
    }

    void words()
    {
        QFETCH(QString, written);
        QTEST(Fractions::decimalWords(written), "spoken");
    }

    // German and French write 3,4: questions, verdicts and hints keep the point, and a typed point is read.
    void sameInEveryLanguage()
    {
        auto texts = [] {
            Random::Source rnd(5);
            QStringList all;
            DecimalsBetween::Question b;
            Rounding::Question r;
            for (int i = 0; i < 50; ++i) {
                b = DecimalsBetween::draw(rnd, i ? &b : nullptr);
                r = Rounding::draw(rnd, i ? &r : nullptr);
                all << b.instruction() << DecimalsBetween::hint(b) << said(DecimalsBetween::check(b, b.middle().toText()))
                    << said(DecimalsBetween::check(b, b.to())) << r.instruction() << Rounding::hint(r)
                    << said(Rounding::check(r, r.answerText())) << said(Rounding::check(r, r.below()));
            }
            return all;
        };
        const QStringList english = texts();
        const QLocale before;
        for (const char* name : {"de_DE", "fr_FR"}) {
            QLocale::setDefault(QLocale(QString::fromLatin1(name)));
            QCOMPARE(QLocale().decimalPoint(), QStringLiteral(","));
            // The C library's locale too, where the machine has it installed.
            std::setlocale(LC_ALL, (QByteArray(name) + ".UTF-8").constData());
            QCOMPARE(texts(), english);
        }
        QLocale::setDefault(before);
        std::setlocale(LC_ALL, "C");
        QVERIFY(english.join(QString()).contains(QLatin1Char('.')));
    }
};

QTEST_APPLESS_MAIN(TestDecimalActivities)
#include "tst_decimalactivities.moc"
