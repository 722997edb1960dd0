#include "findingamounts.h"

#include "fraction.h"
#include "placevalues.h"
#include "runtime/random.h"

#include <QCoreApplication>
#include <iterator>

namespace Amounts {

namespace {
constexpr int kHundred = 100;
constexpr int kTenthsBar = 10; // 1% to 20% are worked on a bar of ten tenths
constexpr int kQuarterPercent = 25; // from here on, quarters and halves
constexpr int kHalfPercent = 50;
constexpr int kQuarters = 4;
constexpr int kHalves = 2;
// A fraction's amount is its bottom times 2 to 12; one time in four ten times that.
constexpr int kSmallestTimes = 2;
constexpr int kLargestTimes = 12;
constexpr int kTimesTen = 10;
constexpr int kOneIn = 4;
// A number no unit's words hold, to find where a number stands beside its unit.
constexpr int kMarker = 987654321;

// Each percentage's amounts: multiples of `step` up to `largest`, so the
// answer (and the bar's boxes) are whole numbers.
struct PercentAmounts {
    int percent;
    int step;
    int largest;
};
constexpr PercentAmounts kAmounts[] = {
    {1, 100, 1000}, {5, 20, 1000}, {10, 10, 1000}, {15, 20, 1000},
    {20, 10, 1000}, {25, 4, 400},  {50, 2, 200},   {75, 4, 400},
};
} // namespace

QString Question::part() const
{
    return isPercent() ? QStringLiteral("%1%").arg(percent) : QStringLiteral("%1/%2").arg(top).arg(bottom);
}

QString Question::withUnit(int n) const
{
    switch (unit) {
    case Unit::Kilograms:
        return QCoreApplication::translate("Amounts", "%1 kg").arg(n);
    case Unit::Metres:
        return QCoreApplication::translate("Amounts", "%1 m").arg(n);
    case Unit::Pounds:
        return QCoreApplication::translate("Amounts", "£%1").arg(n);
    case Unit::None:
        break;
    }
    return QString::number(n);
}

QString Question::unitBefore() const
{
    const QString format = withUnit(kMarker);
    return format.left(format.indexOf(QString::number(kMarker))).trimmed();
}

QString Question::unitAfter() const
{
    const QString format = withUnit(kMarker);
    return format.mid(format.indexOf(QString::number(kMarker)) + QString::number(kMarker).size()).trimmed();
}

QString Question::instruction() const
{
    return QCoreApplication::translate("Amounts", "What is %1 of %2?").arg(part(), withUnit(amount));
}

QString Question::statement() const
{
    return QCoreApplication::translate("Amounts", "%1 of %2 is %3.").arg(part(), withUnit(amount), withUnit(answer()));
}

Question draw(Random::Source& rnd, const Question* last)
{
    Question q;
    do {
        q = Question{};
        if (rnd.below(2)) {
            const PercentAmounts& a = kAmounts[rnd.below(int(std::size(kAmounts)))];
            q.percent = a.percent;
            q.amount = a.step * rnd.between(1, a.largest / a.step);
        } else {
            q.bottom = rnd.between(kSmallestBottom, kLargestBottom);
            do
                q.top = rnd.between(1, q.bottom - 1);
            while (!Fractions::inLowestTerms(q.top, q.bottom));
            q.amount = q.bottom * rnd.between(kSmallestTimes, kLargestTimes);
            if (rnd.below(kOneIn) == 0 && q.amount * kTimesTen <= kLargestAmount)
                q.amount *= kTimesTen;
        }
        // Most amounts are plain numbers; the others kilograms, metres or pounds.
        const int unit = rnd.below(int(Unit::Pounds) + 2);
        q.unit = unit > int(Unit::Pounds) ? Unit::None : Unit(unit);
    } while (last && q == *last);
    return q;
}

Verdict check(const Question& q, const QString& typed)
{
    int value = 0;
    const Places::Typed kind = Places::readWhole(typed, kAnswerDigits, &value);
    if (kind != Places::Typed::Number)
        return Verdict::notCheckable(Places::refusal(kind, QCoreApplication::translate("Amounts", "0 is not the answer: every amount here is more than 0.")));
    return value == q.answer() ? Verdict::right(q.statement()) : Verdict::wrong(q.statement());
}

QString hint(const Question& q)
{
    const int tenth = q.amount / kTenthsBar;
    switch (q.percent) {
    case 0: {
        const int one = q.amount / q.bottom;
        if (q.top == 1)
            return QCoreApplication::translate("Amounts", "To find %1 of %2, divide by %3: %2 ÷ %3 = %4.")
                .arg(q.part())
                .arg(q.amount)
                .arg(q.bottom)
                .arg(one);
        return QCoreApplication::translate("Amounts", "1/%1 of %2 is %2 ÷ %1 = %3, so %4 of %2 is %3 × %5 = %6.")
            .arg(q.bottom)
            .arg(q.amount)
            .arg(one)
            .arg(q.part())
            .arg(q.top)
            .arg(q.answer());
    }
    case 1:
        return QCoreApplication::translate("Amounts", "1% is one hundredth: %1 ÷ 100 = %2.")
            .arg(q.amount)
            .arg(q.answer());
    case 5:
        return QCoreApplication::translate("Amounts", "10% is one tenth: %1 ÷ 10 = %2. 5% is half of 10%: %2 ÷ 2 = %3.")
            .arg(q.amount)
            .arg(tenth)
            .arg(q.answer());
    case 10:
        return QCoreApplication::translate("Amounts", "10% is one tenth: %1 ÷ 10 = %2.").arg(q.amount).arg(q.answer());
    case 15:
        return QCoreApplication::translate(
                   "Amounts", "15% is 10% and 5%. 10% of %1 is %2 and 5% is half of that, %3: %2 + %3 = %4.")
            .arg(q.amount)
            .arg(tenth)
            .arg(tenth / kHalves)
            .arg(q.answer());
    case 20:
        return QCoreApplication::translate("Amounts",
                                           "10% is one tenth: %1 ÷ 10 = %2. 20% is two lots of 10%: %2 × 2 = %3.")
            .arg(q.amount)
            .arg(tenth)
            .arg(q.answer());
    case 25:
        return QCoreApplication::translate("Amounts", "25% is one quarter: %1 ÷ 4 = %2.").arg(q.amount).arg(q.answer());
    case 50:
        return QCoreApplication::translate("Amounts", "50% is one half: %1 ÷ 2 = %2.").arg(q.amount).arg(q.answer());
    default:
        return QCoreApplication::translate("Amounts", "75% is three quarters: %1 ÷ 4 = %2, and %2 × 3 = %3.")
            .arg(q.amount)
            .arg(q.amount / kQuarters)
            .arg(q.answer());
    }
}

Bar bar(const Question& q)
{
    if (!q.isPercent())
        return {q.bottom, q.amount / q.bottom, q.top};
    if (q.percent < kQuarterPercent)
        return {kTenthsBar, q.amount / kTenthsBar, q.percent / kTenthsBar};
    // 25%, 50% and 75% are quarters and halves.
    const int parts = q.percent == kHalfPercent ? kHalves : kQuarters;
    return {parts, q.amount / parts, q.percent * parts / kHundred};
}

} // namespace Amounts
