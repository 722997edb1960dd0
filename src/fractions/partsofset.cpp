#include "partsofset.h"

#include "fraction.h"
#include "halvesquestion.h"
#include "runtime/random.h"

#include <QCoreApplication>
#include <QVector>
#include <iterator>

namespace PartsOfSet {

namespace {
QString fractionWords(const Question& q)
{
    return Fractions::words(q.top, q.bottom);
}
} // namespace

QString Question::picname() const
{
    return Halves::setName(set);
}

QString Question::onePictureName() const
{
    Halves::Question one;
    one.set = set;
    return one.onePictureName();
}

QString Question::instruction() const
{
    return QCoreApplication::translate("PartsOfSet", "Click on %1 of the %2.").arg(fractionWords(*this), picname());
}

QString Question::rightAnswer() const
{
    return QCoreApplication::translate("PartsOfSet", "You chose %1 of the %2.").arg(fractionWords(*this), picname());
}

QString Question::sheetQuestion() const
{
    return QCoreApplication::translate("PartsOfSet", "Ring %1 of the %2.").arg(fractionWords(*this), picname());
}

QString Question::sheetAnswer() const
{
    return QCoreApplication::translate("PartsOfSet", "%1 of the %2 %3").arg(target()).arg(howmany).arg(picname());
}

Question draw(Random::Source& rnd, const Question* last)
{
    Question q;
    do {
        const Counts counts = kCounts[rnd.below(int(std::size(kCounts)))];
        QVector<int> tops;
        for (const Asked& asked : kFractions)
            if (asked.bottom == counts.bottom)
                tops << asked.top;
        q.bottom = counts.bottom;
        q.top = tops[rnd.below(int(tops.size()))];
        q.howmany = q.bottom * rnd.between(counts.least / q.bottom, counts.most / q.bottom);
    } while (last && q == *last);
    do
        q.set = rnd.between(1, Halves::kSetCount);
    while (last && q.set == last->set);
    return q;
}

Verdict check(const Question& q, int chosen)
{
    if (chosen == 0)
        return Verdict::notCheckable(QCoreApplication::translate("PartsOfSet", "You must choose some pictures!"));
    return chosen == q.target() ? Verdict::right(q.rightAnswer())
                                : Verdict::wrong(Halves::shouldHaveClicked(q.target()));
}

QString hint(const Question& q)
{
    const int each = q.howmany / q.bottom;
    const QString share = QCoreApplication::translate("PartsOfSet", "%1 %2 in %3 equal groups is %4 in each group.")
                              .arg(q.howmany)
                              .arg(q.picname())
                              .arg(q.bottom)
                              .arg(each);
    const QString answerName = q.target() == 1 ? q.onePictureName() : q.picname();
    QString groups = (q.top == 1 ? QCoreApplication::translate("PartsOfSet", "%1 is 1 group: %2 %3.")
                                 : QCoreApplication::translate("PartsOfSet", "%1 is %4 groups: %2 %3."))
                         .arg(Fractions::capitalised(fractionWords(q)))
                         .arg(q.target())
                         .arg(answerName);
    if (q.top != 1)
        groups = groups.arg(q.top); // one group has no number of groups to write
    return share + QLatin1Char(' ') + groups;
}

QString progress(const Question& q, int chosen)
{
    if (chosen == 0)
        return QCoreApplication::translate("PartsOfSet", "You have not chosen any yet.");
    if (chosen < q.target())
        return QCoreApplication::translate("PartsOfSet", "You have chosen %1: that is not enough yet.").arg(chosen);
    if (chosen > q.target())
        return QCoreApplication::translate("PartsOfSet", "You have chosen %1: that is too many.").arg(chosen);
    return QCoreApplication::translate("PartsOfSet", "You have chosen %1: that is just right!").arg(chosen);
}

} // namespace PartsOfSet
