#include "fraction.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <cstdlib>
#include <numeric>

namespace Fractions {

int hcf(int a, int b)
{
    return std::gcd(a, b);
}

Fraction::Fraction(std::int64_t top, std::int64_t bottom)
{
    if (bottom == 0)
        return;
    if (bottom < 0) {
        top = -top;
        bottom = -bottom;
    }
    const std::int64_t common = std::gcd(top, bottom);
    m_top = top / common;
    m_bottom = bottom / common;
}

QString Fraction::text() const
{
    return QString::number(m_top) + QLatin1Char('/') + QString::number(m_bottom);
}

bool operator<(const Fraction& a, const Fraction& b)
{
    if (!a.isValid() || !b.isValid())
        return !a.isValid() && b.isValid();
    // Bottoms are positive, so the order of the cross products is the order of the values.
    return a.m_top * b.m_bottom < b.m_top * a.m_bottom;
}

bool Fraction::ofWhole(std::int64_t amount, std::int64_t* result) const
{
    if (!isValid() || (amount * m_top) % m_bottom != 0)
        return false;
    if (result)
        *result = amount * m_top / m_bottom;
    return true;
}

bool inLowestTerms(int top, int bottom)
{
    return bottom > 0 && std::gcd(top, bottom) == 1;
}

namespace {
// Every word below is translated as a whole phrase ("one half", "%1
// quarters"), so a language can give each fraction its own words, article
// and plural; the English texts are right without any translation loaded.
const char* const kNumbers[] = {
    QT_TRANSLATE_NOOP("Fractions", "zero"),      QT_TRANSLATE_NOOP("Fractions", "one"),
    QT_TRANSLATE_NOOP("Fractions", "two"),       QT_TRANSLATE_NOOP("Fractions", "three"),
    QT_TRANSLATE_NOOP("Fractions", "four"),      QT_TRANSLATE_NOOP("Fractions", "five"),
    QT_TRANSLATE_NOOP("Fractions", "six"),       QT_TRANSLATE_NOOP("Fractions", "seven"),
    QT_TRANSLATE_NOOP("Fractions", "eight"),     QT_TRANSLATE_NOOP("Fractions", "nine"),
    QT_TRANSLATE_NOOP("Fractions", "ten"),       QT_TRANSLATE_NOOP("Fractions", "eleven"),
    QT_TRANSLATE_NOOP("Fractions", "twelve"),    QT_TRANSLATE_NOOP("Fractions", "thirteen"),
    QT_TRANSLATE_NOOP("Fractions", "fourteen"),  QT_TRANSLATE_NOOP("Fractions", "fifteen"),
    QT_TRANSLATE_NOOP("Fractions", "sixteen"),   QT_TRANSLATE_NOOP("Fractions", "seventeen"),
    QT_TRANSLATE_NOOP("Fractions", "eighteen"),  QT_TRANSLATE_NOOP("Fractions", "nineteen"),
    QT_TRANSLATE_NOOP("Fractions", "twenty")};
constexpr int kLargestNumberWord = 20;

struct PartNames {
    int bottom;
    const char* one;     // the name of one part: "half"
    const char* many;    // of several: "halves"
    const char* single;  // one of them, as said: "one half"
    const char* several; // several of them, %1 the number: "%1 halves" (its plural forms by the count)
};
// Written out in full, so lupdate finds every phrase.
constexpr PartNames kParts[] = {
    {2, QT_TRANSLATE_NOOP("Fractions", "half"), QT_TRANSLATE_NOOP("Fractions", "halves"),
     QT_TRANSLATE_NOOP("Fractions", "one half"), QT_TRANSLATE_N_NOOP("Fractions", "%1 halves")},
    {3, QT_TRANSLATE_NOOP("Fractions", "third"), QT_TRANSLATE_NOOP("Fractions", "thirds"),
     QT_TRANSLATE_NOOP("Fractions", "one third"), QT_TRANSLATE_N_NOOP("Fractions", "%1 thirds")},
    {4, QT_TRANSLATE_NOOP("Fractions", "quarter"), QT_TRANSLATE_NOOP("Fractions", "quarters"),
     QT_TRANSLATE_NOOP("Fractions", "one quarter"), QT_TRANSLATE_N_NOOP("Fractions", "%1 quarters")},
    {5, QT_TRANSLATE_NOOP("Fractions", "fifth"), QT_TRANSLATE_NOOP("Fractions", "fifths"),
     QT_TRANSLATE_NOOP("Fractions", "one fifth"), QT_TRANSLATE_N_NOOP("Fractions", "%1 fifths")},
    {6, QT_TRANSLATE_NOOP("Fractions", "sixth"), QT_TRANSLATE_NOOP("Fractions", "sixths"),
     QT_TRANSLATE_NOOP("Fractions", "one sixth"), QT_TRANSLATE_N_NOOP("Fractions", "%1 sixths")},
    {7, QT_TRANSLATE_NOOP("Fractions", "seventh"), QT_TRANSLATE_NOOP("Fractions", "sevenths"),
     QT_TRANSLATE_NOOP("Fractions", "one seventh"), QT_TRANSLATE_N_NOOP("Fractions", "%1 sevenths")},
    {8, QT_TRANSLATE_NOOP("Fractions", "eighth"), QT_TRANSLATE_NOOP("Fractions", "eighths"),
     QT_TRANSLATE_NOOP("Fractions", "one eighth"), QT_TRANSLATE_N_NOOP("Fractions", "%1 eighths")},
    {9, QT_TRANSLATE_NOOP("Fractions", "ninth"), QT_TRANSLATE_NOOP("Fractions", "ninths"),
     QT_TRANSLATE_NOOP("Fractions", "one ninth"), QT_TRANSLATE_N_NOOP("Fractions", "%1 ninths")},
    {10, QT_TRANSLATE_NOOP("Fractions", "tenth"), QT_TRANSLATE_NOOP("Fractions", "tenths"),
     QT_TRANSLATE_NOOP("Fractions", "one tenth"), QT_TRANSLATE_N_NOOP("Fractions", "%1 tenths")},
    {11, QT_TRANSLATE_NOOP("Fractions", "eleventh"), QT_TRANSLATE_NOOP("Fractions", "elevenths"),
     QT_TRANSLATE_NOOP("Fractions", "one eleventh"), QT_TRANSLATE_N_NOOP("Fractions", "%1 elevenths")},
    {12, QT_TRANSLATE_NOOP("Fractions", "twelfth"), QT_TRANSLATE_NOOP("Fractions", "twelfths"),
     QT_TRANSLATE_NOOP("Fractions", "one twelfth"), QT_TRANSLATE_N_NOOP("Fractions", "%1 twelfths")},
    {20, QT_TRANSLATE_NOOP("Fractions", "twentieth"), QT_TRANSLATE_NOOP("Fractions", "twentieths"),
     QT_TRANSLATE_NOOP("Fractions", "one twentieth"), QT_TRANSLATE_N_NOOP("Fractions", "%1 twentieths")},
    {100, QT_TRANSLATE_NOOP("Fractions", "hundredth"), QT_TRANSLATE_NOOP("Fractions", "hundredths"),
     QT_TRANSLATE_NOOP("Fractions", "one hundredth"), QT_TRANSLATE_N_NOOP("Fractions", "%1 hundredths")},
    {1000, QT_TRANSLATE_NOOP("Fractions", "thousandth"), QT_TRANSLATE_NOOP("Fractions", "thousandths"),
     QT_TRANSLATE_NOOP("Fractions", "one thousandth"), QT_TRANSLATE_N_NOOP("Fractions", "%1 thousandths")},
};

const PartNames* partNames(int bottom)
{
    for (const PartNames& p : kParts)
        if (p.bottom == bottom)
            return &p;
    return nullptr;
}

QString translated(const char* text, int n = -1)
{
    return QCoreApplication::translate("Fractions", text, nullptr, n);
}
} // namespace

QString numberWord(int n)
{
    return n >= 0 && n <= kLargestNumberWord ? translated(kNumbers[n]) : QString::number(n);
}

QString decimalWords(const QString& written)
{
    const int point = int(written.indexOf(QLatin1Char('.')));
    const QString whole = point < 0 ? written : written.left(point);
    const QString after = point < 0 ? QString() : written.mid(point + 1);
    const auto allDigits = [](const QString& s) {
        return std::all_of(s.begin(), s.end(), [](QChar c) { return c.isDigit() && c.unicode() < 0x80; });
    };
    if (!allDigits(whole) || !allDigits(after) || (whole.isEmpty() && after.isEmpty()))
        return written;
    // A whole part too long for a number word is read in figures.
    constexpr int kLongestWordedWhole = 2;
    const QString wholeWords
        = whole.size() <= kLongestWordedWhole && !whole.isEmpty() ? numberWord(whole.toInt()) : whole;
    if (after.isEmpty()) // "3" or "3."
        return wholeWords;
    QStringList digits;
    for (const QChar c : after)
        digits << numberWord(c.digitValue());
    const QString tail = digits.join(QLatin1Char(' '));
    if (whole.isEmpty())
        return QCoreApplication::translate("Fractions", "point %1", "a decimal read aloud: point five").arg(tail);
    return QCoreApplication::translate("Fractions", "%1 point %2", "a decimal read aloud: three point four five")
        .arg(wholeWords, tail);
}

QString capitalised(QString text)
{
    if (!text.isEmpty())
        text[0] = text[0].toUpper();
    return text;
}

namespace {
// A bottom with no name of its own is written as an ordinal in figures
// ("16ths", "22nds", "23rds"), which a screen reader says as a word. The
// ending goes by the number, so each ending is a text of its own to translate.
enum Ending { kSt, kNd, kRd, kTh };

Ending ordinalEnding(int n)
{
    constexpr int kHundred = 100;
    constexpr int kTen = 10;
    const int lastTwo = std::abs(n) % kHundred;
    if (lastTwo >= 11 && lastTwo <= 13) // eleventh, twelfth, thirteenth
        return kTh;
    switch (lastTwo % kTen) {
    case 1: return kSt;
    case 2: return kNd;
    case 3: return kRd;
    default: return kTh;
    }
}

constexpr const char* kUnnamedPart[] = {
    QT_TRANSLATE_NOOP("Fractions", "%1st"), QT_TRANSLATE_NOOP("Fractions", "%1nd"),
    QT_TRANSLATE_NOOP("Fractions", "%1rd"), QT_TRANSLATE_NOOP("Fractions", "%1th")};
constexpr const char* kUnnamedParts[] = {
    QT_TRANSLATE_NOOP("Fractions", "%1sts"), QT_TRANSLATE_NOOP("Fractions", "%1nds"),
    QT_TRANSLATE_NOOP("Fractions", "%1rds"), QT_TRANSLATE_NOOP("Fractions", "%1ths")};
} // namespace

QString partName(int bottom)
{
    const PartNames* p = partNames(bottom);
    return p ? translated(p->one) : translated(kUnnamedPart[ordinalEnding(bottom)]).arg(bottom);
}

QString partsName(int bottom)
{
    const PartNames* p = partNames(bottom);
    return p ? translated(p->many) : translated(kUnnamedParts[ordinalEnding(bottom)]).arg(bottom);
}

QString words(int top, int bottom)
{
    if (bottom == 1)
        return numberWord(top);
    const PartNames* p = partNames(bottom);
    if (top == 1)
        return p ? translated(p->single)
                 : QCoreApplication::translate("Fractions", "one %1", "one part without a name of its own: one 22nd")
                       .arg(partName(bottom));
    // The count chooses a translation's plural form: French says "zéro quart".
    const QString number = numberWord(top);
    return p ? translated(p->several, top).arg(number)
             : QCoreApplication::translate("Fractions", "%1 %2", "parts without a name of their own: five 22nds", top)
                   .arg(number, partsName(bottom));
}

QString mixedWords(int whole, int top, int bottom)
{
    if (top == 0)
        return numberWord(whole);
    if (whole == 0)
        return words(top, bottom);
    return QCoreApplication::translate("Fractions", "%1 and %2", "a mixed number: five and two thirds")
        .arg(numberWord(whole), words(top, bottom));
}

} // namespace Fractions
