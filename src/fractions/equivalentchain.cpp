#include "equivalentchain.h"

#include "fraction.h"
#include "runtime/random.h"

#include <QCoreApplication>
#include <algorithm>

namespace EquivalentChain {

namespace {
const QString kMissing = QStringLiteral("?");

QString written(const QString& top, const QString& bottom)
{
    return top + QLatin1Char('/') + bottom;
}

// The chain written out, each number after the first fraction as `shown` gives it.
template <class Shown> QString chain(const Question& q, Shown shown)
{
    QStringList fractions{written(QString::number(q.top), QString::number(q.bottom))};
    for (int f = 0; f < kMade; ++f)
        fractions << written(shown(2 * f), shown(2 * f + 1));
    return fractions.join(QStringLiteral(" = "));
}
} // namespace

int Question::number(int index) const
{
    const int multiplier = multipliers[std::size_t(index / 2)];
    return (index % 2 == 0 ? top : bottom) * multiplier;
}

QString Question::text() const
{
    return chain(*this, [this](int i) { return missing[std::size_t(i)] ? kMissing : QString::number(number(i)); });
}

QString Question::answerText() const
{
    return chain(*this, [this](int i) { return QString::number(number(i)); });
}

QString Question::instruction() const
{
    return QCoreApplication::translate("EquivalentChain",
                                       "Fill in the missing numbers so that the fractions are equal.");
}

QString Question::spoken() const
{
    QStringList said{Fractions::words(top, bottom)};
    for (int f = 0; f < kMade; ++f) {
        const int t = number(2 * f), b = number(2 * f + 1);
        if (missing[std::size_t(2 * f)])
            said << QCoreApplication::translate("EquivalentChain", "how many %1").arg(Fractions::partsName(b));
        else if (missing[std::size_t(2 * f + 1)])
            said << QCoreApplication::translate("EquivalentChain", "%1 over what number")
                        .arg(Fractions::numberWord(t));
        else
            said << Fractions::words(t, b);
    }
    return QCoreApplication::translate("EquivalentChain", "%1 equals %2, equals %3, equals %4")
        .arg(said[0], said[1], said[2], said[3]);
}

Question draw(Random::Source& rnd, const Question* last)
{
    Question q;
    do {
        q.bottom = rnd.between(kSmallestBottom, kLargestBottom);
        do
            q.top = rnd.between(1, q.bottom - 1);
        while (!Fractions::inLowestTerms(q.top, q.bottom));
        // Three different multipliers from 2..6, smallest first.
        std::array<int, kLargestMultiplier - kSmallestMultiplier + 1> all{};
        for (std::size_t i = 0; i < all.size(); ++i)
            all[i] = kSmallestMultiplier + int(i);
        for (std::size_t i = 0; i < std::size_t(kMade); ++i)
            std::swap(all[i], all[i + std::size_t(rnd.below(int(all.size() - i)))]);
        std::copy_n(all.begin(), kMade, q.multipliers.begin());
        std::sort(q.multipliers.begin(), q.multipliers.end());
        // The top or the bottom of each made fraction is missing.
        for (std::size_t f = 0; f < std::size_t(kMade); ++f) {
            const bool topMissing = rnd.below(2) == 0;
            q.missing[2 * f] = topMissing;
            q.missing[2 * f + 1] = !topMissing;
        }
    } while (last && q == *last);
    return q;
}

Verdict check(const Question& q, const QStringList& typed)
{
    // The numbers of the chain, the typed ones in the missing places.
    std::array<std::int64_t, kNumbers> numbers{};
    int next = 0;
    for (int i = 0; i < kNumbers; ++i) {
        if (!q.missing[std::size_t(i)]) {
            numbers[std::size_t(i)] = q.number(i);
            continue;
        }
        const QString text = typed.value(next++);
        bool isNumber = false;
        numbers[std::size_t(i)] = text.toLongLong(&isNumber);
        if (!isNumber)
            return Verdict::notCheckable(
                QCoreApplication::translate("EquivalentChain", "Fill in every box first!"));
        if (i % 2 == 1 && numbers[std::size_t(i)] == 0)
            return Verdict::notCheckable(
                QCoreApplication::translate("EquivalentChain", "A bottom number cannot be 0."));
    }
    const QString statement = q.answerText() + QLatin1Char('.');
    const Fractions::Fraction first(q.top, q.bottom);
    for (std::size_t f = 0; f < std::size_t(kMade); ++f)
        if (Fractions::Fraction(numbers[2 * f], numbers[2 * f + 1]) != first)
            return Verdict::wrong(statement);
    return Verdict::right(statement);
}

QString hint(const Question& q)
{
    return QCoreApplication::translate("EquivalentChain",
                                       "Every fraction in the chain is %1 with top and bottom multiplied by the same "
                                       "number: × %2, × %3, × %4.")
        .arg(written(QString::number(q.top), QString::number(q.bottom)))
        .arg(q.multipliers[0])
        .arg(q.multipliers[1])
        .arg(q.multipliers[2]);
}

} // namespace EquivalentChain
