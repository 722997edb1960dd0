#pragma once
// Equal fractions: one fraction and the same fraction with its top and bottom
// multiplied by one number. Equivalent Fractions 1 and 2 ask for the one
// number missing from "1/2 = ?/8" or "12/16 = 3/?"; Equivalent Fractions 3
// asks which of four cards is equal to a fraction. The questions, their
// checks and their hints, free of widgets. Values are compared exactly
// (Fractions::Fraction), never through floating point.
#include "verdict.h"

#include <QString>
#include <array>

namespace Random {
class Source;
}

namespace Equivalent {

// Where the missing number stands in "a/b = c/d".
enum class Blank { FirstTop, FirstBottom, SecondTop, SecondBottom };

// top/bottom = (top x factor)/(bottom x factor), written either way round,
// with one of the four numbers missing.
struct Pair {
    int top = 1;    // the fraction with the smaller numbers
    int bottom = 2;
    int factor = 2; // what top and bottom are multiplied by
    bool largerFirst = false; // "12/16 = 3/?": the larger numbers stand first
    Blank blank = Blank::SecondTop;

    // The number written at a place, the blank's included.
    int number(Blank place) const;
    int answer() const { return number(blank); }
    // Whether the blank is in the fraction with the larger numbers: it is
    // found by multiplying (making an equal fraction), not by dividing
    // (simplifying).
    bool multiplying() const;

    // "1/2 = ?/8"
    QString text() const;
    // "one half equals how many eighths?"
    QString spoken() const;
    // "1/2 is equal to 4/8."
    QString statement() const;

    friend bool operator==(const Pair& a, const Pair& b)
    {
        return a.top == b.top && a.bottom == b.bottom && a.factor == b.factor && a.largerFirst == b.largerFirst
            && a.blank == b.blank;
    }
};

// The longest missing number has two digits.
inline constexpr int kAnswerDigits = 2;

// Equivalent Fractions 1: "1/2 = ?/8". top/bottom in lowest terms, bottom
// 2..6, top 1..bottom-1; the second bottom is bottom x 2..4 and at most 12.
inline constexpr int kWallSmallestBottom = 2;
inline constexpr int kWallLargestBottom = 6;
inline constexpr int kWallSmallestFactor = 2;
inline constexpr int kWallLargestFactor = 4;
inline constexpr int kWallLargestSecondBottom = 12;
Pair drawOnWall(Random::Source& rnd, const Pair* last);

// Equivalent Fractions 2: top/bottom in lowest terms below 1, bottom 2..12,
// factor 2..5, written either way round, any number missing.
inline constexpr int kSmallestBottom = 2;
inline constexpr int kLargestBottom = 12;
inline constexpr int kSmallestFactor = 2;
inline constexpr int kLargestFactor = 5;
Pair drawAnywhere(Random::Source& rnd, const Pair* last);

// The typed missing number: an empty box or 0 cannot be checked.
Verdict check(const Pair& pair, const QString& typed);

// On the wall, from the two bottoms: "8 ÷ 2 = 4, so the top is multiplied
// by 4 too: 1 × 4 = 4."
QString wallHint(const Pair& pair);
// From the pair without a blank: "3 × 3 = 9, so the bottom is multiplied by
// 3 too: 4 × 3 = 12." or "12 ÷ 4 = 3, so the bottom is divided by 4 too:
// 16 ÷ 4 = 4."
QString hint(const Pair& pair);

// Equivalent Fractions 3: "Which fraction is equal to 2/3?" The cards keep
// their written numbers (4/6, not 2/3).
struct Card {
    int top = 0;
    int bottom = 1;
    QString text() const;
};
inline constexpr int kCards = 4;

struct Choice {
    int top = 1;    // the fraction asked about, in lowest terms, below 1
    int bottom = 2;
    int factor = 2; // the right card is top x factor over bottom x factor
    std::array<Card, kCards> cards;
    int right = 0;  // the right card's index

    QString fractionText() const;
    // "Which fraction is equal to 2/3?"
    QString instruction() const;
    // "Which fraction is equal to two thirds?"
    QString spoken() const;

    friend bool operator==(const Choice& a, const Choice& b)
    {
        return a.top == b.top && a.bottom == b.bottom && a.factor == b.factor;
    }
};

// The fraction asked about: bottom 2..6, top 1..bottom-1; the right card
// multiplies both by 2..5. Every card is below 1 and has a bottom of at
// most 24, so the fractions can be drawn as bricks.
inline constexpr int kChoiceLargestBottom = 6;
inline constexpr int kCardLargestBottom = 24;
// Three cards that are not equal to the fraction, nor to one another:
// the same number added to the top and the bottom (3/4), only the bottom
// multiplied (2/6), and the top and the bottom multiplied by different
// numbers (4/9); and the right card, all in a random order.
Choice drawChoice(Random::Source& rnd, const Choice* last);

// The card chosen (-1: none yet).
Verdict checkChoice(const Choice& choice, int chosen);

// "Multiply the top and the bottom by the same number: 2 × 2 = 4 and
// 3 × 2 = 6."
QString choiceHint(const Choice& choice);

} // namespace Equivalent
