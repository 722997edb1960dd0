// The fraction value type: exact order, lowest terms, a fraction of a whole
// number, and the words a child reads.
#include "fractions/fraction.h"

#include <QtTest>

using Fractions::Fraction;
Q_DECLARE_METATYPE(Fraction)

class TestFraction : public QObject {
    Q_OBJECT
private slots:
    void compare_data()
    {
        QTest::addColumn<Fraction>("x");
        QTest::addColumn<Fraction>("y");
        QTest::addColumn<int>("order"); // -1: x < y, 0 equal, 1 greater
        QTest::newRow("2/4 = 1/2") << Fraction(2, 4) << Fraction(1, 2) << 0;
        QTest::newRow("3/8 < 3/7") << Fraction(3, 8) << Fraction(3, 7) << -1;
        QTest::newRow("5/8 > 3/8") << Fraction(5, 8) << Fraction(3, 8) << 1;
        QTest::newRow("1/3 < 34/100") << Fraction(1, 3) << Fraction(34, 100) << -1;
        QTest::newRow("sign on the bottom") << Fraction(1, -2) << Fraction(-2, 4) << 0;
        // Close values a float can blur.
        QTest::newRow("near a third") << Fraction(1, 3) << Fraction(333333333, 1000000000) << 1;
        QTest::newRow("wholes") << Fraction(8, 4) << Fraction(2, 1) << 0;
        QTest::newRow("zero") << Fraction(0, 5) << Fraction(0, 9) << 0;
    }

    void compare()
    {
        QFETCH(Fraction, x);
        QFETCH(Fraction, y);
        QFETCH(int, order);
        QCOMPARE(x == y, order == 0);
        QCOMPARE(x < y, order < 0);
        QCOMPARE(x > y, order > 0);
        QCOMPARE(x <= y, order <= 0);
        QVERIFY(x.bottom() > 0 && Fractions::hcf(int(x.top()), int(x.bottom())) == 1);
    }

    void valuesAndTerms()
    {
        QCOMPARE(Fraction(18, 24).text(), QStringLiteral("3/4"));
        QVERIFY(!Fraction(3, 0).isValid() && Fraction(3, 0) < Fraction(-5, 1) && Fraction(3, 0) == Fraction(1, 0));
        QVERIFY(Fractions::inLowestTerms(3, 4) && !Fractions::inLowestTerms(2, 4) && !Fractions::inLowestTerms(1, 0));
        QCOMPARE(Fractions::hcf(12, 18), 6);
        QCOMPARE(Fractions::hcf(-4, -6), 2);
        QCOMPARE(Fractions::hcf(5, 0), 5);
        std::int64_t amount = 0;
        QVERIFY(Fraction(3, 4).ofWhole(12, &amount) && amount == 9);
        QVERIFY(!Fraction(2, 3).ofWhole(10, &amount));
        QCOMPARE(Fraction(2, 3) * Fraction(3, 4), Fraction(1, 2));
    }

    void words_data()
    {
        QTest::addColumn<int>("top");
        QTest::addColumn<int>("bottom");
        QTest::addColumn<QString>("said");
        QTest::newRow("1/2") << 1 << 2 << "one half";
        QTest::newRow("2/2") << 2 << 2 << "two halves";
        QTest::newRow("1/4") << 1 << 4 << "one quarter";
        QTest::newRow("3/4") << 3 << 4 << "three quarters";
        QTest::newRow("1/10") << 1 << 10 << "one tenth";
        QTest::newRow("5/8") << 5 << 8 << "five eighths";
        QTest::newRow("11/12") << 11 << 12 << "eleven twelfths";
        QTest::newRow("37/100") << 37 << 100 << "37 hundredths";
        QTest::newRow("125/1000") << 125 << 1000 << "125 thousandths";
        QTest::newRow("4/1") << 4 << 1 << "four";
        QTest::newRow("5/16") << 5 << 16 << "five 16ths";
        QTest::newRow("1/21") << 1 << 21 << "one 21st";
        QTest::newRow("12/22") << 12 << 22 << "twelve 22nds";
        QTest::newRow("2/63") << 2 << 63 << "two 63rds";
        QTest::newRow("3/13") << 3 << 13 << "three 13ths";
    }

    void words()
    {
        QFETCH(int, top);
        QFETCH(int, bottom);
        QTEST(Fractions::words(top, bottom), "said");
    }
};

QTEST_APPLESS_MAIN(TestFraction)
#include "tst_fraction.moc"
