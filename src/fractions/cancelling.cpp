#include "cancelling.h"

#include "fraction.h"
#include "runtime/random.h"

#include <QCoreApplication>

namespace Cancelling {

namespace {
QString written(std::int64_t top, std::int64_t bottom)
{
    return QStringLiteral("%1/%2").arg(top).arg(bottom);
}
} // namespace

QString Question::text() const
{
    return written(top(), bottom());
}

QString Question::answerText() const
{
    return written(simplestTop, simplestBottom);
}

QString Question::instruction() const
{
    return QCoreApplication::translate("Cancelling", "Cancel %1 to its simplest form.").arg(text());
}

QString Question::statement() const
{
    return QCoreApplication::translate("Cancelling", "%1 cancels to %2: divide the top and the bottom by %3.")
        .arg(text(), answerText())
        .arg(factor);
}

Question draw(Random::Source& rnd, const Question* last)
{
    Question q;
    do {
        q.simplestBottom = rnd.between(kSmallestSimplestBottom, kLargestSimplestBottom);
        do
            q.simplestTop = rnd.between(1, q.simplestBottom - 1);
        while (!Fractions::inLowestTerms(q.simplestTop, q.simplestBottom));
        q.factor = rnd.between(kSmallestFactor, std::min(kLargestFactor, kLargestBottom / q.simplestBottom));
    } while (last && q == *last);
    return q;
}

Verdict check(const Question& q, const QString& top, const QString& bottom)
{
    bool topIsNumber = false, bottomIsNumber = false;
    const std::int64_t t = top.toLongLong(&topIsNumber);
    const std::int64_t b = bottom.toLongLong(&bottomIsNumber);
    if (!topIsNumber || !bottomIsNumber)
        return Verdict::notCheckable(
            QCoreApplication::translate("Cancelling", "Type a top number and a bottom number first!"));
    if (b == 0)
        return Verdict::notCheckable(QCoreApplication::translate("Cancelling", "A bottom number cannot be 0."));
    if (Fractions::Fraction(t, b) != Fractions::Fraction(q.simplestTop, q.simplestBottom))
        return Verdict::wrong(q.statement());
    if (t == q.simplestTop && b == q.simplestBottom)
        return Verdict::right(q.statement());
    if (t == q.top() && b == q.bottom())
        return Verdict::notCheckable(
            QCoreApplication::translate(
                "Cancelling", "%1 is the fraction to cancel: divide its top and its bottom by the same number.")
                .arg(q.text()));
    return Verdict::notCheckable(
        QCoreApplication::translate("Cancelling", "%1 is equal to %2, but it can be cancelled further.")
            .arg(q.text(), written(t, b)));
}

QString hint(const Question& q)
{
    return QCoreApplication::translate("Cancelling", "The highest common factor of %1 and %2 is %3.")
        .arg(q.top())
        .arg(q.bottom())
        .arg(Fractions::hcf(q.top(), q.bottom()));
}

} // namespace Cancelling
