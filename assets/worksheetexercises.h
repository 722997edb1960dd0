// The exercises of the printed worksheets, drawn by the activities' own
// question generators from a seeded source, so a worksheet follows the same
// rules as the screen and is the same on every build. What is decided here is
// only what a whole sheet needs: a balance of kinds and no repeats.
#pragma once

#include "runtime/random.h"

#include <QString>

#include <array>
#include <vector>

// Halves and Quarters: ring one half or one quarter of a set of pictures.
struct HalvesExercise
{
    int parts = 2;    // 2 = one half, 4 = one quarter
    int count = 2;    // pictures in the set: 2..16, a multiple of parts
    int picture = 0;  // which picture, 0 .. pictureKinds - 1
    int target() const { return count / parts; }
};

// As many halves as quarters (one more half when the number is odd), in a
// shuffled order; no picture and no count twice in a row.
std::vector<HalvesExercise> makeHalvesExercises(Random::Source &rng, int exercises, int pictureKinds);

// Mixed numbers and improper fractions: whole and numer/denom, the
// fraction proper and in lowest terms.
struct MixedExercise
{
    int whole = 1;
    int numer = 1;
    int denom = 2;
    int improperNumerator() const { return denom * whole + numer; }
    bool operator==(const MixedExercise &o) const
    {
        return whole == o.whole && numer == o.numer && denom == o.denom;
    }
};

// toMixed: an improper fraction to change to a mixed number (whole 1..5);
// otherwise a mixed number to change to an improper fraction (whole 1..9).
// Denominators 2..10; no exercise twice on one sheet.
std::vector<MixedExercise> makeMixedExercises(Random::Source &rng, bool toMixed, int exercises);

// Place In Order: five decimals W.D, W.DD or W.DDD with one whole part W
// (1..5) and digits 1..9, all of different value.
struct OrderingExercise
{
    int whole = 1;
    std::array<QString, 5> numbers;
};

std::vector<OrderingExercise> makeOrderingExercises(Random::Source &rng, int exercises);
