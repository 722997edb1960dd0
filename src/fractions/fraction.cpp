#include "fraction.h"

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
const char* const kNumbers[] = {"zero",    "one",     "two",       "three",    "four",     "five",    "six",
                                "seven",   "eight",   "nine",      "ten",      "eleven",   "twelve",  "thirteen",
                                "fourteen", "fifteen", "sixteen",  "seventeen", "eighteen", "nineteen", "twenty"};
constexpr int kLargestNumberWord = 20;

struct PartNames {
    int bottom;
    const char* one;
    const char* many;
};
constexpr PartNames kParts[] = {
    {2, "half", "halves"},        {3, "third", "thirds"},       {4, "quarter", "quarters"},
    {5, "fifth", "fifths"},       {6, "sixth", "sixths"},       {7, "seventh", "sevenths"},
    {8, "eighth", "eighths"},     {9, "ninth", "ninths"},       {10, "tenth", "tenths"},
    {11, "eleventh", "elevenths"}, {12, "twelfth", "twelfths"}, {20, "twentieth", "twentieths"},
    {100, "hundredth", "hundredths"}, {1000, "thousandth", "thousandths"},
};

const PartNames* partNames(int bottom)
{
    for (const PartNames& p : kParts)
        if (p.bottom == bottom)
            return &p;
    return nullptr;
}
} // namespace

QString numberWord(int n)
{
    return n >= 0 && n <= kLargestNumberWord ? QString::fromLatin1(kNumbers[n]) : QString::number(n);
}

QString capitalised(QString text)
{
    if (!text.isEmpty())
        text[0] = text[0].toUpper();
    return text;
}

QString partName(int bottom)
{
    const PartNames* p = partNames(bottom);
    return p ? QString::fromLatin1(p->one) : QString::number(bottom) + QStringLiteral("th");
}

QString partsName(int bottom)
{
    const PartNames* p = partNames(bottom);
    return p ? QString::fromLatin1(p->many) : QString::number(bottom) + QStringLiteral("ths");
}

QString words(int top, int bottom)
{
    if (bottom == 1)
        return numberWord(top);
    return numberWord(top) + QLatin1Char(' ') + (std::abs(top) == 1 ? partName(bottom) : partsName(bottom));
}

} // namespace Fractions
