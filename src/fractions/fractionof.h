#pragma once
// A fraction of a number, "What is 2/3 of 12?", shown on a bar model: the
// same question for Year 3 (Halves, Quarters, Thirds and Tenths 3) and for
// Year 5 (Fractions of Numbers), each with its own ranges. The question, its
// check and its hint, free of widgets.
#include "verdict.h"

#include <QString>
#include <cstddef>

namespace Random {
class Source;
}

namespace FractionOf {

// What one activity asks: the bottom numbers it uses, and how many times the
// bottom number the amount may be. The top number is 1 up to one below the
// bottom.
struct Ranges {
    const int* bottoms;
    std::size_t bottomCount;
    int leastTimes;
    int mostTimes;
};

inline constexpr int kYear3Bottoms[] = {2, 3, 4, 5, 10};
inline constexpr int kYear5Bottoms[] = {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
inline constexpr Ranges kYear3{kYear3Bottoms, std::size(kYear3Bottoms), 1, 10};
inline constexpr Ranges kYear5{kYear5Bottoms, std::size(kYear5Bottoms), 2, 12};

// The digits of the longest right answer of these ranges: the answer box
// takes that many.
int answerDigits(const Ranges& ranges);

struct Question {
    int top = 1;
    int bottom = 2;
    int amount = 2; // a multiple of the bottom

    int answer() const { return amount / bottom * top; }
    // "2/3", as written.
    QString fraction() const;
    // "What is 2/3 of 12?"
    QString instruction() const;
    // "two thirds of 12", as a screen reader says the question.
    QString spoken() const;
    // "2/3 of 12 is 8."
    QString statement() const;

    friend bool operator==(const Question& a, const Question& b)
    {
        return a.top == b.top && a.bottom == b.bottom && a.amount == b.amount;
    }
};

// A question within the ranges, unlike the one before (nullptr for the
// first). Each bottom number is as likely as the others.
Question draw(const Ranges& ranges, Random::Source& rnd, const Question* last);

// The typed answer: digits only (an empty box or 0 cannot be checked).
Verdict check(const Question& q, const QString& typed);

// "First 1/3 of 12: 12 ÷ 3 = 4. Then 2/3 is 2 lots of 4: 8."
QString hint(const Question& q);

} // namespace FractionOf
