#include "howmany.h"

#include "fraction.h"
#include "runtime/random.h"

#include <QCoreApplication>
#include <QStringList>

namespace HowMany {

namespace {
// The ones and tenths a larger place holds of a smaller one, as a whole phrase.
struct Worth {
    int place;
    int counted;
    const char* phrase;
};
const Worth kWorth[] = {
    {Places::kOnes, Places::kTenths, QT_TRANSLATE_NOOP("HowMany", "each one is 10 tenths")},
    {Places::kOnes, Places::kHundredths, QT_TRANSLATE_NOOP("HowMany", "each one is 100 hundredths")},
    {Places::kOnes, Places::kThousandths, QT_TRANSLATE_NOOP("HowMany", "each one is 1000 thousandths")},
    {Places::kTenths, Places::kHundredths, QT_TRANSLATE_NOOP("HowMany", "each tenth is 10 hundredths")},
    {Places::kTenths, Places::kThousandths, QT_TRANSLATE_NOOP("HowMany", "each tenth is 100 thousandths")},
    {Places::kHundredths, Places::kThousandths, QT_TRANSLATE_NOOP("HowMany", "each hundredth is 10 thousandths")},
};

QString worth(int place, int counted)
{
    for (const Worth& w : kWorth)
        if (w.place == place && w.counted == counted)
            return QCoreApplication::translate("HowMany", w.phrase);
    return QString();
}

// "a", "a and b", "a, b and c".
QString listed(const QStringList& items)
{
    QString text = items.value(0);
    for (int i = 1; i < items.size(); ++i)
        text = (i + 1 == items.size() ? QCoreApplication::translate("HowMany", "%1 and %2")
                                      : QCoreApplication::translate("HowMany", "%1, %2"))
                   .arg(text, items[i]);
    return text;
}
} // namespace

QString Question::instruction() const
{
    switch (counted) {
    case Places::kTenths:
        return QCoreApplication::translate("HowMany", "How many tenths are there in %1?").arg(number());
    case Places::kHundredths:
        return QCoreApplication::translate("HowMany", "How many hundredths are there in %1?").arg(number());
    default:
        return QCoreApplication::translate("HowMany", "How many thousandths are there in %1?").arg(number());
    }
}

QString Question::statement() const
{
    return QCoreApplication::translate("HowMany", "%1 is %2.").arg(number(), Places::count(answer(), counted));
}

Question draw(Random::Source& rnd, const Question* last)
{
    Question q;
    do {
        q.counted = -rnd.between(1, Places::kMostPlaces);
        // Half the numbers are written to the place counted (0.45 in
        // hundredths); the others stop short of it (2.3 in hundredths).
        q.places = rnd.below(2) ? -q.counted : rnd.between(0, -q.counted - 1);
        // Thousandths are counted in numbers below 1 (0.125), so the hint
        // stays short.
        if (q.counted == Places::kThousandths && q.places == 0)
            q.places = rnd.between(1, Places::kMostPlaces);
        const int largest = q.counted == Places::kThousandths ? 0 : kLargestWhole;
        const int whole = rnd.between(q.places == 0 ? 1 : 0, largest);
        q.thousandths = whole * Places::kScale + Places::drawDecimals(rnd, q.places);
    } while (last && q == *last);
    return q;
}

Verdict check(const Question& q, const QString& typed)
{
    int value = 0;
    const Places::Typed kind = Places::readWhole(typed, kAnswerDigits, &value);
    if (kind != Places::Typed::Number)
        return Verdict::notCheckable(Places::refusal(kind, QCoreApplication::translate("HowMany", "0 is not the answer: look at the number again.")));
    if (value == q.answer())
        return Verdict::right(q.statement());
    const int digit = Places::digitAt(q.thousandths, q.counted);
    if (value == digit)
        return Verdict::wrong(
            QCoreApplication::translate("HowMany", "%1 is %2, not %3: %3 is only the digit in the %4 column.")
                .arg(q.number(), Places::count(q.answer(), q.counted), QString::number(digit),
                     Places::columnName(q.counted)));
    return Verdict::wrong(q.statement());
}

QString hint(const Question& q)
{
    // The number in its places, what each larger place is worth, and the sum.
    QStringList parts;
    QStringList worths;
    QStringList terms;
    int digit = 0; // the last digit met and its worth in the place counted
    int each = 1;
    for (int place = Places::kOnes; place >= q.counted; --place) {
        if (Places::digitAt(q.thousandths, place) == 0)
            continue;
        digit = Places::digitAt(q.thousandths, place);
        each = Places::tenTo(place - q.counted);
        parts << Places::count(digit, place);
        terms << QString::number(digit * each);
        if (place > q.counted)
            worths << worth(place, q.counted);
    }
    const QString is = QCoreApplication::translate("HowMany", "%1 is %2.").arg(q.number(), listed(parts));
    if (worths.isEmpty())
        return is;
    const QString worthText = Fractions::capitalised(listed(worths));
    const QString total = Places::count(q.answer(), q.counted);
    const QString sum = terms.size() > 1
        ? QCoreApplication::translate("HowMany", "%1, so %2 = %3.")
              .arg(worthText, terms.join(QStringLiteral(" + ")), total)
        : QCoreApplication::translate("HowMany", "%1, so %2 × %3 = %4.").arg(worthText).arg(digit).arg(each).arg(total);
    // With two places to turn into the one counted, the columns in the
    // picture say what the number is made of, and the words keep to the sum.
    return worths.size() > 1 ? sum : is + QLatin1Char(' ') + sum;
}

} // namespace HowMany
