#include "core/random.h"

#include <bit>
#include <chrono>

namespace torvenhall
{

float RandomDice::Rnd()
{
    // 24 bits are all that single precision holds, so 1 is never reached.
    return static_cast<float>(engine() >> 40U) * 0x1p-24F;
}

void RandomDice::Randomize(double value)
{
    Mix(std::bit_cast<std::uint64_t>(value));
}

void RandomDice::Randomize()
{
    Mix(static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()));
}

// The present state stays part of the next one: a value given twice must not
// start the same sequence twice.
void RandomDice::Mix(std::uint64_t bits)
{
    const std::uint64_t first = engine();
    const std::uint64_t second = engine();
    std::seed_seq mixture{
        static_cast<std::uint32_t>(first),  static_cast<std::uint32_t>(first >> 32U),
        static_cast<std::uint32_t>(second), static_cast<std::uint32_t>(second >> 32U),
        static_cast<std::uint32_t>(bits),   static_cast<std::uint32_t>(bits >> 32U),
    };
    engine.seed(mixture);
}

} // namespace torvenhall
