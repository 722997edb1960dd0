#pragma once
// Cancelling (Year 5): "Cancel 18/24 to its simplest form." The fraction is
// one in lowest terms with its top and bottom multiplied by the same number;
// the child types it back in lowest terms. The question, its check and its
// hint, free of widgets.
#include "verdict.h"

#include <QString>

namespace Random {
class Source;
}

namespace Cancelling {

// The simplest form: a bottom from 2 to 12 and a top below it.
inline constexpr int kSmallestSimplestBottom = 2;
inline constexpr int kLargestSimplestBottom = 12;
// What top and bottom are multiplied by, and the largest bottom that makes.
inline constexpr int kSmallestFactor = 2;
inline constexpr int kLargestFactor = 10;
inline constexpr int kLargestBottom = 100;
// A simplest form has at most two digits (11/12); an equal fraction still
// to cancel (45/50) has at most two as well.
inline constexpr int kAnswerDigits = 2;

struct Question {
    int simplestTop = 3; // in lowest terms
    int simplestBottom = 4;
    int factor = 6;

    int top() const { return simplestTop * factor; }
    int bottom() const { return simplestBottom * factor; }
    // "18/24"
    QString text() const;
    // "3/4"
    QString answerText() const;
    // "Cancel 18/24 to its simplest form."
    QString instruction() const;
    // "18/24 cancels to 3/4: divide the top and the bottom by 6."
    QString statement() const;

    friend bool operator==(const Question& a, const Question& b)
    {
        return a.simplestTop == b.simplestTop && a.simplestBottom == b.simplestBottom && a.factor == b.factor;
    }
};

// A question unlike the one before (nullptr for the first).
Question draw(Random::Source& rnd, const Question* last);

// The two boxes as typed. Right: the simplest form. Not checkable: a box
// left blank, a bottom of 0, the question's own fraction typed back, or an
// equal fraction that can be cancelled further (which is not wrong either).
// Wrong: any other fraction.
Verdict check(const Question& q, const QString& top, const QString& bottom);

// "The highest common factor of 18 and 24 is 6."
QString hint(const Question& q);

} // namespace Cancelling
