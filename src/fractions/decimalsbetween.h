#pragma once
// Decimals Between: two decimals next to each other at their last place
// (3.4 and 3.5, 2.71 and 2.72, 6 and 6.1, 0.9 and 1) and the child types any
// decimal that lies strictly between them. The question, its check and its
// hint, free of widgets; every value is compared exactly as a decimal.
#include "decimalvalue.h"
#include "verdict.h"

#include <QString>

namespace Random {
class Source;
}

namespace DecimalsBetween {

inline constexpr int kFewestPlaces = 1;
inline constexpr int kMostPlaces = 3;
// The smaller number lies below this whole number.
inline constexpr int kWholesBelow = 20;
// The box: "19.9995" and a digit more.
inline constexpr int kAnswerLength = 8;

struct Question {
    int places = 1; // the place the two numbers are neighbours at: 1 tenths .. 3
                    // thousandths
    int lowUnits = 34; // the smaller number in units of that place: 34 tenths is 3.4

    DecimalValue low() const { return DecimalValue::fromUnits(lowUnits, places); }
    DecimalValue high() const { return DecimalValue::fromUnits(lowUnits + 1, places); }
    // The numbers as they are shown: "3.4" and "3.5", "6" and "6.1".
    QString from() const { return low().toText(); }
    QString to() const { return high().toText(); }
    // The number half way between: 3.45.
    DecimalValue middle() const { return DecimalValue::fromUnits(lowUnits * 10 + 5, places + 1); }
    // "Type a decimal between 3.4 and 3.5."
    QString instruction() const;

    friend bool operator==(const Question& a, const Question& b) { return a.low() == b.low() && a.high() == b.high(); }
};

// A question unlike the one before (nullptr for the first).
Question draw(Random::Source& rnd, const Question* last);

// The typed answer: right when it lies strictly between the two numbers.
Verdict check(const Question& q, const QString& typed);

// "Write them with one more place: 3.40 and 3.50. Any of 3.41 to 3.49 lies
// between."
QString hint(const Question& q);

} // namespace DecimalsBetween
