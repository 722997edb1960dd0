#include "fractionof.h"

#include "fraction.h"
#include "runtime/random.h"

#include <QCoreApplication>
#include <algorithm>

namespace FractionOf {

int answerDigits(const Ranges& ranges)
{
    // The largest answer is the largest top of the largest amount.
    int largest = 0;
    for (std::size_t i = 0; i < ranges.bottomCount; ++i)
        largest = std::max(largest, (ranges.bottoms[i] - 1) * ranges.mostTimes);
    return int(QString::number(largest).size());
}

QString Question::fraction() const
{
    return QStringLiteral("%1/%2").arg(top).arg(bottom);
}

QString Question::instruction() const
{
    return QCoreApplication::translate("FractionOf", "What is %1 of %2?").arg(fraction()).arg(amount);
}

QString Question::spoken() const
{
    return QCoreApplication::translate("FractionOf", "%1 of %2").arg(Fractions::words(top, bottom)).arg(amount);
}

QString Question::statement() const
{
    return QCoreApplication::translate("FractionOf", "%1 of %2 is %3.").arg(fraction()).arg(amount).arg(answer());
}

Question draw(const Ranges& ranges, Random::Source& rnd, const Question* last)
{
    Question q;
    do {
        q.bottom = ranges.bottoms[rnd.below(int(ranges.bottomCount))];
        q.top = rnd.between(1, q.bottom - 1);
        q.amount = q.bottom * rnd.between(ranges.leastTimes, ranges.mostTimes);
    } while (last && q == *last);
    return q;
}

Verdict check(const Question& q, const QString& typed)
{
    bool isNumber = false;
    const int value = typed.toInt(&isNumber);
    if (typed.isEmpty() || !isNumber)
        return Verdict::notCheckable(QCoreApplication::translate("FractionOf", "Type your answer in the box first!"));
    if (value == 0)
        return Verdict::notCheckable(
            QCoreApplication::translate("FractionOf", "0 is not the answer: look at the bar again."));
    return value == q.answer() ? Verdict::right(q.statement()) : Verdict::wrong(q.statement());
}

QString hint(const Question& q)
{
    const int each = q.amount / q.bottom;
    const QString unit = QStringLiteral("1/%1").arg(q.bottom);
    if (q.top == 1)
        return QCoreApplication::translate("FractionOf",
                                           "To find %1 of %2, share %2 into %3 equal boxes: %2 ÷ %3 = %4.")
            .arg(unit)
            .arg(q.amount)
            .arg(q.bottom)
            .arg(each);
    return QCoreApplication::translate("FractionOf", "First %1 of %2: %2 ÷ %3 = %4. Then %5 is %6 lots of %4: %7.")
        .arg(unit)
        .arg(q.amount)
        .arg(q.bottom)
        .arg(each)
        .arg(q.fraction())
        .arg(q.top)
        .arg(q.answer());
}

} // namespace FractionOf
