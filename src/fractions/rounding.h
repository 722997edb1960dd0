#pragma once
// Rounding: a decimal from 0 to 99 with two or three places, rounded to the
// nearest whole number, to one or to two decimal places. Exact halves (2.5,
// 4.65, 7.125) come up too, and round up. The question, its check and its
// hint, free of widgets; values are compared exactly as decimals.
#include "decimalvalue.h"
#include "verdict.h"

#include <QString>

namespace Random {
class Source;
}

namespace Rounding {

// The places rounded to: 0 the nearest whole number, 1 or 2 decimal places.
inline constexpr int kMostPlacesAsked = 2;
// The number's own places, unless it is an exact half.
inline constexpr int kFewestPlaces = 2;
inline constexpr int kMostPlaces = 3;
inline constexpr int kLargestWhole = 99;
// One draw in this many is an exact half at the place after the one asked.
inline constexpr int kHalfOneIn = 5;
// The box: "100.00", the longest rounded answer.
inline constexpr int kAnswerLength = 6;

struct Question {
    int places = 2; // the number's own places
    int units = 467; // the number in units of its last place: 467 hundredths is 4.67
    int asked = 1; // the places to round to

    DecimalValue number() const { return DecimalValue::fromUnits(units, places); }
    // The number as written: "4.67", "2.5", "7.125".
    QString written() const { return number().toFixed(places); }
    DecimalValue answer() const { return number().rounded(asked); }
    // The answer written with the places asked: "4.70", "5".
    QString answerText() const { return answer().toFixed(asked); }
    // The two candidates, one either side of the number: "4.6" and "4.7".
    QString below() const;
    QString above() const;
    // "Round 4.67 to one decimal place."
    QString instruction() const;
    // "4.67 rounded to one decimal place is 4.7."
    QString statement() const;

    friend bool operator==(const Question& a, const Question& b)
    {
        return a.number() == b.number() && a.asked == b.asked;
    }
};

// A question unlike the one before (nullptr for the first).
Question draw(Random::Source& rnd, const Question* last);

// Right when the typed value is the rounded number, written with no more
// places than asked: 4.697 to two places takes "4.70" and "4.7".
Verdict check(const Question& q, const QString& typed);

// "Look at the digit after the place you round to: 7 is 5 or more, so round
// up to 4.7."
QString hint(const Question& q);

} // namespace Rounding
