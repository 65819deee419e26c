// SPDX-License-Identifier: MIT
#pragma once

#include <random>

namespace city
{

/// Numbers of one seed. The mapping to ranges is done here, because the distributions of <random> differ between
/// standard libraries and the same seed shall give the same city everywhere.
class Random
{
public:
    explicit Random(unsigned seed) : m_engine(seed) {}

    /// In [0, 1).
    double Unit() { return m_engine() * (1.0 / 4294967296.0); }
    double Range(double low, double high) { return low + (high - low) * Unit(); }
    /// In [low, high], both included.
    int Whole(int low, int high) { return low + static_cast<int>(Unit() * (high - low + 1)); }
    bool Chance(double probability) { return Unit() < probability; }

    template <class T, std::size_t N>
    const T& Pick(const T (&items)[N])
    {
        return items[Whole(0, static_cast<int>(N) - 1)];
    }

private:
    std::mt19937 m_engine;
};

} // namespace city
