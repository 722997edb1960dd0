// Naming a fraction (Year 3 and Write A Fraction) and More Than, Less Than
// without their screens: every draw keeps the activities' rules, and each
// answer gets its verdict and its sentence.
#include "fractions/comparefractions.h"
#include "fractions/fraction.h"
#include "fractions/namefraction.h"
#include "kit/parts/shapes.h"
#include "runtime/random.h"

#include <QSet>
#include <QtTest>

using NameFraction::Mode;
using NameFraction::Picture;

class TestNamingQuestions : public QObject {
    Q_OBJECT
private slots:
    void namingDraws_data();
    void namingDraws();
    void namingVerdicts_data();
    void namingVerdicts();
    void hints();
    void comparingDraws();
    void comparingVerdicts_data();
    void comparingVerdicts();
};

void TestNamingQuestions::namingDraws_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QSet<int>>("stripParts");
    QTest::addColumn<QSet<int>>("circleParts");
    QTest::addColumn<QSet<int>>("rectangleParts");
    QTest::addColumn<QSet<int>>("pictures"); // the kinds of picture drawn
    const int shape = int(Picture::Shape), square = int(Picture::HundredSquare), sets = int(Picture::Pictures);
    QTest::newRow("Year 3") << int(Mode::Year3Shapes) << QSet<int>{2, 3, 4, 5, 6, 8, 10} << QSet<int>{2, 3, 4, 6, 8}
                            << QSet<int>{4, 6, 8, 10} << QSet<int>{shape};
    QTest::newRow("Year 4") << int(Mode::Year4Pictures) << QSet<int>{2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}
                            << QSet<int>{2, 3, 4, 5, 6, 8, 10, 12} << QSet<int>{4, 6, 8, 10, 12}
                            << QSet<int>{shape, square, sets};
}

// Over many seeds: the cuts within each year's lists and ones the kit can
// draw, 1 to n-1 parts shaded, hundred squares 1..99 (whole columns some of
// the time), 2..12 pictures, never the same question twice running.
void TestNamingQuestions::namingDraws()
{
    QFETCH(int, mode);
    QFETCH(QSet<int>, stripParts);
    QFETCH(QSet<int>, circleParts);
    QFETCH(QSet<int>, rectangleParts);
    QFETCH(QSet<int>, pictures);
    for (quint64 seed : {3ULL, 41ULL, 2027ULL}) {
        Random::Source rnd(seed);
        NameFraction::Question last;
        QMap<ShapeKind, QSet<int>> cuts;
        QSet<int> kinds, squares, sets;
        int columns = 0;
        for (int i = 0; i < 6000; ++i) {
            const NameFraction::Question q = NameFraction::draw(Mode(mode), rnd, i ? &last : nullptr);
            QVERIFY(i == 0 || !(q == last));
            QVERIFY(q.shaded >= 1 && q.shaded < q.parts);
            QVERIFY(NameFraction::counted(q).section(QLatin1Char('/'), 0, 0).size() <= NameFraction::answerDigits(Mode(mode)));
            QVERIFY(NameFraction::counted(q).section(QLatin1Char('/'), 1).size() <= NameFraction::answerDigits(Mode(mode)));
            kinds << int(q.picture);
            switch (q.picture) {
            case Picture::Shape:
                QVERIFY(shapeAllows(q.kind, q.parts));
                cuts[q.kind] << q.parts;
                break;
            case Picture::HundredSquare:
                QCOMPARE(q.parts, 100);
                QVERIFY(!q.wholeColumns || q.shaded % 10 == 0);
                columns += q.wholeColumns;
                squares << q.shaded;
                break;
            case Picture::Pictures:
                QVERIFY(q.parts >= 2 && q.parts <= 12);
                QVERIFY(q.set >= NameFraction::kFirstPictureSet && q.set <= NameFraction::kLastPictureSet);
                sets << q.set;
                break;
            }
            last = q;
        }
        QCOMPARE(kinds, pictures);
        QCOMPARE(cuts.keys(), (QList<ShapeKind>{ShapeKind::Circle, ShapeKind::Strip, ShapeKind::TwoRowRectangle}));
        QCOMPARE(cuts[ShapeKind::Strip], stripParts);
        QCOMPARE(cuts[ShapeKind::Circle], circleParts);
        QCOMPARE(cuts[ShapeKind::TwoRowRectangle], rectangleParts);
        if (pictures.contains(int(Picture::HundredSquare))) {
            QCOMPARE(squares.size(), 99); // every count from 1 to 99
            QVERIFY(columns > 0 && columns < 2000 / 3);
            QCOMPARE(sets.size(), NameFraction::kLastPictureSet - NameFraction::kFirstPictureSet + 1);
        }
    }
}

void TestNamingQuestions::namingVerdicts_data()
{
    QTest::addColumn<int>("picture");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("parts");
    QTest::addColumn<int>("shaded");
    QTest::addColumn<QString>("top");
    QTest::addColumn<QString>("bottom");
    QTest::addColumn<int>("verdict");
    QTest::addColumn<QString>("statement");
    const int shape = int(Picture::Shape), square = int(Picture::HundredSquare), sets = int(Picture::Pictures);
    const int strip = int(ShapeKind::Strip), circle = int(ShapeKind::Circle), none = 0;
    const int right = Verdict::Right, wrong = Verdict::Wrong, refused = Verdict::NotCheckable;
    QTest::newRow("as counted") << shape << strip << 8 << 3 << "3" << "8" << right << "3/8 of the strip is shaded.";
    QTest::newRow("equal in value") << shape << strip << 4 << 2 << "1" << "2" << right
                                    << "2/4 of the strip is shaded: that is 1/2.";
    QTest::newRow("larger but equal") << shape << circle << 3 << 2 << "4" << "6" << right
                                      << "2/3 of the circle is shaded: that is 4/6.";
    QTest::newRow("leading zero") << shape << circle << 6 << 1 << "01" << "6" << right << "1/6 of the circle is shaded.";
    QTest::newRow("upside down") << shape << strip << 8 << 3 << "8" << "3" << wrong
                                 << "3/8 of the strip is shaded: 3 of its 8 parts.";
    QTest::newRow("the unshaded parts") << shape << circle << 5 << 2 << "3" << "5" << wrong
                                        << "2/5 of the circle is shaded: 2 of its 5 parts.";
    QTest::newRow("hundredths") << square << none << 100 << 37 << "37" << "100" << right << "37/100 of the square is shaded.";
    QTest::newRow("tenths") << square << none << 100 << 30 << "3" << "10" << right
                            << "30/100 of the square is shaded: that is 3/10.";
    QTest::newRow("out of ten, not equal") << square << none << 100 << 37 << "37" << "10" << wrong
                                           << "37/100 of the square is shaded: 37 of its 100 small squares.";
    QTest::newRow("ringed") << sets << none << 12 << 5 << "5" << "12" << right << "5/12 of the ducks are ringed.";
    QTest::newRow("ringed, wrong") << sets << none << 6 << 2 << "2" << "4" << wrong
                                   << "2/6 of the ducks are ringed: 2 of the 6 ducks.";
    QTest::newRow("empty bottom") << shape << strip << 8 << 3 << "3" << "" << refused
                                  << "Type the top number and the bottom number first!";
    QTest::newRow("bottom 0") << shape << strip << 8 << 3 << "3" << "00" << refused
                              << "The bottom number cannot be 0: count all the parts.";
    QTest::newRow("top 0") << shape << strip << 8 << 3 << "0" << "8" << refused
                           << "The top number cannot be 0: count the shaded parts.";
    QTest::newRow("top 0, ringed") << sets << none << 8 << 3 << "0" << "8" << refused
                                   << "The top number cannot be 0: count the ringed pictures.";
}

void TestNamingQuestions::namingVerdicts()
{
    QFETCH(int, picture);
    QFETCH(int, kind);
    QFETCH(int, parts);
    QFETCH(int, shaded);
    QFETCH(QString, top);
    QFETCH(QString, bottom);
    QFETCH(int, verdict);
    QFETCH(QString, statement);
    NameFraction::Question q;
    q.picture = Picture(picture);
    q.kind = ShapeKind(kind);
    q.parts = parts;
    q.shaded = shaded;
    q.set = 2; // ducks
    const Verdict v = NameFraction::check(q, top, bottom);
    QCOMPARE(int(v.kind), verdict);
    QCOMPARE(v.statement, statement);
}

void TestNamingQuestions::hints()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("QString::arg")));
    NameFraction::Question q;
    q.parts = 8;
    q.shaded = 3;
    QCOMPARE(NameFraction::hint(q), QStringLiteral("Count all the equal parts: 8. That is the bottom number. "
                                                   "Count the shaded parts: 3. That is the top number."));
    q.picture = Picture::Pictures;
    q.set = 3;
    QCOMPARE(NameFraction::hint(q), QStringLiteral("Count all the suns: 8. That is the bottom number. "
                                                   "Count the ringed suns: 3. That is the top number."));
    q.picture = Picture::HundredSquare;
    q.parts = 100;
    q.shaded = 37;
    QCOMPARE(NameFraction::hint(q),
             QStringLiteral("Each small square is 1/100; each column is 1/10. Count the shaded squares: 37."));
    QCOMPARE(CompareFractions::hint({CompareFractions::Kind::SameTop, 2, 5, 2, 7}),
             QStringLiteral("Both bars are the same length. Which has more shaded: 2/5 or 2/7?"));
}

// Each kind keeps its rule; about one pair in eight is equal, and only those.
void TestNamingQuestions::comparingDraws()
{
    using CompareFractions::Kind;
    const int draws = 16000;
    for (quint64 seed : {8ULL, 88ULL, 888ULL}) {
        Random::Source rnd(seed);
        CompareFractions::Question last;
        QMap<Kind, int> kinds;
        for (int i = 0; i < draws; ++i) {
            const CompareFractions::Question q = CompareFractions::draw(rnd, i ? &last : nullptr);
            QVERIFY(i == 0 || !(q == last));
            for (auto [top, bottom] : {std::pair{q.leftTop, q.leftBottom}, std::pair{q.rightTop, q.rightBottom}})
                QVERIFY(top >= 1 && top < bottom && bottom <= CompareFractions::kLargestBottom);
            const bool equal = Fractions::Fraction(q.leftTop, q.leftBottom) == Fractions::Fraction(q.rightTop, q.rightBottom);
            QCOMPARE(equal, q.kind == Kind::EqualPair);
            QCOMPARE(q.relation() == CompareFractions::Relation::Equal, equal);
            switch (q.kind) {
            case Kind::SameBottom:
                QVERIFY(q.leftBottom == q.rightBottom && q.leftTop != q.rightTop);
                break;
            case Kind::SameTop:
                QVERIFY(q.leftTop == q.rightTop && q.leftTop > 1 && q.leftBottom != q.rightBottom);
                break;
            case Kind::UnitFractions:
                QVERIFY(q.leftTop == 1 && q.rightTop == 1 && q.leftBottom != q.rightBottom);
                break;
            case Kind::EqualPair:
                QVERIFY(q.leftBottom != q.rightBottom);
                break;
            }
            ++kinds[q.kind];
            last = q;
        }
        QCOMPARE(kinds.size(), 4);
        // One in eight: 2000 of 16000, well within chance's reach.
        QVERIFY2(qAbs(kinds[Kind::EqualPair] - draws / CompareFractions::kEqualOneIn) < 200,
                 qPrintable(QString::number(kinds[Kind::EqualPair])));
    }
}

void TestNamingQuestions::comparingVerdicts_data()
{
    using CompareFractions::Kind;
    QTest::addColumn<int>("kind");
    QTest::addColumn<QVector<int>>("pair"); // left top, left bottom, right top, right bottom
    QTest::addColumn<int>("chosen");
    QTest::addColumn<int>("verdict");
    QTest::addColumn<QString>("statement");
    const int less = 0, equal = 1, more = 2;
    QTest::newRow("same bottom, right") << int(Kind::SameBottom) << QVector<int>{3, 8, 5, 8} << less << int(Verdict::Right)
                                        << "3/8 is less than 5/8.";
    QTest::newRow("same bottom, wrong") << int(Kind::SameBottom) << QVector<int>{5, 8, 3, 8} << less << int(Verdict::Wrong)
                                        << "5/8 is more than 3/8: both are counted in eighths, and 5 is more than 3.";
    QTest::newRow("same top, wrong") << int(Kind::SameTop) << QVector<int>{2, 5, 2, 7} << less << int(Verdict::Wrong)
                                     << "2/5 is more than 2/7: fifths are bigger pieces than sevenths.";
    QTest::newRow("units, wrong") << int(Kind::UnitFractions) << QVector<int>{1, 10, 1, 3} << equal << int(Verdict::Wrong)
                                  << "1/10 is less than 1/3: tenths are smaller pieces than thirds.";
    QTest::newRow("units, right") << int(Kind::UnitFractions) << QVector<int>{1, 2, 1, 12} << more << int(Verdict::Right)
                                  << "1/2 is more than 1/12.";
    QTest::newRow("equal, right") << int(Kind::EqualPair) << QVector<int>{2, 4, 1, 2} << equal << int(Verdict::Right)
                                  << "2/4 is equal to 1/2.";
    QTest::newRow("equal, wrong") << int(Kind::EqualPair) << QVector<int>{2, 3, 8, 12} << more << int(Verdict::Wrong)
                                  << "2/3 is equal to 8/12: multiply the top and the bottom of 2/3 by 4 to make 8/12.";
}

void TestNamingQuestions::comparingVerdicts()
{
    QFETCH(int, kind);
    QFETCH(QVector<int>, pair);
    QFETCH(int, chosen);
    QFETCH(int, verdict);
    QFETCH(QString, statement);
    const CompareFractions::Question q{CompareFractions::Kind(kind), pair[0], pair[1], pair[2], pair[3]};
    const Verdict v = CompareFractions::check(q, chosen);
    QCOMPARE(int(v.kind), verdict);
    QCOMPARE(v.statement, statement);
}

QTEST_MAIN(TestNamingQuestions)
#include "tst_namingquestions.moc"
