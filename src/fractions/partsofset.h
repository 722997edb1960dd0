#pragma once
// Halves, Quarters, Thirds and Tenths 1: a board of up to 20 identical
// pictures, of which the child picks a half, a third, two thirds, a quarter,
// three quarters, or one, three, seven or nine tenths. The pictures are the
// Halves and Quarters sets. Widget-free, so the draws can be run many times
// from a fixed seed.
#include "verdict.h"

#include <QString>

namespace Random {
class Source;
}

namespace PartsOfSet {

struct Asked {
    int top;
    int bottom;
};
inline constexpr Asked kFractions[] = {{1, 2}, {1, 3}, {2, 3}, {1, 4}, {3, 4}, {1, 10}, {3, 10}, {7, 10}, {9, 10}};

// How many pictures each bottom number is asked of: always a multiple of it,
// from `least` to `most`.
struct Counts {
    int bottom;
    int least;
    int most;
};
inline constexpr Counts kCounts[] = {{2, 2, 20}, {3, 3, 18}, {4, 4, 20}, {10, 10, 20}};

// The board holds 4 rows of 5.
inline constexpr int kRowLength = 5;
inline constexpr int kMostPictures = 20;

struct Question {
    int top = 1;
    int bottom = 2;
    int howmany = 2; // pictures on the board
    int set = 1;     // the Halves and Quarters picture set, 1..6

    // Pictures to choose.
    int target() const { return howmany / bottom * top; }
    // "ducks", and one of them, "duck".
    QString picname() const;
    QString onePictureName() const;
    // "Click on two thirds of the ducks."
    QString instruction() const;
    // "You chose two thirds of the ducks."
    QString rightAnswer() const;
    // On paper: "Ring two thirds of the ducks." and "8 of the 12 ducks".
    QString sheetQuestion() const;
    QString sheetAnswer() const;

    friend bool operator==(const Question& a, const Question& b)
    {
        return a.top == b.top && a.bottom == b.bottom && a.howmany == b.howmany;
    }
};

// A question unlike the one before (nullptr for the first), on another
// picture set. Each bottom number is as likely as the others.
Question draw(Random::Source& rnd, const Question* last);

// The number of pictures chosen: none cannot be checked.
Verdict check(const Question& q, int chosen);

// "12 ducks in 3 equal groups is 4 in each group. Two thirds is 2 groups:
// 8 ducks."
QString hint(const Question& q);
// How the pictures chosen so far compare with the answer: "You have chosen
// 5: that is not enough yet."
QString progress(const Question& q, int chosen);

} // namespace PartsOfSet
