#include "decimalsbetween.h"

#include "runtime/random.h"
#include "typeddecimal.h"

#include <QCoreApplication>

namespace DecimalsBetween {

namespace {
constexpr int kTen = 10;

int unitsInOne(int places)
{
    int units = 1;
    for (int p = 0; p < places; ++p)
        units *= kTen;
    return units;
}

} // namespace

QString Question::instruction() const
{
    return QCoreApplication::translate("DecimalsBetween", "Type a decimal between %1 and %2.").arg(from(), to());
}

Question draw(Random::Source& rnd, const Question* last)
{
    Question q;
    do {
        q.places = rnd.between(kFewestPlaces, kMostPlaces);
        q.lowUnits = rnd.below(kWholesBelow * unitsInOne(q.places));
    } while (last && q == *last);
    return q;
}

Verdict check(const Question& q, const QString& typed)
{
    const TypedDecimal::Reading r = TypedDecimal::read(typed, kAnswerLength);
    if (!r.ok)
        return Verdict::notCheckable(r.problem);
    if (q.low() < r.value && r.value < q.high())
        return Verdict::right(QCoreApplication::translate("DecimalsBetween", "%1 is between %2 and %3.")
                                  .arg(r.written, q.from(), q.to()));
    return Verdict::wrong(QCoreApplication::translate("DecimalsBetween", "%1 is not between %2 and %3. Try %4.")
                              .arg(r.written, q.from(), q.to(), q.middle().toText()));
}

QString hint(const Question& q)
{
    const int longer = q.places + 1;
    const DecimalValue first = DecimalValue::fromUnits(q.lowUnits * kTen + 1, longer);
    const DecimalValue last = DecimalValue::fromUnits(q.lowUnits * kTen + kTen - 1, longer);
    return QCoreApplication::translate("DecimalsBetween",
        "Write them with one more place: %1 and "
        "%2. Any of %3 to %4 lies between.")
        .arg(q.low().toFixed(longer), q.high().toFixed(longer), first.toFixed(longer), last.toFixed(longer));
}

} // namespace DecimalsBetween
