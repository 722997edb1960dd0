#pragma once
// The random generator behind every draw in the program, with the classic
// pair of calls: Rnd() gives a number in [0, 1); Randomize() re-seeds from
// the clock. Re-seeding mixes the clock into the generator's state instead of
// replacing it, so two re-seeds within one clock tick still lead on to fresh
// numbers and a "re-seed, draw, repeat until" loop always ends.
#include <cstdint>

namespace Random {

double Rnd();
void Randomize();

// Tests fix the seed: from then on Randomize() stirs the state without
// reading the clock, so every draw is reproducible.
void fixSeed(std::uint64_t seed);
// Back to clock seeding (the program's normal behaviour).
void useClock();

} // namespace Random
