#include "random.h"

#include <chrono>

namespace Random {
namespace {

// splitmix64: a 64-bit counter walked by the golden ratio and mixed, so the
// stream has no short cycles and each draw is a bijection of the state.
constexpr std::uint64_t kGolden = 0x9E3779B97F4A7C15ULL;

std::uint64_t mix(std::uint64_t z)
{
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

std::uint64_t clockTicks()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    const auto wall = std::chrono::system_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(now.count()) ^ mix(static_cast<std::uint64_t>(wall.count()));
}

std::uint64_t g_state = mix(clockTicks());
bool g_fixed = false;

} // namespace

double Rnd()
{
    g_state += kGolden;
    // The top 53 bits make a double in [0, 1).
    return static_cast<double>(mix(g_state) >> 11) * (1.0 / 9007199254740992.0);
}

void Randomize()
{
    const std::uint64_t stir = g_fixed ? kGolden : clockTicks();
    g_state = mix(g_state ^ mix(stir));
}

void fixSeed(std::uint64_t seed)
{
    g_state = mix(seed);
    g_fixed = true;
}

void useClock()
{
    g_fixed = false;
    Randomize();
}

} // namespace Random
