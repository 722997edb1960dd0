#include "mixedquestion.h"

#include "runtime/random.h"
#include "fraction.h"

#include <QCoreApplication>
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
    const QString plural = fractionnames(denom);
    const QString parts = numer == 1 ? fractionnames(denom + kSingularOffset) : plural;
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
