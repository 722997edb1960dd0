#include "mixedquestion.h"

#include "runtime/random.h"
#include "fraction.h"

#include <QCoreApplication>
#include <algorithm>
#include <iterator>

namespace {
constexpr int kSmallestDenom = 2;
constexpr int kSingularOffset = 9;
constexpr int kLargestNamedDenom = 10; // fractionnames() names 2..10

// Indices 2..10 hold the plurals, 11..19 the singulars.
constexpr const char* kFractionNames[] = {
    "",
    "",
    QT_TRANSLATE_NOOP("Fractions", "halves"),
    QT_TRANSLATE_NOOP("Fractions", "thirds"),
    QT_TRANSLATE_NOOP("Fractions", "quarters"),
    QT_TRANSLATE_NOOP("Fractions", "fifths"),
    QT_TRANSLATE_NOOP("Fractions", "sixths"),
    QT_TRANSLATE_NOOP("Fractions", "sevenths"),
    QT_TRANSLATE_NOOP("Fractions", "eighths"),
    QT_TRANSLATE_NOOP("Fractions", "ninths"),
    QT_TRANSLATE_NOOP("Fractions", "tenths"),
    QT_TRANSLATE_NOOP("Fractions", "half"),
    QT_TRANSLATE_NOOP("Fractions", "third"),
    QT_TRANSLATE_NOOP("Fractions", "quarter"),
    QT_TRANSLATE_NOOP("Fractions", "fifth"),
    QT_TRANSLATE_NOOP("Fractions", "sixth"),
    QT_TRANSLATE_NOOP("Fractions", "seventh"),
    QT_TRANSLATE_NOOP("Fractions", "eighth"),
    QT_TRANSLATE_NOOP("Fractions", "ninth"),
    QT_TRANSLATE_NOOP("Fractions", "tenth"),
};
constexpr int kFractionNameCount = int(std::size(kFractionNames));

qint16 drawUpTo(Random::Source& rnd, int largest)
{
    return static_cast<qint16>(largest * rnd.rnd() + 1);
}

qint16 drawDenom(Random::Source& rnd, int largest)
{
    return static_cast<qint16>((largest - kSmallestDenom + 1) * rnd.rnd() + kSmallestDenom);
}

// The name of denominator d, plural or singular: the names of the table up
// to tenths, the fraction words' own beyond.
QString partNames(int d, bool plural)
{
    if (d > kLargestNamedDenom)
        return plural ? Fractions::partsName(d) : Fractions::partName(d);
    return fractionnames(plural ? d : d + kSingularOffset);
}

QString num(int n)
{
    return QString::number(n);
}
} // namespace

QString fractionnames(int index)
{
    // The names are the fraction words' own, translated in the same context.
    return index >= 0 && index < kFractionNameCount && *kFractionNames[index]
        ? QCoreApplication::translate("Fractions", kFractionNames[index])
        : QString();
}

qint16 MixedQuestion::improperNumerator() const
{
    return static_cast<qint16>(denom * whole + numer);
}

QString MixedQuestion::answerText() const
{
    const QString improper = num(improperNumerator()) + QLatin1Char('/') + num(denom);
    const QString mixed = QCoreApplication::translate("MixedQuestion", "%1 and %2/%3", "a mixed number: 2 and 3/4")
                              .arg(whole)
                              .arg(numer)
                              .arg(denom);
    const QString is
        = QCoreApplication::translate("MixedQuestion", "%1 is %2", "one number is another: 11/4 is 2 and 3/4");
    return direction == kToMixed ? is.arg(improper, mixed) : is.arg(mixed, improper);
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
    const QString plural = partNames(denom, true);
    const QString parts = partNames(denom, numer != 1);
    // The English singular and plural are separate texts; the count of
    // wholes also chooses a translation's own plural form.
    const char* const sentence = direction == kToMixed
        ? (whole == 1 ? QT_TRANSLATE_N_NOOP("MixedQuestion", "%1 %2 is %n whole one with %3 %4 left over.")
                      : QT_TRANSLATE_N_NOOP("MixedQuestion", "%1 %2 is %n whole ones with %3 %4 left over."))
        : (whole == 1
               ? QT_TRANSLATE_N_NOOP("MixedQuestion", "Each whole number is %1 %2. You have %n whole number and %3 %4.")
               : QT_TRANSLATE_N_NOOP("MixedQuestion", "Each whole number is %1 %2. You have %n whole numbers and %3 %4."));
    const QString first = direction == kToMixed ? num(denom * whole) : num(denom);
    return QCoreApplication::translate("MixedQuestion", sentence, nullptr, whole).arg(first, plural, num(numer), parts);
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

int MixedRange::largestImproperNumerator() const
{
    const int largestWhole = direction == MixedQuestion::kToMixed ? largestWholeToMixed
        : direction == MixedQuestion::kToImproper                 ? largestWholeToImproper
                                                   : std::max(largestWholeToMixed, largestWholeToImproper);
    return largestDenom * largestWhole + std::min(largestNumer, largestDenom - 1);
}

MixedQuestion MixedQuestion::draw(Random::Source& rnd)
{
    return drawDirection(rnd) == kToMixed ? drawImproper(rnd) : drawMixed(rnd);
}

MixedQuestion MixedQuestion::draw(Random::Source& rnd, const Range& range, const MixedQuestion* last)
{
    MixedQuestion q;
    do {
        const int way = range.direction == kEitherWay ? drawDirection(rnd) : range.direction;
        q = way == kToMixed ? drawImproper(rnd, range) : drawMixed(rnd, range);
    } while (last && q == *last);
    return q;
}

MixedQuestion MixedQuestion::drawImproper(Random::Source& rnd, const Range& range)
{
    MixedQuestion q;
    q.direction = kToMixed;
    do {
        q.whole = drawUpTo(rnd, range.largestWholeToMixed);
        q.numer = drawUpTo(rnd, range.largestNumer);
        q.denom = drawDenom(rnd, range.largestDenom);
    } while (!(Fractions::hcf(q.numer, q.denom) == 1 && Fractions::hcf(q.improperNumerator(), q.denom) == 1
               && q.numer <= q.denom));
    return q;
}

MixedQuestion MixedQuestion::drawMixed(Random::Source& rnd, const Range& range)
{
    MixedQuestion q;
    q.direction = kToImproper;
    do {
        q.whole = drawUpTo(rnd, range.largestWholeToImproper);
        q.numer = drawUpTo(rnd, range.largestNumer);
        q.denom = drawDenom(rnd, range.largestDenom);
    } while (!(Fractions::hcf(q.numer, q.denom) == 1 && q.numer <= q.denom));
    return q;
}

QString MixedQuestion::instruction(bool inWords) const
{
    const QString improper = inWords ? Fractions::words(improperNumerator(), denom)
                                     : num(improperNumerator()) + QLatin1Char('/') + num(denom);
    if (direction == kToMixed)
        return QCoreApplication::translate("MixedQuestion", "Change %1 to a mixed number.").arg(improper);
    const QString mixed = inWords ? Fractions::mixedWords(whole, numer, denom)
                                  : QCoreApplication::translate("MixedQuestion", "%1 and %2/%3", "a mixed number: 2 and 3/4")
                                        .arg(whole)
                                        .arg(numer)
                                        .arg(denom);
    return QCoreApplication::translate("MixedQuestion", "Change %1 to an improper fraction.").arg(mixed);
}

Verdict MixedQuestion::check(const QList<int>& typed) const
{
    const QList<int> right = answerNumbers();
    if (typed.size() != right.size() || typed.contains(0))
        return Verdict::notCheckable(
            QCoreApplication::translate("MixedQuestion", "Type a number in every box first!"));
    const QString sentence = answerText() + QLatin1Char('.');
    return typed == right ? Verdict::right(sentence) : Verdict::wrong(sentence);
}

QList<int> MixedQuestion::answerNumbers() const
{
    if (direction == kToMixed)
        return {whole, numer, denom};
    return {improperNumerator(), denom};
}
