#include "comparefractions.h"

#include "fraction.h"
#include "runtime/random.h"

#include <QCoreApplication>
#include <algorithm>
#include <tuple>
#include <utility>

namespace CompareFractions {

namespace {

    constexpr int kSmallestBottom = 2;
    // Equal pairs: a fraction in lowest terms with a bottom up to 6, and the
    // same with top and bottom times 2..4.
    constexpr int kLargestSimpleBottom = 6;
    constexpr int kSmallestTimes = 2;
    constexpr int kLargestTimes = 4;
    // The same top: 2..5 over bottoms above it.
    constexpr int kSmallestSharedTop = 2;
    constexpr int kLargestSharedTop = 5;
    constexpr int kKindsOtherThanEqual = 3;

    QString written(int top, int bottom)
    {
        return QStringLiteral("%1/%2").arg(top).arg(bottom);
    }

    // Two different numbers from low..high.
    std::pair<int, int> twoDifferent(Random::Source& rnd, int low, int high)
    {
        const int first = rnd.between(low, high);
        int second = rnd.between(low, high - 1);
        if (second >= first)
            ++second;
        return {first, second};
    }

    Question equalPair(Random::Source& rnd)
    {
        Question q;
        q.kind = Kind::EqualPair;
        int top = 0;
        int bottom = 0;
        do {
            bottom = rnd.between(kSmallestBottom, kLargestSimpleBottom);
            top = rnd.between(1, bottom - 1);
        } while (!Fractions::inLowestTerms(top, bottom));
        const int times = rnd.between(kSmallestTimes, std::min(kLargestTimes, kLargestBottom / bottom));
        q.leftTop = top * times;
        q.leftBottom = bottom * times;
        q.rightTop = top;
        q.rightBottom = bottom;
        if (rnd.below(2) == 0) {
            std::swap(q.leftTop, q.rightTop);
            std::swap(q.leftBottom, q.rightBottom);
        }
        return q;
    }

    Question unequalPair(Random::Source& rnd)
    {
        Question q;
        q.kind = Kind(rnd.below(kKindsOtherThanEqual));
        switch (q.kind) {
        case Kind::SameBottom: {
            q.leftBottom = q.rightBottom = rnd.between(kSmallestBottom + 1, kLargestBottom);
            std::tie(q.leftTop, q.rightTop) = twoDifferent(rnd, 1, q.leftBottom - 1);
            break;
        }
        case Kind::SameTop: {
            q.leftTop = q.rightTop = rnd.between(kSmallestSharedTop, kLargestSharedTop);
            std::tie(q.leftBottom, q.rightBottom) = twoDifferent(rnd, q.leftTop + 1, kLargestBottom);
            break;
        }
        default:
            q.leftTop = q.rightTop = 1;
            std::tie(q.leftBottom, q.rightBottom) = twoDifferent(rnd, kSmallestBottom, kLargestBottom);
            break;
        }
        return q;
    }

    QString reason(const Question& q)
    {
        const QString left = written(q.leftTop, q.leftBottom);
        const QString right = written(q.rightTop, q.rightBottom);
        switch (q.relation()) {
        case Relation::Equal: {
            const bool leftLarger = q.leftBottom > q.rightBottom;
            const int times = leftLarger ? q.leftBottom / q.rightBottom : q.rightBottom / q.leftBottom;
            return QCoreApplication::translate("CompareFractions",
                                               "%1 is equal to %2: multiply the top and the bottom of %3 by %4 to make %5.")
                .arg(left, right, leftLarger ? right : left)
                .arg(times)
                .arg(leftLarger ? left : right);
        }
        case Relation::Less:
            if (q.leftBottom == q.rightBottom)
                return QCoreApplication::translate("CompareFractions",
                                                   "%1 is less than %2: both are counted in %3, and %4 is less than %5.")
                    .arg(left, right, Fractions::partsName(q.leftBottom))
                    .arg(q.leftTop)
                    .arg(q.rightTop);
            return QCoreApplication::translate("CompareFractions", "%1 is less than %2: %3 are smaller pieces than %4.")
                .arg(left, right, Fractions::partsName(q.leftBottom), Fractions::partsName(q.rightBottom));
        case Relation::More:
            break;
        }
        if (q.leftBottom == q.rightBottom)
            return QCoreApplication::translate("CompareFractions",
                                               "%1 is more than %2: both are counted in %3, and %4 is more than %5.")
                .arg(left, right, Fractions::partsName(q.leftBottom))
                .arg(q.leftTop)
                .arg(q.rightTop);
        return QCoreApplication::translate("CompareFractions", "%1 is more than %2: %3 are bigger pieces than %4.")
            .arg(left, right, Fractions::partsName(q.leftBottom), Fractions::partsName(q.rightBottom));
    }

} // namespace

Relation Question::relation() const
{
    const Fractions::Fraction left(leftTop, leftBottom);
    const Fractions::Fraction right(rightTop, rightBottom);
    return left < right ? Relation::Less : right < left ? Relation::More : Relation::Equal;
}

QString Question::instruction() const
{
    return QCoreApplication::translate("CompareFractions", "Is %1 less than, equal to or more than %2?")
        .arg(written(leftTop, leftBottom), written(rightTop, rightBottom));
}

QString Question::statement() const
{
    const QString left = written(leftTop, leftBottom);
    const QString right = written(rightTop, rightBottom);
    switch (relation()) {
    case Relation::Less:
        return QCoreApplication::translate("CompareFractions", "%1 is less than %2.").arg(left, right);
    case Relation::Equal:
        return QCoreApplication::translate("CompareFractions", "%1 is equal to %2.").arg(left, right);
    case Relation::More:
        break;
    }
    return QCoreApplication::translate("CompareFractions", "%1 is more than %2.").arg(left, right);
}

Question draw(Random::Source& rnd, const Question* last)
{
    Question q;
    do
        q = rnd.below(kEqualOneIn) == 0 ? equalPair(rnd) : unequalPair(rnd);
    while (last && q == *last);
    return q;
}

QString relationWords(Relation relation)
{
    switch (relation) {
    case Relation::Less:
        return QCoreApplication::translate("CompareFractions", "is less than");
    case Relation::Equal:
        return QCoreApplication::translate("CompareFractions", "is equal to");
    case Relation::More:
        break;
    }
    return QCoreApplication::translate("CompareFractions", "is more than");
}

Verdict check(const Question& q, int chosen)
{
    if (chosen < 0 || chosen >= kRelations)
        return Verdict::notCheckable(
            QCoreApplication::translate("CompareFractions", "Choose one of the three cards first!"));
    if (Relation(chosen) == q.relation())
        return Verdict::right(q.statement());
    return Verdict::wrong(reason(q));
}

QString hint(const Question& q)
{
    return QCoreApplication::translate("CompareFractions", "Both bars are the same length. Which has more shaded: %1 or %2?")
        .arg(written(q.leftTop, q.leftBottom), written(q.rightTop, q.rightBottom));
}

QString spokenPair(const Question& q)
{
    return QCoreApplication::translate("CompareFractions", "%1 and %2")
        .arg(Fractions::words(q.leftTop, q.leftBottom), Fractions::words(q.rightTop, q.rightBottom));
}

} // namespace CompareFractions
