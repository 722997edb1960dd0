#include "halvesofnumbers.h"

#include "fraction.h"
#include "halvesquestion.h"
#include "runtime/random.h"

#include <QCoreApplication>
#include <iterator>

namespace HalvesOfNumbers {

QString Question::instruction() const
{
    return QCoreApplication::translate("HalvesOfNumbers", "What is %1 of %2?")
        .arg(Fractions::words(top, bottom))
        .arg(amount);
}

QString Question::statement() const
{
    return QCoreApplication::translate("HalvesOfNumbers", "%1 of %2 is %3.")
        .arg(Fractions::capitalised(Fractions::words(top, bottom)))
        .arg(amount)
        .arg(answer());
}

Question draw(Random::Source& rnd, const Question* last)
{
    Question q;
    do {
        const auto& choices = Halves::kHalvesAndQuarters;
        const Halves::Asked asked = choices[rnd.below(int(std::size(choices)))];
        q.top = asked.top;
        q.bottom = asked.bottom;
        // A multiple of the bottom from the bottom up to 20.
        q.amount = q.bottom * rnd.between(1, kLargestAmount / q.bottom);
    } while (last && q == *last);
    do
        q.set = rnd.between(1, Halves::kSetCount);
    while (last && q.set == last->set);
    return q;
}

Verdict check(const Question& q, const QString& typed)
{
    bool isNumber = false;
    const int value = typed.toInt(&isNumber);
    if (typed.isEmpty() || !isNumber)
        return Verdict::notCheckable(
            QCoreApplication::translate("HalvesOfNumbers", "Type your answer in the box first!"));
    if (value == 0)
        return Verdict::notCheckable(
            QCoreApplication::translate("HalvesOfNumbers", "0 is not the answer: look at the pictures again."));
    return value == q.answer() ? Verdict::right(q.statement()) : Verdict::wrong(q.statement());
}

QString hint(const Question& q, const QString& picname)
{
    const int each = q.amount / q.bottom;
    const QString share
        = QCoreApplication::translate("HalvesOfNumbers", "Share the %1 %2 into %3 equal groups: %4 in each group.")
              .arg(q.amount)
              .arg(picname)
              .arg(q.bottom)
              .arg(each);
    QString groups = (q.top == 1 ? QCoreApplication::translate("HalvesOfNumbers", "%1 is 1 group: %2 %3.")
                                 : QCoreApplication::translate("HalvesOfNumbers", "%1 is %4 groups: %2 %3."))
                         .arg(Fractions::capitalised(Fractions::words(q.top, q.bottom)))
                         .arg(q.answer())
                         .arg(picname);
    if (q.top != 1)
        groups = groups.arg(q.top); // one group has no number of groups to write
    return share + QLatin1Char(' ') + groups;
}

} // namespace HalvesOfNumbers
