#pragma once

#include <cstdint>

namespace Tallymere {

// A stream of numbers that depends on nothing but its seed (SplitMix64).
class Chance
{
public:
    explicit Chance(std::uint64_t seed)
        : m_state(seed)
    {
    }

    std::uint64_t next()
    {
        std::uint64_t z = m_state += 0x9E3779B97F4A7C15ULL;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31);
    }

    int below(int bound) { return static_cast<int>(next() % static_cast<std::uint64_t>(bound)); }
    int between(int lowest, int highest) { return lowest + below(highest - lowest + 1); }
    bool percent(int chances) { return below(100) < chances; }

private:
    std::uint64_t m_state;
};

} // namespace Tallymere
