#pragma once

#include <bit>
#include <cstdint>

#include "core/port.h"

namespace torvenhall
{

/// Dice for whoever plays thousands of years without a screen: the splitmix64
/// generator, which is seeded more quickly than the real game's. Each tick does
/// it. The same first value gives the same sequence, those that are seeded from
/// the system timer too: a derived class tells what such a timer shows.
class QuickDice : public Dice
{
public:
    explicit QuickDice(std::uint64_t firstValue) : state(firstValue) {}
    float Rnd() final { return static_cast<float>(Next() >> 40U) * 0x1p-24F; }
    void Randomize(double value) final { state ^= std::bit_cast<std::uint64_t>(value); }
    void Randomize() override { Next(); }

private:
    std::uint64_t Next()
    {
        std::uint64_t mixed = state += 0x9E3779B97F4A7C15U;
        mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31U);
    }

    std::uint64_t state;
};

} // namespace torvenhall
