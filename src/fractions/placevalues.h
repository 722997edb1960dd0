#pragma once
// Numbers in place-value columns, for the Year 6 activities that count
// tenths and name the value of a digit. A number is held as a whole count of
// thousandths (42.317 is 42317), so every digit and every count is exact
// integer arithmetic, never floating point, never through the locale: the
// point is always ".". A place is named by its power of ten: tens 1, ones 0,
// tenths -1, hundredths -2, thousandths -3.
#include <QString>

namespace Random {
class Source;
}

namespace Places {

constexpr int kTens = 1;
constexpr int kOnes = 0;
constexpr int kTenths = -1;
constexpr int kHundredths = -2;
constexpr int kThousandths = -3;
// Thousandths in one: a number's whole count is its value times this.
constexpr int kScale = 1000;
constexpr int kMostPlaces = 3;

// 10 to a power from 0 up.
int tenTo(int power);
// The digit standing at `power` in a number of `thousandths` (0 to 9).
int digitAt(int thousandths, int power);
// How many of the place `power` the number holds in all, when that is a
// whole count ("how many tenths in 3.7": 37); -1 when it is not.
int countOf(int thousandths, int power);

// A decimal part of exactly `places` places (its last digit not 0), as
// thousandths: 0.307 is 307, 0.3 is 300.
int drawDecimals(Random::Source& rnd, int places);

// The number with `places` decimal places: written(2300, 2) is "2.30",
// written(4000, 0) is "4". Always with ".", whatever the language.
QString written(int thousandths, int places);
// The places a written number needs: 3 for 0.125, 0 for 4.
int placesOf(int thousandths);

// The number as a screen reader should say it: "zero point four five",
// "42 point three one seven" (whole numbers past twenty in figures).
QString spoken(const QString& written);

// "3 tenths", "1 ten", "7 ones": a count of one place, with its plural.
QString count(int n, int power);
// The column head of a place: "tens", "ones", "tenths".
QString columnName(int power);

// What a typed whole-number answer holds: nothing, only zeros, a number
// written with a 0 in front ("037"), more digits than the box takes, or a
// number. `value` is set for a number.
enum class Typed { Empty, Zero, LeadingZero, TooLong, Number };
Typed readWhole(const QString& typed, int mostDigits, int* value);
// Why a typed whole number cannot be checked, for every kind but Number;
// a zero gets the activity's own reason.
QString refusal(Typed kind, const QString& zeroReason);

} // namespace Places
