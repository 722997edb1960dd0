// The fraction value type: equality and order by exact arithmetic, lowest
// terms, the amount a fraction of a whole number makes, and the words a
// child reads.
#include "fractions/fraction.h"

#include <QtTest>

using Fractions::Fraction;

class TestFraction : public QObject {
    Q_OBJECT
private slots:
    void compare_data();
    void compare();
    void valuesAndTerms();
    void words_data();
    void words();
};

void TestFraction::compare_data()
{
    QTest::addColumn<int>("a");
    QTest::addColumn<int>("b");
    QTest::addColumn<int>("c");
    QTest::addColumn<int>("d");
    QTest::addColumn<int>("order"); // -1: a/b < c/d, 0 equal, 1 greater
    QTest::newRow("2/4 = 1/2") << 2 << 4 << 1 << 2 << 0;
    QTest::newRow("3/8 < 3/7") << 3 << 8 << 3 << 7 << -1;
    QTest::newRow("5/8 > 3/8") << 5 << 8 << 3 << 8 << 1;
    QTest::newRow("12/16 = 3/4") << 12 << 16 << 3 << 4 << 0;
    QTest::newRow("2/5 > 2/7") << 2 << 5 << 2 << 7 << 1;
    QTest::newRow("1/3 < 0.34 as 34/100") << 1 << 3 << 34 << 100 << -1;
    QTest::newRow("sign on the bottom") << 1 << -2 << -2 << 4 << 0;
    // Close values a float can blur: 1/3 against 333333333/1000000000.
    QTest::newRow("near a third") << 1 << 3 << 333333333 << 1000000000 << 1;
    QTest::newRow("wholes") << 8 << 4 << 2 << 1 << 0;
    QTest::newRow("zero") << 0 << 5 << 0 << 9 << 0;
}

void TestFraction::compare()
{
    QFETCH(int, a);
    QFETCH(int, b);
    QFETCH(int, c);
    QFETCH(int, d);
    QFETCH(int, order);
    const Fraction x(a, b), y(c, d);
    QCOMPARE(x == y, order == 0);
    QCOMPARE(x < y, order < 0);
    QCOMPARE(x > y, order > 0);
    QCOMPARE(x <= y, order <= 0);
    QVERIFY(x.bottom() > 0 && Fractions::hcf(int(x.top()), int(x.bottom())) == 1);
}

void TestFraction::valuesAndTerms()
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

void TestFraction::words_data()
{
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("bottom");
    QTest::addColumn<QString>("said");
    QTest::newRow("1/2") << 1 << 2 << "one half";
    QTest::newRow("2/2") << 2 << 2 << "two halves";
    QTest::newRow("1/4") << 1 << 4 << "one quarter";
    QTest::newRow("3/4") << 3 << 4 << "three quarters";
    QTest::newRow("2/3") << 2 << 3 << "two thirds";
    QTest::newRow("1/10") << 1 << 10 << "one tenth";
    QTest::newRow("7/10") << 7 << 10 << "seven tenths";
    QTest::newRow("5/8") << 5 << 8 << "five eighths";
    QTest::newRow("11/12") << 11 << 12 << "eleven twelfths";
    QTest::newRow("37/100") << 37 << 100 << "37 hundredths";
    QTest::newRow("1/100") << 1 << 100 << "one hundredth";
    QTest::newRow("125/1000") << 125 << 1000 << "125 thousandths";
    QTest::newRow("4/1") << 4 << 1 << "four";
    QTest::newRow("5/16") << 5 << 16 << "five 16ths";
    QTest::newRow("1/21") << 1 << 21 << "one 21st";
    QTest::newRow("12/22") << 12 << 22 << "twelve 22nds";
    QTest::newRow("2/63") << 2 << 63 << "two 63rds";
    QTest::newRow("3/13") << 3 << 13 << "three 13ths";
}

void TestFraction::words()
{
    QFETCH(int, top);
    QFETCH(int, bottom);
    QFETCH(QString, said);
    QCOMPARE(Fractions::words(top, bottom), said);
}

QTEST_APPLESS_MAIN(TestFraction)
#include "tst_fraction.moc"
