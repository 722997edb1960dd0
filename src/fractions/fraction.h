#pragma once
// A fraction as a value: top over bottom, kept in lowest terms with the sign
// on top, and compared exactly by cross-multiplying in 64 bits, never through
// floating point. 2/4 == 1/2 and 3/8 < 3/7 hold as a child expects.
//
// Where the written form matters (a child typed 2/4 where 1/2 was asked),
// the check keeps the two numbers as typed and builds a Fraction only to
// compare values.
#include <QString>
#include <cstdint>

namespace Fractions {

// The highest common factor of a and b, always 0 or positive; hcf(a, 0) is |a|.
int hcf(int a, int b);

class Fraction {
public:
    Fraction() = default;
    // A bottom of 0 makes the invalid fraction, which equals nothing but itself.
    Fraction(std::int64_t top, std::int64_t bottom);
    static Fraction whole(std::int64_t n) { return Fraction(n, 1); }

    std::int64_t top() const { return m_top; }
    std::int64_t bottom() const { return m_bottom; }
    bool isValid() const { return m_bottom != 0; }

    // "3/4", "2" is written "2/1" only when asked for the fraction form.
    QString text() const;

    friend bool operator==(const Fraction& a, const Fraction& b) { return a.m_top == b.m_top && a.m_bottom == b.m_bottom; }
    friend bool operator!=(const Fraction& a, const Fraction& b) { return !(a == b); }
    // Order by cross-multiplying; an invalid fraction sorts before every valid one.
    friend bool operator<(const Fraction& a, const Fraction& b);
    friend bool operator>(const Fraction& a, const Fraction& b) { return b < a; }
    friend bool operator<=(const Fraction& a, const Fraction& b) { return !(b < a); }
    friend bool operator>=(const Fraction& a, const Fraction& b) { return !(a < b); }

    Fraction operator*(const Fraction& o) const { return Fraction(m_top * o.m_top, m_bottom * o.m_bottom); }
    // This fraction of a whole number, when that is a whole number (3/4 of 12 = 9).
    bool ofWhole(std::int64_t amount, std::int64_t* result) const;

private:
    std::int64_t m_top = 0;
    std::int64_t m_bottom = 0;
};

// Whether top/bottom is written in lowest terms (bottom > 0).
bool inLowestTerms(int top, int bottom);

// Every word is in the language of the translation installed (English
// without one).
//
// Words for a fraction as a child reads it aloud: "one half", "three
// quarters", "two thirds", "seven tenths", "one hundredth", "37 hundredths"
// (numbers from twenty-one up are written in figures). A top of 0 reads
// "zero quarters"; a bottom of 1 reads as the whole number.
QString words(int top, int bottom);
// A mixed number in words: "five and two thirds"; a top of 0 reads as the
// whole number alone, a whole of 0 as the fraction alone.
QString mixedWords(int whole, int top, int bottom);
// The name of one part: "half", "third", "quarter", "fifth", ... "twelfth",
// "hundredth"; plural(d) the name of several: "halves", "thirds", "quarters".
QString partName(int bottom);
QString partsName(int bottom);
// A whole number in words up to twenty ("three"), in figures beyond.
QString numberWord(int n);
// A decimal read aloud as it is written, a point and each digit after it:
// "3.45" is "three point four five", "4.70" "four point seven zero", ".5"
// "point five"; a whole number reads as numberWord() does. Text that is not
// digits with at most one point is given back as it is.
QString decimalWords(const QString& written);
// The text with its first letter a capital, to start a sentence.
QString capitalised(QString text);

} // namespace Fractions
