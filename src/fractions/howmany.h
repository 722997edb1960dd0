#pragma once
// How Many?: how many tenths, hundredths or thousandths a decimal holds
// ("How many hundredths are there in 2.3?" 230). The question, its check and
// its hint, free of widgets; every number is a whole count of thousandths.
#include "placevalues.h"
#include "verdict.h"

#include <QString>

namespace Random {
class Source;
}

namespace HowMany {

struct Question {
    int thousandths = 3700;             // the number: 3.7
    int places = 1;                     // its decimal places as written (0 to 3)
    int counted = Places::kTenths;      // the place counted: tenths, hundredths or thousandths

    QString number() const { return Places::written(thousandths, places); }
    int answer() const { return Places::countOf(thousandths, counted); }
    // "How many tenths are there in 3.7?"
    QString instruction() const;
    // "3.7 is 37 tenths."
    QString statement() const;

    friend bool operator==(const Question& a, const Question& b)
    {
        return a.thousandths == b.thousandths && a.counted == b.counted;
    }
};

// Whole numbers 0 to 9 with up to as many places as the place counted; the
// thousandths are counted below 1. The longest answer is 999 hundredths.
inline constexpr int kLargestWhole = 9;
inline constexpr int kAnswerDigits = 3;

// A question unlike the one before (nullptr for the first).
Question draw(Random::Source& rnd, const Question* last);

// The typed answer: digits only. An empty box, a 0, a number with a 0 in
// front or one longer than any answer cannot be checked.
Verdict check(const Question& q, const QString& typed);

// "3.7 is 3 ones and 7 tenths. Each one is 10 tenths, so 30 + 7 = 37 tenths."
QString hint(const Question& q);

} // namespace HowMany
