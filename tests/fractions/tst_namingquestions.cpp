// Naming a fraction (Year 3 and Write A Fraction) and More Than, Less Than
// without their screens: every draw keeps the activities' rules, and each
// answer gets its verdict and its sentence.
#include "fractions/comparefractions.h"
#include "fractions/fraction.h"
#include "fractions/namefraction.h"
#include "kit/parts/shapes.h"
#include "draws.h"
#include "runtime/random.h"
#include "verdicttext.h"

#include <QSet>
#include <QtTest>

using NameFraction::Mode;
using NameFraction::Picture;
using Named = NameFraction::Question;
using Compared = CompareFractions::Question;
Q_DECLARE_METATYPE(NameFraction::Question)
Q_DECLARE_METATYPE(CompareFractions::Question)

class TestNamingQuestions : public QObject {
    Q_OBJECT
private slots:
    void namingDraws_data()
    {
        QTest::addColumn<Mode>("mode");
        QTest::addColumn<QSet<int>>("stripParts");
        QTest::addColumn<QSet<int>>("circleParts");
        QTest::addColumn<QSet<int>>("rectangleParts");
        QTest::addColumn<QSet<int>>("pictures"); // the kinds of picture drawn
        const int shape = int(Picture::Shape), square = int(Picture::HundredSquare), sets = int(Picture::Pictures);
        QTest::newRow("Year 3") << Mode::Year3Shapes << QSet<int>{2, 3, 4, 5, 6, 8, 10} << QSet<int>{2, 3, 4, 6, 8}
                                << QSet<int>{4, 6, 8, 10} << QSet<int>{shape};
        QTest::newRow("Year 4") << Mode::Year4Pictures << QSet<int>{2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}
                                << QSet<int>{2, 3, 4, 5, 6, 8, 10, 12} << QSet<int>{4, 6, 8, 10, 12}
                                << QSet<int>{shape, square, sets};
    }

    // The cuts within each year's lists and ones the kit can draw, 1 to n-1 parts shaded,
    // hundred squares 1..99 (whole columns some of the time), 2..12 pictures, no repeats.
    void namingDraws()
    {
        QFETCH(Mode, mode);
        QFETCH(QSet<int>, pictures);
        const auto all = drawMany<Named>(
            [mode](Random::Source& rnd, const Named* last) { return NameFraction::draw(mode, rnd, last); }, 6000);
        QVERIFY(!repeatsRunning(all));
        QMap<ShapeKind, QSet<int>> cuts;
        QSet<int> kinds, squares, sets;
        int columns = 0;
        for (const Named& q : all) {
            QVERIFY(q.shaded >= 1 && q.shaded < q.parts);
            for (int part : {0, 1})
                QVERIFY(NameFraction::counted(q).section(QLatin1Char('/'), part, part).size()
                        <= NameFraction::answerDigits(mode));
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
        }
        QCOMPARE(kinds, pictures);
        QCOMPARE(cuts.keys(), (QList<ShapeKind>{ShapeKind::Circle, ShapeKind::Strip, ShapeKind::TwoRowRectangle}));
        QTEST(cuts[ShapeKind::Strip], "stripParts");
        QTEST(cuts[ShapeKind::Circle], "circleParts");
        QTEST(cuts[ShapeKind::TwoRowRectangle], "rectangleParts");
        if (pictures.contains(int(Picture::HundredSquare))) {
            QCOMPARE(squares.size(), 99); // every count from 1 to 99
            QVERIFY(columns > 0 && columns < 2000 / 3);
            QCOMPARE(sets.size(), NameFraction::kLastPictureSet - NameFraction::kFirstPictureSet + 1);
        }
    }

    // The pictures are ducks.
    void namingVerdicts_data()
    {
        QTest::addColumn<Named>("q");
        QTest::addColumn<QString>("top");
        QTest::addColumn<QString>("bottom");
        QTest::addColumn<QString>("verdict");
        const Picture shape = Picture::Shape, square = Picture::HundredSquare, sets = Picture::Pictures;
        const ShapeKind strip = ShapeKind::Strip, circle = ShapeKind::Circle;
        QTest::newRow("as counted") << Named{shape, strip, 8, 3} << "3" << "8" << "right: 3/8 of the strip is shaded.";
        QTest::newRow("equal in value") << Named{shape, strip, 4, 2} << "1" << "2"
                                        << "right: 2/4 of the strip is shaded: that is 1/2.";
        QTest::newRow("larger but equal") << Named{shape, circle, 3, 2} << "4" << "6"
                                          << "right: 2/3 of the circle is shaded: that is 4/6.";
        QTest::newRow("leading zero") << Named{shape, circle, 6, 1} << "01" << "6" << "right: 1/6 of the circle is shaded.";
        QTest::newRow("upside down") << Named{shape, strip, 8, 3} << "8" << "3"
                                     << "wrong: 3/8 of the strip is shaded: 3 of its 8 parts.";
        QTest::newRow("the unshaded parts") << Named{shape, circle, 5, 2} << "3" << "5"
                                            << "wrong: 2/5 of the circle is shaded: 2 of its 5 parts.";
        QTest::newRow("hundredths") << Named{square, strip, 100, 37} << "37" << "100"
                                    << "right: 37/100 of the square is shaded.";
        QTest::newRow("tenths") << Named{square, strip, 100, 30} << "3" << "10"
                                << "right: 30/100 of the square is shaded: that is 3/10.";
        QTest::newRow("out of ten, not equal") << Named{square, strip, 100, 37} << "37" << "10"
                                               << "wrong: 37/100 of the square is shaded: 37 of its 100 small squares.";
        QTest::newRow("ringed") << Named{sets, strip, 12, 5} << "5" << "12" << "right: 5/12 of the ducks are ringed.";
        QTest::newRow("ringed, wrong") << Named{sets, strip, 6, 2} << "2" << "4"
                                       << "wrong: 2/6 of the ducks are ringed: 2 of the 6 ducks.";
        QTest::newRow("empty bottom") << Named{shape, strip, 8, 3} << "3" << ""
                                      << "refused: Type the top number and the bottom number first!";
        QTest::newRow("bottom 0") << Named{shape, strip, 8, 3} << "3" << "00"
                                  << "refused: The bottom number cannot be 0: count all the parts.";
        QTest::newRow("top 0") << Named{shape, strip, 8, 3} << "0" << "8"
                               << "refused: The top number cannot be 0: count the shaded parts.";
        QTest::newRow("top 0, ringed") << Named{sets, strip, 8, 3} << "0" << "8"
                                       << "refused: The top number cannot be 0: count the ringed pictures.";
    }

    void namingVerdicts()
    {
        QFETCH(Named, q);
        QFETCH(QString, top);
        QFETCH(QString, bottom);
        QTEST(said(NameFraction::check(q, top, bottom)), "verdict");
    }

    void hints()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral("QString::arg")));
        Named q{Picture::Shape, ShapeKind::Strip, 8, 3};
        QCOMPARE(NameFraction::hint(q), QStringLiteral("Count all the equal parts: 8. That is the bottom number. "
                                                       "Count the shaded parts: 3. That is the top number."));
        q.picture = Picture::Pictures;
        q.set = 3;
        QCOMPARE(NameFraction::hint(q), QStringLiteral("Count all the suns: 8. That is the bottom number. "
                                                       "Count the ringed suns: 3. That is the top number."));
        q = {Picture::HundredSquare, ShapeKind::Strip, 100, 37};
        QCOMPARE(NameFraction::hint(q),
                 QStringLiteral("Each small square is 1/100; each column is 1/10. Count the shaded squares: 37."));
        QCOMPARE(CompareFractions::hint({CompareFractions::Kind::SameTop, 2, 5, 2, 7}),
                 QStringLiteral("Both bars are the same length. Which has more shaded: 2/5 or 2/7?"));
    }

    // Each kind keeps its rule; about one pair in eight is equal, and only those.
    void comparingDraws()
    {
        using CompareFractions::Kind;
        const int draws = 16000;
        const auto all = drawMany<Compared>(CompareFractions::draw, draws, 8);
        QVERIFY(!repeatsRunning(all));
        QMap<Kind, int> kinds;
        for (const Compared& q : all) {
            for (auto [top, bottom] : {std::pair{q.leftTop, q.leftBottom}, std::pair{q.rightTop, q.rightBottom}})
                QVERIFY(top >= 1 && top < bottom && bottom <= CompareFractions::kLargestBottom);
            const bool equal = Fractions::Fraction(q.leftTop, q.leftBottom) == Fractions::Fraction(q.rightTop, q.rightBottom);
            QCOMPARE(equal, q.kind == Kind::EqualPair);
            QCOMPARE(q.relation() == CompareFractions::Relation::Equal, equal);
            if (q.kind != Kind::SameBottom)
                QVERIFY(q.leftBottom != q.rightBottom);
            if (q.kind == Kind::SameBottom)
                QVERIFY(q.leftBottom == q.rightBottom && q.leftTop != q.rightTop);
            else if (q.kind == Kind::SameTop)
                QVERIFY(q.leftTop == q.rightTop && q.leftTop > 1);
            else if (q.kind == Kind::UnitFractions)
                QVERIFY(q.leftTop == 1 && q.rightTop == 1);
            ++kinds[q.kind];
        }
        QCOMPARE(kinds.size(), 4);
        // One in eight: 2000 of 16000, well within chance's reach.
        QVERIFY2(qAbs(kinds[Kind::EqualPair] - draws / CompareFractions::kEqualOneIn) < 200,
                 qPrintable(QString::number(kinds[Kind::EqualPair])));
    }

    void comparingVerdicts_data()
    {
        using K = CompareFractions::Kind;
        QTest::addColumn<Compared>("q");
        QTest::addColumn<int>("chosen");
        QTest::addColumn<QString>("verdict");
        const int less = 0, equal = 1, more = 2;
        QTest::newRow("same bottom, right") << Compared{K::SameBottom, 3, 8, 5, 8} << less << "right: 3/8 is less than 5/8.";
        QTest::newRow("same bottom, wrong")
            << Compared{K::SameBottom, 5, 8, 3, 8} << less
            << "wrong: 5/8 is more than 3/8: both are counted in eighths, and 5 is more than 3.";
        QTest::newRow("same top, wrong") << Compared{K::SameTop, 2, 5, 2, 7} << less
                                         << "wrong: 2/5 is more than 2/7: fifths are bigger pieces than sevenths.";
        QTest::newRow("units, wrong") << Compared{K::UnitFractions, 1, 10, 1, 3} << equal
                                      << "wrong: 1/10 is less than 1/3: tenths are smaller pieces than thirds.";
        QTest::newRow("equal, right") << Compared{K::EqualPair, 2, 4, 1, 2} << equal << "right: 2/4 is equal to 1/2.";
        QTest::newRow("equal, wrong")
            << Compared{K::EqualPair, 2, 3, 8, 12} << more
            << "wrong: 2/3 is equal to 8/12: multiply the top and the bottom of 2/3 by 4 to make 8/12.";
    }

    void comparingVerdicts()
    {
        QFETCH(Compared, q);
        QFETCH(int, chosen);
        QTEST(said(CompareFractions::check(q, chosen)), "verdict");
    }
};

QTEST_MAIN(TestNamingQuestions)
#include "tst_namingquestions.moc"
