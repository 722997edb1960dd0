#pragma once
// The random generator behind every draw in the program, with the classic
// pair of calls: Rnd() gives a number in [0, 1); Randomize() re-seeds from
// the clock. Re-seeding mixes the clock into the generator's state instead of
// replacing it, so two re-seeds within one clock tick still lead on to fresh
// numbers and a "re-seed, draw, repeat until" loop always ends.
//
// A Source is one such generator. The program has one (Random::program(),
// which Rnd() and Randomize() draw from); the question generators take the
// source they draw from as an argument, so a test or the asset tool can give
// them a seeded one of its own.
#include <cstdint>

namespace Random {

class Source {
public:
    // A source seeded from the clock, as the program's own starts.
    Source();
    // A fixed seed: randomize() then stirs the state without reading the
    // clock, so every draw is reproducible.
    explicit Source(std::uint64_t seed);

    // A number in [0, 1).
    double rnd();
    // Re-seeds: mixes the clock (or, for a fixed seed, a constant) into the state.
    void randomize();
    // A whole number from 0 to count - 1.
    int below(int count);
    // A whole number from low to high, both included.
    int between(int low, int high);

    void fixSeed(std::uint64_t seed);
    void useClock();

private:
    std::uint64_t m_state;
    bool m_fixed;
};

// The program's own source.
Source& program();

double Rnd();
void Randomize();

// Tests fix the seed of the program's source: from then on Randomize() stirs
// the state without reading the clock, so every draw is reproducible.
void fixSeed(std::uint64_t seed);
// Back to clock seeding (the program's normal behaviour).
void useClock();

} // namespace Random
