#include "mixedquestion.h"

#include "runtime/random.h"
#include "fraction.h"

#include <iterator>

namespace {
constexpr int kLargestWholeToMixed = 5;
constexpr int kLargestWholeToImproper = 9;
constexpr int kLargestNumer = 9;
constexpr int kSmallestDenom = 2;
constexpr int kDenomChoices = 9; // 2..10
constexpr int kSingularOffset = 9;

// Indices 2..10 hold the plurals, 11..19 the singulars.
constexpr const char* kFractionNames[] = {
    "",        "",       "halves", "thirds", "quarters", "fifths",  "sixths",
    "sevenths", "eighths", "ninths", "tenths", "half",     "third",   "quarter",
    "fifth",   "sixth",  "seventh", "eighth", "ninth",    "tenth",
};
constexpr int kFractionNameCount = int(std::size(kFractionNames));

qint16 drawUpTo(Random::Source& rnd, int largest)
{
    return static_cast<qint16>(largest * rnd.rnd() + 1);
}

qint16 drawDenom(Random::Source& rnd)
{
    return static_cast<qint16>(kDenomChoices * rnd.rnd() + kSmallestDenom);
}

QString num(int n)
{
    return QString::number(n);
}
} // namespace

QString fractionnames(int index)
{
    return index >= 0 && index < kFractionNameCount ? QString::fromLatin1(kFractionNames[index]) : QString();
}

qint16 MixedQuestion::improperNumerator() const
{
    return static_cast<qint16>(denom * whole + numer);
}

QString MixedQuestion::answerText() const
{
    const QString improper = num(improperNumerator()) + QLatin1Char('/') + num(denom);
    const QString mixed = num(whole) + QStringLiteral(" and ") + num(numer) + QLatin1Char('/') + num(denom);
    return direction == kToMixed ? improper + QStringLiteral(" is ") + mixed
                                 : mixed + QStringLiteral(" is ") + improper;
}

bool MixedQuestion::isAnswer(const Entries& typed) const
{
    if (direction == kToMixed)
        return typed.t1 == whole && typed.t4 == numer && typed.t2 == denom;
    if (direction == kToImproper)
        return typed.t3 == improperNumerator() && typed.t5 == denom;
    return false;
}

QString MixedQuestion::hintText() const
{
    const QString plural = fractionnames(denom);
    const QString parts = numer == 1 ? fractionnames(denom + kSingularOffset) : plural;
    if (direction == kToMixed)
        return num(denom * whole) + QLatin1Char(' ') + plural + QStringLiteral(" is ") + num(whole)
            + (whole == 1 ? QStringLiteral(" whole one with ") : QStringLiteral(" whole ones with ")) + num(numer)
            + QLatin1Char(' ') + parts + QStringLiteral(" left over.");
    return QStringLiteral("Each whole number is ") + num(denom) + QLatin1Char(' ') + plural
        + QStringLiteral(". You have ") + num(whole)
        + (whole == 1 ? QStringLiteral(" whole number and ") : QStringLiteral(" whole numbers and ")) + num(numer)
        + QLatin1Char(' ') + parts + QLatin1Char('.');
}

QString MixedQuestion::productText() const
{
    if (direction != kToImproper)
        return QString();
    return num(whole) + QStringLiteral(" x ") + num(denom) + QStringLiteral(" = ") + num(whole * denom);
}

int MixedQuestion::drawDirection(Random::Source& rnd)
{
    return static_cast<int>(2 * rnd.rnd() + 1);
}

MixedQuestion MixedQuestion::draw(Random::Source& rnd)
{
    return drawDirection(rnd) == kToMixed ? drawImproper(rnd) : drawMixed(rnd);
}

MixedQuestion MixedQuestion::drawImproper(Random::Source& rnd)
{
    MixedQuestion q;
    q.direction = kToMixed;
    do {
        q.whole = drawUpTo(rnd, kLargestWholeToMixed);
        q.numer = drawUpTo(rnd, kLargestNumer);
        q.denom = drawDenom(rnd);
    } while (!(Fractions::hcf(q.numer, q.denom) == 1 && Fractions::hcf(q.improperNumerator(), q.denom) == 1
               && q.numer <= q.denom));
    return q;
}

MixedQuestion MixedQuestion::drawMixed(Random::Source& rnd)
{
    MixedQuestion q;
    q.direction = kToImproper;
    do {
        q.whole = drawUpTo(rnd, kLargestWholeToImproper);
        q.numer = drawUpTo(rnd, kLargestNumer);
        q.denom = drawDenom(rnd);
    } while (!(Fractions::hcf(q.numer, q.denom) == 1 && q.numer <= q.denom));
    return q;
}
