#pragma once
// Halves and Quarters 3: one half, or one, two or three quarters, of a
// number of pictures. The question, its check and its hint, free of widgets.
#include "verdict.h"

#include <QString>

namespace Random {
class Source;
}

namespace HalvesOfNumbers {

struct Question {
    int top = 1;    // the fraction asked for: 1/2, 1/4, 2/4 or 3/4
    int bottom = 2;
    int amount = 2; // halves of 2..20 (even); quarters of 4..20 (multiples of 4)
    int set = 1;    // the picture set the amount is shown with, 1..6

    int answer() const { return amount / bottom * top; }
    // "What is three quarters of 12?"
    QString instruction() const;
    // "Three quarters of 12 is 9."
    QString statement() const;

    friend bool operator==(const Question& a, const Question& b)
    {
        return a.top == b.top && a.bottom == b.bottom && a.amount == b.amount;
    }
};

inline constexpr int kLargestAmount = 20;
// The longest answer is 15 (three quarters of 20): two digits.
inline constexpr int kAnswerDigits = 2;

// A question unlike the one before (nullptr for the first), on a picture set
// other than the last one's.
Question draw(Random::Source& rnd, const Question* last);

// The typed answer: digits only (an empty box or 0 cannot be checked).
Verdict check(const Question& q, const QString& typed);

// "Share the 12 ducks into 4 equal groups: 3 in each group. Three quarters
// is 3 groups: 9 ducks."
QString hint(const Question& q, const QString& picname);

} // namespace HalvesOfNumbers
