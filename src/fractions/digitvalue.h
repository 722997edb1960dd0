#pragma once
// Digits: the value of one digit of a number with up to two whole digits
// and up to three decimal places ("What is the value of the 3?" in 42.317).
// The child picks one of four cards, each naming a place ("3 tenths (0.3)");
// exactly one is right. Free of widgets; numbers are whole thousandths.
#include "placevalues.h"
#include "verdict.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace Random {
class Source;
}

namespace Digits {

inline constexpr int kCards = 4;
inline constexpr int kLargestWhole = 99;

struct Question {
    int thousandths = 42317; // the number: 42.317
    int places = 3;          // its decimal places as written (1 to 3)
    int marked = Places::kTenths; // the place of the digit asked about
    QVector<int> cards;      // the place each card names, in order
    int right = 0;           // the card naming `marked`

    QString number() const { return Places::written(thousandths, places); }
    int digit() const { return Places::digitAt(thousandths, marked); }
    // Where the marked digit stands in the written number.
    int markedIndex() const;
    // "What is the value of the 3?"
    QString instruction() const;
    // "3 tenths (0.3)" for each card, and as a screen reader says it.
    QStringList cardTexts() const;
    QStringList spokenCards() const;
    // "The 3 in 42.317 is 3 tenths (0.3)."
    QString statement() const;

    friend bool operator==(const Question& a, const Question& b)
    {
        return a.thousandths == b.thousandths && a.marked == b.marked;
    }
};

// "3 tenths (0.3)": the value of `digit` standing at place `power`.
QString valueText(int digit, int power);

// A question unlike the one before (nullptr for the first): the marked
// digit is not 0 and comes only once in the number.
Question draw(Random::Source& rnd, const Question* last);

// The card chosen (-1: none yet).
Verdict check(const Question& q, int chosen);

// "Look at 42.317 in its columns: read the head of the column the 3 stands in."
QString hint(const Question& q);

} // namespace Digits
