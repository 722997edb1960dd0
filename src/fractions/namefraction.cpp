#include "namefraction.h"

#include "fraction.h"
#include "halvesquestion.h"
#include "runtime/random.h"

#include <QCoreApplication>
#include <QVector>
#include <iterator>

namespace NameFraction {

namespace {

    QString written(int top, int bottom)
    {
        return QStringLiteral("%1/%2").arg(top).arg(bottom);
    }

    template <std::size_t N> QVector<int> listOf(const int (&counts)[N])
    {
        return QVector<int>(std::begin(counts), std::end(counts));
    }

    QVector<int> countsFrom(int first, int last, int step)
    {
        QVector<int> counts;
        for (int n = first; n <= last; n += step)
            counts << n;
        return counts;
    }

    // The part counts a shape is cut into in each year.
    QVector<int> partCounts(Mode mode, ShapeKind kind)
    {
        constexpr int kFewest = 2;
        constexpr int kFewestInTwoRows = 4;
        constexpr int kRows = 2;
        const bool year3 = mode == Mode::Year3Shapes;
        switch (kind) {
        case ShapeKind::Circle:
            return year3 ? listOf(kYear3CircleParts) : QVector<int>{2, 3, 4, 5, 6, 8, 10, 12};
        case ShapeKind::TwoRowRectangle:
            return year3 ? listOf(kYear3RectangleParts) : countsFrom(kFewestInTwoRows, kMostYear4Parts, kRows);
        default:
            return year3 ? listOf(kYear3StripParts) : countsFrom(kFewest, kMostYear4Parts, 1);
        }
    }

    Question drawShape(Mode mode, Random::Source& rnd)
    {
        static constexpr ShapeKind kKinds[] = {ShapeKind::Strip, ShapeKind::Circle, ShapeKind::TwoRowRectangle};
        Question q;
        q.picture = Picture::Shape;
        q.kind = kKinds[rnd.below(int(std::size(kKinds)))];
        const QVector<int> counts = partCounts(mode, q.kind);
        q.parts = counts[rnd.below(int(counts.size()))];
        q.shaded = rnd.between(1, q.parts - 1);
        return q;
    }

    // One hundred square in four is shaded in whole columns: tenths.
    constexpr int kColumnsOneIn = 4;
    constexpr int kColumns = 10;

    Question drawHundredSquare(Random::Source& rnd)
    {
        Question q;
        q.picture = Picture::HundredSquare;
        q.kind = ShapeKind::SquareGrid;
        q.parts = kHundred;
        q.wholeColumns = rnd.below(kColumnsOneIn) == 0;
        q.shaded = q.wholeColumns ? kTenth * rnd.between(1, kColumns - 1) : rnd.between(1, kHundred - 1);
        return q;
    }

    Question drawPictures(Random::Source& rnd)
    {
        constexpr int kFewestPictures = 2;
        Question q;
        q.picture = Picture::Pictures;
        q.parts = rnd.between(kFewestPictures, kMostYear4Pictures);
        q.shaded = rnd.between(1, q.parts - 1);
        q.set = rnd.between(kFirstPictureSet, kLastPictureSet);
        return q;
    }

} // namespace

QString Question::noun() const
{
    switch (picture) {
    case Picture::Pictures:
        return Halves::setName(set);
    case Picture::HundredSquare:
        return shapeNoun(ShapeKind::SquareGrid);
    case Picture::Shape:
        break;
    }
    return shapeNoun(kind);
}

QString Question::instruction() const
{
    if (picture == Picture::Pictures)
        return QCoreApplication::translate("NameFraction", "What fraction of the %1 are ringed?").arg(noun());
    return QCoreApplication::translate("NameFraction", "What fraction of the %1 is shaded?").arg(noun());
}

int answerDigits(Mode mode)
{
    constexpr int kTwoDigits = 2;
    constexpr int kThreeDigits = 3;
    return mode == Mode::Year3Shapes ? kTwoDigits : kThreeDigits;
}

Question draw(Mode mode, Random::Source& rnd, const Question* last)
{
    enum { Shapes, Squares, Sets, Kinds };
    Question q;
    do {
        const int which = mode == Mode::Year3Shapes ? Shapes : rnd.below(Kinds);
        q = which == Shapes ? drawShape(mode, rnd) : which == Squares ? drawHundredSquare(rnd) : drawPictures(rnd);
    } while (last && q == *last);
    return q;
}

QString counted(const Question& q)
{
    return written(q.shaded, q.parts);
}

Verdict check(const Question& q, const QString& top, const QString& bottom)
{
    bool topRead = false;
    bool bottomRead = false;
    const int t = top.toInt(&topRead);
    const int b = bottom.toInt(&bottomRead);
    if (!topRead || !bottomRead)
        return Verdict::notCheckable(QCoreApplication::translate("NameFraction", "Type the top number and the bottom number first!"));
    if (b == 0)
        return Verdict::notCheckable(QCoreApplication::translate("NameFraction", "The bottom number cannot be 0: count all the parts."));
    if (t == 0)
        return Verdict::notCheckable(q.picture == Picture::Pictures
                                         ? QCoreApplication::translate("NameFraction", "The top number cannot be 0: count the ringed pictures.")
                                         : QCoreApplication::translate("NameFraction", "The top number cannot be 0: count the shaded parts."));
    const bool ringed = q.picture == Picture::Pictures;
    if (Fractions::Fraction(t, b) == Fractions::Fraction(q.shaded, q.parts)) {
        if (t == q.shaded && b == q.parts)
            return Verdict::right((ringed ? QCoreApplication::translate("NameFraction", "%1 of the %2 are ringed.")
                                          : QCoreApplication::translate("NameFraction", "%1 of the %2 is shaded."))
                                      .arg(counted(q), q.noun()));
        return Verdict::right(
            (ringed ? QCoreApplication::translate("NameFraction", "%1 of the %2 are ringed: that is %3.")
                    : QCoreApplication::translate("NameFraction", "%1 of the %2 is shaded: that is %3."))
                .arg(counted(q), q.noun(), written(t, b)));
    }
    if (ringed)
        return Verdict::wrong(QCoreApplication::translate("NameFraction", "%1 of the %2 are ringed: %3 of the %4 %2.")
                                  .arg(counted(q), q.noun())
                                  .arg(q.shaded)
                                  .arg(q.parts));
    return Verdict::wrong(
        (q.picture == Picture::HundredSquare
             ? QCoreApplication::translate("NameFraction", "%1 of the %2 is shaded: %3 of its %4 small squares.")
             : QCoreApplication::translate("NameFraction", "%1 of the %2 is shaded: %3 of its %4 parts."))
            .arg(counted(q), q.noun())
            .arg(q.shaded)
            .arg(q.parts));
}

QString hint(const Question& q)
{
    switch (q.picture) {
    case Picture::HundredSquare:
        return QCoreApplication::translate("NameFraction", "Each small square is 1/100; each column is 1/10.") + QLatin1Char(' ')
            + QCoreApplication::translate("NameFraction",
                                          "Count the shaded squares: %1.")
                  .arg(q.shaded);
    case Picture::Pictures:
        return QCoreApplication::translate("NameFraction",
                                           "Count all the %1: %2. That is the bottom number. Count the ringed %1: %3. That is the top number.")
            .arg(Halves::setName(q.set))
            .arg(q.parts)
            .arg(q.shaded);
    case Picture::Shape:
        break;
    }
    return QCoreApplication::translate("NameFraction",
                                       "Count all the equal parts: %1. That is the bottom number. Count the shaded parts: %2. That is the top number.")
        .arg(q.parts)
        .arg(q.shaded);
}

} // namespace NameFraction
