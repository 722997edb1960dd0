#include "fractions/decimalvalue.h"
#include "fractions/numberset.h"
#include "runtime/random.h"

#include <QLocale>
#include <QRegularExpression>
#include <QtTest>
#include <clocale>
#include <set>

using NumberSet::Texts;
Q_DECLARE_METATYPE(Texts)

class TestNumberSet : public QObject {
    Q_OBJECT
private slots:
    void readsByValue_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<int>("sign"); // of a - b
        QTest::addColumn<QString>("text"); // a written back
        QTest::newRow("longer is not bigger") << "3.47" << "3.5" << -1 << "3.47";
        QTest::newRow("shorter is not smaller") << "3.5" << "3.45" << 1 << "3.5";
        QTest::newRow("a prefix is smaller") << "3.4" << "3.472" << -1 << "3.4";
        QTest::newRow("trailing zero") << "3.50" << "3.5" << 0 << "3.5";
        QTest::newRow("empty is 0") << "" << "0" << 0 << "0";
        QTest::newRow("whole parts first") << "10.1" << "9.999" << 1 << "10.1";
        QTest::newRow("a comma ends the number") << " 3,47" << "3" << 0 << "3";
        QTest::newRow("below zero") << "-0.5" << "0" << -1 << "-0.5";
        QTest::newRow("ninth place") << "1.000000001" << "1" << 1 << "1.000000001";
    }

    void readsByValue()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(int, sign);
        const DecimalValue va = valueOf(a), vb = valueOf(b);
        QCOMPARE(va < vb, sign < 0);
        QCOMPARE(va == vb, sign == 0);
        QCOMPARE(va > vb, sign > 0);
        QTEST(va.toText(), "text");
        QCOMPARE(valueOf(va.toText()), va);
    }

    // A desktop writing decimals with a comma still reads "3.47" as 3.47 (the C library's
    // locale switched only where installed).
    void comparesUnderAnotherLanguage()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
        const QByteArray cBefore = std::setlocale(LC_NUMERIC, nullptr);
        const bool cSwitched = std::setlocale(LC_NUMERIC, "de_DE.UTF-8") != nullptr;
        qInfo("C library locale %s", cSwitched ? "switched" : "not installed, Qt's only");
        QCOMPARE(QLocale().decimalPoint(), QStringLiteral(","));
        if (cSwitched)
            QCOMPARE(std::atof("3.47"), 3.0); // the trap the board must not fall into

        QVERIFY(valueOf("3.47") < valueOf("3.5") && valueOf("3.47") > valueOf("3.4"));
        QVERIFY(NumberSet::inOrder({"3.4", "3.47", "3.472", "3.5", "3.51"}));
        QVERIFY(!NumberSet::inOrder({"3.47", "3.5", "3.472", "3.51", "3.6"}));
        QCOMPARE(NumberSet::sortedOrder({"3.5", "3.47", "3.51", "3.4", "3.472"}), (Texts{"3.4", "3.47", "3.472", "3.5", "3.51"}));

        std::setlocale(LC_NUMERIC, cBefore.constData());
        QLocale::setDefault(before);
    }

    void setsOverManySeeds()
    {
        const QRegularExpression shape(QStringLiteral("^([1-5])\\.([1-9]{1,3})$"));
        std::set<int> wholes, lengths;
        for (quint64 seed = 1; seed <= 1500; ++seed) {
            Random::fixSeed(seed);
            const auto question = NumberSet::newnumbers(Random::program(), NumberSet::kSharedWholePart);
            QVERIFY(question);
            std::set<qint64> values;
            for (const QString& number : question->numbers) {
                const auto match = shape.match(number);
                QVERIFY2(match.hasMatch(), qPrintable(number));
                QCOMPARE(match.captured(1).toInt(), question->wholepart);
                lengths.insert(match.captured(2).size());
                values.insert(valueOf(number).billionths());
            }
            QVERIFY2(values.size() == NumberSet::kCount, qPrintable(QStringLiteral("seed %1").arg(seed)));
            wholes.insert(question->wholepart);
        }
        QCOMPARE(wholes, (std::set<int>{1, 2, 3, 4, 5}));
        QCOMPARE(lengths, (std::set<int>{1, 2, 3}));
        QVERIFY(!NumberSet::newnumbers(Random::program(), 2));
    }

    // A set with repeats is drawn again whole, not mended one number at a time.
    void aSetWithRepeatsIsDrawnAgainWhole()
    {
        int found = 0;
        for (quint64 seed = 1; seed <= 400 && found < 5; ++seed) {
            Random::fixSeed(seed);
            Random::Randomize();
            const int whole = static_cast<int>(Random::Rnd() * 5 + 1);
            Texts next = NumberSet::drawFive(Random::program(), whole);
            if (!NumberSet::hasRepeats(next))
                continue;
            do
                next = NumberSet::drawFive(Random::program(), whole);
            while (NumberSet::hasRepeats(next));
            Random::fixSeed(seed);
            QCOMPARE(NumberSet::newnumbers(Random::program(), NumberSet::kSharedWholePart)->numbers, next);
            ++found;
        }
        QCOMPARE(found, 5);
        QVERIFY(NumberSet::hasRepeats({"2.5", "2.13", "2.50", "2.7", "2.9"}));
        QVERIFY(!NumberSet::hasRepeats({"2.5", "2.13", "2.51", "2.7", "2.9"}));
    }

    void orderCheck_data()
    {
        QTest::addColumn<Texts>("answers");
        QTest::addColumn<bool>("right");
        const Texts ascending{"4.19", "4.2", "4.213", "4.8", "4.88"};
        QTest::newRow("ascending") << ascending << true;
        for (int p = 0; p < NumberSet::kCount - 1; ++p) {
            Texts descent = ascending;
            std::swap(descent[p], descent[p + 1]);
            QTest::addRow("descent at %d", p) << descent << false;
        }
        QTest::newRow("a tie passes") << Texts{"4.2", "4.2", "4.3", "4.4", "4.5"} << true;
        QTest::newRow("an empty slot below counts 0") << Texts{"4.2", "4.3", "4.4", "4.5", ""} << false;
        QTest::newRow("an empty board") << Texts{} << true;
        QTest::newRow("by value, not as text") << Texts{"1.5", "9.5", "10.1", "10.25", "11"} << true;
    }

    void orderCheck()
    {
        QFETCH(Texts, answers);
        QTEST(NumberSet::inOrder(answers), "right");
    }
};

QTEST_GUILESS_MAIN(TestNumberSet)
#include "tst_numberset.moc"
