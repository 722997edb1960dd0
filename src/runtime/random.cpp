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

} // namespace

Source::Source()
    : m_state(mix(clockTicks()))
    , m_fixed(false)
{
}

Source::Source(std::uint64_t seed)
    : m_state(mix(seed))
    , m_fixed(true)
{
}

double Source::rnd()
{
    m_state += kGolden;
    // The top 53 bits make a double in [0, 1).
    return static_cast<double>(mix(m_state) >> 11) * (1.0 / 9007199254740992.0);
}

void Source::randomize()
{
    const std::uint64_t stir = m_fixed ? kGolden : clockTicks();
    m_state = mix(m_state ^ mix(stir));
}

int Source::below(int count)
{
    return count <= 1 ? 0 : static_cast<int>(rnd() * count);
}

int Source::between(int low, int high)
{
    return low + below(high - low + 1);
}

void Source::fixSeed(std::uint64_t seed)
{
    m_state = mix(seed);
    m_fixed = true;
}

void Source::useClock()
{
    m_fixed = false;
    randomize();
}

Source& program()
{
    static Source source;
    return source;
}

double Rnd()
{
    return program().rnd();
}

void Randomize()
{
    program().randomize();
}

void fixSeed(std::uint64_t seed)
{
    program().fixSeed(seed);
}

void useClock()
{
    program().useClock();
}

} // namespace Random
