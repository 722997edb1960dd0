#pragma once
// Equivalent Fractions (Year 5): a chain of four equal fractions,
// "2/3 = ?/6 = 6/? = ?/12", with one number missing from each of the last
// three. The question, its check and its hint, free of widgets.
#include "verdict.h"

#include <QString>
#include <QStringList>
#include <array>

namespace Random {
class Source;
}

namespace EquivalentChain {

// The first fraction, then three more made from it.
inline constexpr int kFractions = 4;
inline constexpr int kMade = kFractions - 1;
// The numbers after the first fraction: top and bottom of each made one.
inline constexpr int kNumbers = 2 * kMade;
inline constexpr int kSmallestBottom = 2;
inline constexpr int kLargestBottom = 6;
inline constexpr int kSmallestMultiplier = 2;
inline constexpr int kLargestMultiplier = 6;
// The largest number in a chain is 6 x 6 = 36: two digits.
inline constexpr int kAnswerDigits = 2;

struct Question {
    int top = 1; // the first fraction, in lowest terms
    int bottom = 2;
    std::array<int, kMade> multipliers{2, 3, 4}; // strictly rising
    // Which of the numbers after the first fraction are missing, in the
    // order they are written: top and bottom of the second fraction, then
    // of the third, then of the fourth. One in each fraction.
    std::array<bool, kNumbers> missing{true, false, false, true, true, false};

    // The index-th number after the first fraction (0..5).
    int number(int index) const;
    // "2/3 = ?/6 = 6/? = ?/12"
    QString text() const;
    // "2/3 = 4/6 = 6/9 = 8/12"
    QString answerText() const;
    // What to do, for the instruction line.
    QString instruction() const;
    // The chain as a screen reader says it: "two thirds equals how many
    // sixths, equals six over what number, equals how many twelfths".
    QString spoken() const;

    friend bool operator==(const Question& a, const Question& b)
    {
        return a.top == b.top && a.bottom == b.bottom && a.multipliers == b.multipliers && a.missing == b.missing;
    }
};

// A question unlike the one before (nullptr for the first).
Question draw(Random::Source& rnd, const Question* last);

// The missing numbers as typed, left to right. A box left blank, or a 0 as
// a bottom number, cannot be checked; otherwise the chain is right when
// every fraction in it equals the first.
Verdict check(const Question& q, const QStringList& typed);

// "Every fraction in the chain is 2/3 with top and bottom multiplied by the
// same number: × 2, × 3, × 4."
QString hint(const Question& q);

} // namespace EquivalentChain
