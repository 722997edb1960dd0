#include "halvesshapes.h"

#include "fraction.h"
#include "halvesquestion.h"
#include "runtime/random.h"

#include <QCoreApplication>
#include <iterator>

namespace HalvesShapes {

namespace {
    // "1 part", "3 parts": the English singular and plural are separate texts;
    // the count also chooses a translation's own plural form.
    QString partCount(int n)
    {
        return n == 1 ? QCoreApplication::translate("HalvesShapes", "%n part", nullptr, n)
                      : QCoreApplication::translate("HalvesShapes", "%n parts", nullptr, n);
}
} // namespace

QString Question::fractionWords() const
{
    return Fractions::words(top, bottom);
}

QString Question::instruction() const
{
    return QCoreApplication::translate("HalvesShapes", "Colour %1 of the %2.").arg(fractionWords(), shapeNoun(kind));
}

Question draw(Random::Source& rnd, const Question* last)
{
    Question q;
    do {
        const Cut cut = kCuts[rnd.below(int(std::size(kCuts)))];
        q.kind = cut.kind;
        q.parts = cut.parts;
        if (cut.parts == 2) {
            q.top = 1;
            q.bottom = 2;
        } else {
            // A 4-part shape may ask for any of them.
            const auto& choices = Halves::kHalvesAndQuarters;
            const Halves::Asked asked = choices[rnd.below(int(std::size(choices)))];
            q.top = asked.top;
            q.bottom = asked.bottom;
        }
    } while (last && q == *last);
    return q;
}

Verdict check(const Question& q, int coloured)
{
    if (coloured <= 0)
        return Verdict::notCheckable(QCoreApplication::translate("HalvesShapes", "You must colour some parts!"));
    const QString noun = shapeNoun(q.kind);
    if (Fractions::Fraction(coloured, q.parts) == Fractions::Fraction(q.top, q.bottom)) {
        QString said
            = QCoreApplication::translate("HalvesShapes", "You coloured %1 of the %2.").arg(q.fractionWords(), noun);
        if (q.parts == 4 && q.bottom == 2)
            said += QLatin1Char(' ')
                + QCoreApplication::translate("HalvesShapes", "Two quarters is the same as one half.");
        return Verdict::right(said);
    }
    return Verdict::wrong(
        QCoreApplication::translate("HalvesShapes", "You coloured %1 of the %2 parts: that is %3. %4 is %5.")
            .arg(coloured)
            .arg(q.parts)
            .arg(Fractions::words(coloured, q.parts), Fractions::capitalised(q.fractionWords()),
                 partCount(q.partsToColour())));
}

QString hint(const Question& q, int coloured)
{
    const QString cut = QCoreApplication::translate("HalvesShapes", "The %1 is cut into %2 equal parts.")
                            .arg(shapeNoun(q.kind))
                            .arg(q.parts);
    const QString asked = QCoreApplication::translate("HalvesShapes", "%1 is %2 of them.")
                              .arg(Fractions::capitalised(q.fractionWords()))
                              .arg(q.partsToColour());
    const QString now = coloured == 0
        ? QCoreApplication::translate("HalvesShapes", "You have not coloured any yet.")
        : QCoreApplication::translate("HalvesShapes", "You have coloured %1.").arg(coloured);
    return cut + QLatin1Char(' ') + asked + QLatin1Char(' ') + now;
}

} // namespace HalvesShapes
