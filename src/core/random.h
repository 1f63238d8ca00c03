#pragma once

#include <cstdint>

#include "core/port.h"

namespace torvenhall
{

/// The dice of the real game: the splitmix64 generator, whose state is one word.
/// Each tick reseeds it, so that must cost next to nothing.
class RandomDice : public Dice
{
public:
    /// The same first value gives the same sequence until the first
    /// Randomize from the system timer.
    explicit RandomDice(std::uint64_t firstValue = 0) : state(firstValue) {}

    float Rnd() override;
    void Randomize(double value) override;
    void Randomize() override;

private:
    std::uint64_t Next();
    void Mix(std::uint64_t bits);

    std::uint64_t state;
};

/// The same for a game that is to be played again: the timer's reading is left
/// out.
class ReplayableDice final : public RandomDice
{
public:
    using RandomDice::RandomDice;
    void Randomize() override { RandomDice::Randomize(0); }
    using RandomDice::Randomize;
};

} // namespace torvenhall
