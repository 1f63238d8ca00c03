#include "core/random.h"

#include <bit>
#include <chrono>

namespace torvenhall
{

float RandomDice::Rnd()
{
    // 24 bits are all that single precision holds, so 1 is never reached.
    return static_cast<float>(Next() >> 40U) * 0x1p-24F;
}

void RandomDice::Randomize(double value)
{
    Mix(std::bit_cast<std::uint64_t>(value));
}

void RandomDice::Randomize()
{
    Mix(static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()));
}

std::uint64_t RandomDice::Next()
{
    std::uint64_t mixed = state += 0x9E3779B97F4A7C15U;
    mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31U);
}

// The present state stays part of the next one: a value given twice must not
// start the same sequence twice.
void RandomDice::Mix(std::uint64_t bits)
{
    state = Next() ^ bits;
}

} // namespace torvenhall
