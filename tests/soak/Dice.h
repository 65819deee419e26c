// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// Chance that comes out the same from the same seed, on every machine.
class Dice
{
public:
    explicit Dice(std::uint64_t seed) : state_(seed) {}

    /// @param count at least 1
    /// @return 0 to count - 1
    int Below(int count) { return static_cast<int>((Next() >> 33) % static_cast<std::uint64_t>(count)); }
    /// @return from first to last, both among them
    int Between(int first, int last) { return first + Below(last - first + 1); }
    bool OneIn(int count) { return Below(count) == 0; }

private:
    /// Knuth's generator for 64 bits; its upper half is used.
    std::uint64_t Next() { return state_ = state_ * 6364136223846793005u + 1442695040888963407u; }

    std::uint64_t state_;
};
