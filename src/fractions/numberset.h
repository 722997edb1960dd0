#pragma once
// The ordering board without its widgets: making a question of five decimal
// numbers, and the rules the board applies to its captions (where a click
// goes, what Undo takes back, whether the child's order is right, and the
// correct order that is revealed after a wrong one). Captions are compared
// by value (see DecimalValue).
#include "runtime/random.h"

#include <QString>
#include <array>
#include <optional>

namespace NumberSet {

constexpr int kCount = 5;
using Texts = std::array<QString, kCount>;

// The only kind of question: decimals sharing one whole part.
constexpr int kSharedWholePart = 1;
constexpr int kLargestWholePart = 5;
constexpr int kMostPlaces = 3;

struct Question {
    int wholepart = 0; // 1..5
    Texts numbers;     // "3.4", "3.47" or "3.472": 1 to 3 places, digits 1..9
};

// Five numbers W.D, W.DD or W.DDD with one whole part W, each length drawn
// on its own; a set with two equal values is drawn again whole. The random
// generator is re-seeded before every draw. A kind other than
// kSharedWholePart makes no question.
std::optional<Question> newnumbers(Random::Source& rnd, int numberkind);
// One draw of five numbers for a whole part, repeats and all.
Texts drawFive(Random::Source& rnd, int wholepart);

// The text of a decimal with that whole part and places (1, 2, or 3 for any
// other value) whose every digit after the point is 1..9, so no number ends
// in 0. The source is re-seeded first.
QString randomDecimal(Random::Source& rnd, int whole, int places);

// Whether two of the texts have the same value.
bool hasRepeats(const Texts& texts);

// The first slot whose value is 0 (empty), or -1 when all five are filled.
int firstFreeSlot(const Texts& answers);
// The slot Undo clears: the last filled one while fewer than five are
// placed (slot 0 when none is), or -1 when slots 1..4 are all filled.
int undoSlot(const Texts& answers);
// The first number with the value of that caption, or -1.
int numberWithValue(const Texts& numbers, const QString& caption);

// The child's order is right when every slot is at least the one above it
// (empty slots count as 0).
bool inOrder(const Texts& answers);

// The answer slots bubble-sorted into the correct order: five passes over the
// neighbours; a swap moves the upper caption down and writes the lower
// value back up as its decimal text.
Texts sortedOrder(Texts answers);

} // namespace NumberSet
