#pragma once
// More Than, Less Than: two fractions side by side, and the child says
// whether the first is less than, equal to or more than the second. The
// question, its check and its hint, free of widgets. Fractions are compared
// only by cross-multiplying whole numbers.
#include "verdict.h"

#include <QString>

namespace Random {
class Source;
}

namespace CompareFractions {

// How the pair is made: the same bottom (3/8 and 5/8), the same top (2/5 and
// 2/7), two unit fractions (1/3 and 1/5), or two equal fractions (2/4 and 1/2).
enum class Kind { SameBottom, SameTop, UnitFractions, EqualPair };

// The three answers, in the order of their cards.
enum class Relation { Less, Equal, More };
inline constexpr int kRelations = 3;

struct Question {
    Kind kind = Kind::SameBottom;
    int leftTop = 1;
    int leftBottom = 2;
    int rightTop = 1;
    int rightBottom = 3;

    Relation relation() const;
    // "Is 3/8 less than, equal to or more than 5/8?"
    QString instruction() const;
    // "3/8 is less than 5/8."
    QString statement() const;

    friend bool operator==(const Question& a, const Question& b)
    {
        return a.leftTop == b.leftTop && a.leftBottom == b.leftBottom && a.rightTop == b.rightTop
            && a.rightBottom == b.rightBottom;
    }
};

// Bottoms run 2..12; one pair in this many is an equal pair.
inline constexpr int kEqualOneIn = 8;
inline constexpr int kLargestBottom = 12;

// A question unlike the one before (nullptr for the first).
Question draw(Random::Source& rnd, const Question* last);

// The cards' words, in Relation order: "is less than", "is equal to", "is more than".
QString relationWords(Relation relation);

// chosen: the card chosen (a Relation's number), or -1 for none yet, which
// cannot be checked.
Verdict check(const Question& q, int chosen);

// "Both bars are the same length: ..." with the two drawn as bars.
QString hint(const Question& q);

// "three eighths and five eighths": the pair as a screen reader says it.
QString spokenPair(const Question& q);

} // namespace CompareFractions
