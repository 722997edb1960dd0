#pragma once
// Finding Amounts: a percentage or a fraction of an amount ("25% of 80",
// "3/8 of 64", "15% of £60"). Every answer is a whole number: the amounts
// are drawn as multiples that make it so, in integer arithmetic only.
#include "verdict.h"

#include <QString>

namespace Random {
class Source;
}

namespace Amounts {

enum class Unit { None, Kilograms, Metres, Pounds };

struct Question {
    int percent = 0; // 1, 5, 10, 15, 20, 25, 50 or 75; 0 for a fraction
    int top = 1;     // the fraction, in lowest terms, when percent is 0
    int bottom = 2;
    int amount = 2;  // 1 to 1000
    Unit unit = Unit::None;

    bool isPercent() const { return percent > 0; }
    int answer() const { return isPercent() ? amount * percent / 100 : amount / bottom * top; }
    // "25%" or "3/8"
    QString part() const;
    // "250 kg", "£60", "80": a number with its unit.
    QString withUnit(int n) const;
    // What stands before and after a number of this unit: "£" and "", or
    // "" and "kg", as the language writes it.
    QString unitBefore() const;
    QString unitAfter() const;
    // "What is 15% of £60?"
    QString instruction() const;
    // "15% of £60 is £9."
    QString statement() const;

    friend bool operator==(const Question& a, const Question& b)
    {
        return a.percent == b.percent && a.top == b.top && a.bottom == b.bottom && a.amount == b.amount;
    }
};

inline constexpr int kPercents[] = {1, 5, 10, 15, 20, 25, 50, 75};
inline constexpr int kSmallestBottom = 2;
inline constexpr int kLargestBottom = 12;
inline constexpr int kLargestAmount = 1000;
// The longest answer is below 1000.
inline constexpr int kAnswerDigits = 3;

// A question unlike the one before (nullptr for the first).
Question draw(Random::Source& rnd, const Question* last);

// The typed answer: digits only. An empty box, a 0, a number with a 0 in
// front or one longer than any answer cannot be checked.
Verdict check(const Question& q, const QString& typed);

// "10% is one tenth: 250 ÷ 10 = 25.", "25% is one quarter: 80 ÷ 4 = 20."
QString hint(const Question& q);

// A bar that shows the working: how many equal boxes, what each holds and
// how many are shaded (for 5% and 1% none: they are parts of one box).
struct Bar {
    int parts;
    int perPart;
    int shaded;
};
Bar bar(const Question& q);

} // namespace Amounts
