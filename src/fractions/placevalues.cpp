#include "placevalues.h"

#include "fraction.h"
#include "runtime/random.h"

#include <QCoreApplication>
#include <QStringList>

namespace Places {

namespace {
constexpr int kTen = 10;
constexpr int kLargestDigit = 9;

struct PlaceWords {
    int power;
    const char* one;    // "%n ten"
    const char* many;   // "%n tens"
    const char* column; // "tens"
};

// Each count names its English singular and plural; the count also picks a
// translation's own plural form.
const PlaceWords kPlaces[] = {
    {kTens, QT_TRANSLATE_N_NOOP("Places", "%n ten"), QT_TRANSLATE_N_NOOP("Places", "%n tens"),
     QT_TRANSLATE_NOOP("Places", "tens")},
    {kOnes, QT_TRANSLATE_N_NOOP("Places", "%n one"), QT_TRANSLATE_N_NOOP("Places", "%n ones"),
     QT_TRANSLATE_NOOP("Places", "ones")},
    {kTenths, QT_TRANSLATE_N_NOOP("Places", "%n tenth"), QT_TRANSLATE_N_NOOP("Places", "%n tenths"),
     QT_TRANSLATE_NOOP("Places", "tenths")},
    {kHundredths, QT_TRANSLATE_N_NOOP("Places", "%n hundredth"), QT_TRANSLATE_N_NOOP("Places", "%n hundredths"),
     QT_TRANSLATE_NOOP("Places", "hundredths")},
    {kThousandths, QT_TRANSLATE_N_NOOP("Places", "%n thousandth"), QT_TRANSLATE_N_NOOP("Places", "%n thousandths"),
     QT_TRANSLATE_NOOP("Places", "thousandths")},
};

const PlaceWords& wordsOf(int power)
{
    for (const PlaceWords& p : kPlaces)
        if (p.power == power)
            return p;
    return kPlaces[1];
}

QString translated(const char* text, int n = -1)
{
    return QCoreApplication::translate("Places", text, nullptr, n);
}
} // namespace

int tenTo(int power)
{
    int value = 1;
    for (int i = 0; i < power; ++i)
        value *= kTen;
    return value;
}

int digitAt(int thousandths, int power)
{
    return thousandths / tenTo(power + kMostPlaces) % kTen;
}

int countOf(int thousandths, int power)
{
    const int size = tenTo(power + kMostPlaces);
    return thousandths % size == 0 ? thousandths / size : -1;
}

int drawDecimals(Random::Source& rnd, int places)
{
    int decimals = 0;
    for (int p = 1; p <= places; ++p)
        decimals = decimals * kTen + rnd.between(p == places ? 1 : 0, kLargestDigit);
    return decimals * tenTo(kMostPlaces - places);
}

QString written(int thousandths, int places)
{
    QString text = QString::number(thousandths / kScale);
    if (places > 0)
        text += QLatin1Char('.')
            + QString::number(thousandths % kScale).rightJustified(kMostPlaces, QLatin1Char('0')).left(places);
    return text;
}

int placesOf(int thousandths)
{
    int places = kMostPlaces;
    while (places > 0 && digitAt(thousandths, -places) == 0)
        --places;
    return places;
}

QString spoken(const QString& written)
{
    const int point = written.indexOf(QLatin1Char('.'));
    const QString whole = Fractions::numberWord((point < 0 ? written : written.left(point)).toInt());
    if (point < 0)
        return whole;
    QStringList digits;
    for (const QChar c : written.mid(point + 1))
        digits << Fractions::numberWord(c.digitValue());
    return QCoreApplication::translate("Places", "%1 point %2").arg(whole, digits.join(QLatin1Char(' ')));
}

QString count(int n, int power)
{
    const PlaceWords& p = wordsOf(power);
    return translated(n == 1 ? p.one : p.many, n);
}

QString columnName(int power)
{
    return translated(wordsOf(power).column);
}

Typed readWhole(const QString& typed, int mostDigits, int* value)
{
    const QString text = typed.trimmed();
    if (text.isEmpty())
        return Typed::Empty;
    for (const QChar c : text)
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return Typed::Empty;
    if (text.count(QLatin1Char('0')) == text.size())
        return Typed::Zero;
    if (text.startsWith(QLatin1Char('0')))
        return Typed::LeadingZero;
    if (text.size() > mostDigits)
        return Typed::TooLong;
    *value = text.toInt();
    return Typed::Number;
}

QString refusal(Typed kind, const QString& zeroReason)
{
    switch (kind) {
    case Typed::Empty: return QCoreApplication::translate("Places", "Type your answer in the box first!");
    case Typed::Zero: return zeroReason;
    case Typed::LeadingZero: return QCoreApplication::translate("Places", "Write your number without a 0 in front.");
    case Typed::TooLong: return QCoreApplication::translate("Places", "That number is too long.");
    case Typed::Number: break;
    }
    return QString();
}

} // namespace Places
