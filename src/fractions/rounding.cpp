#include "rounding.h"

#include "runtime/random.h"
#include "typeddecimal.h"

#include <QCoreApplication>
#include <algorithm>

namespace Rounding {

namespace {
constexpr int kTen = 10;
constexpr int kHalfDigit = 5;

int power(int places)
{
    int p = 1;
    for (int i = 0; i < places; ++i)
        p *= kTen;
    return p;
}

} // namespace

QString Question::below() const
{
    return DecimalValue::fromUnits(units / power(places - asked), asked).toFixed(asked);
}

QString Question::above() const
{
    return DecimalValue::fromUnits(units / power(places - asked) + 1, asked).toFixed(asked);
}

QString Question::instruction() const
{
    switch (asked) {
    case 0:
        return QCoreApplication::translate("Rounding", "Round %1 to the nearest whole number.").arg(written());
    case 1:
        return QCoreApplication::translate("Rounding", "Round %1 to one decimal place.").arg(written());
    default:
        return QCoreApplication::translate("Rounding", "Round %1 to two decimal places.").arg(written());
    }
}

QString Question::statement() const
{
    switch (asked) {
    case 0:
        return QCoreApplication::translate("Rounding", "%1 rounded to the nearest whole number is %2.")
            .arg(written(), answerText());
    case 1:
        return QCoreApplication::translate("Rounding", "%1 rounded to one decimal place is %2.")
            .arg(written(), answerText());
    default:
        return QCoreApplication::translate("Rounding", "%1 rounded to two decimal places is %2.")
            .arg(written(), answerText());
    }
}

Question draw(Random::Source& rnd, const Question* last)
{
    Question q;
    do {
        q.asked = rnd.between(0, kMostPlacesAsked);
        const int whole = rnd.between(0, kLargestWhole);
        if (rnd.below(kHalfOneIn) == 0) {
            // An exact half: the digit after the place asked is a 5 and nothing
            // follows.
            q.places = q.asked + 1;
            q.units = (whole * power(q.asked) + rnd.below(power(q.asked))) * kTen + kHalfDigit;
        } else {
            q.places = rnd.between(std::max(kFewestPlaces, q.asked + 1), kMostPlaces);
            // The last digit is never 0, so the number has all its places.
            q.units = whole * power(q.places) + rnd.below(power(q.places - 1)) * kTen + rnd.between(1, kTen - 1);
        }
    } while (last && q == *last);
    return q;
}

Verdict check(const Question& q, const QString& typed)
{
    const TypedDecimal::Reading r = TypedDecimal::read(typed, kAnswerLength);
    if (!r.ok)
        return Verdict::notCheckable(r.problem);
    return r.value == q.answer() && r.places <= q.asked ? Verdict::right(q.statement()) : Verdict::wrong(q.statement());
}

QString hint(const Question& q)
{
    const int digit = q.number().digitAt(q.asked + 1);
    if (digit >= kHalfDigit)
        return QCoreApplication::translate("Rounding",
            "Look at the digit after the place you round to: %1 "
            "is 5 or more, so round up to %2.")
            .arg(digit)
            .arg(q.answerText());
    return QCoreApplication::translate("Rounding",
        "Look at the digit after the place you round to: %1 "
        "is less than 5, so round down to %2.")
        .arg(digit)
        .arg(q.answerText());
}

} // namespace Rounding
