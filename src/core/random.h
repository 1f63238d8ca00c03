#pragma once

#include <cstdint>
#include <random>

#include "core/port.h"

namespace torvenhall
{

/// The dice of the real game.
class RandomDice : public Dice
{
public:
    /// The same first value gives the same sequence until the first
    /// Randomize from the system timer.
    explicit RandomDice(std::uint64_t firstValue = 0) : engine(firstValue) {}

    float Rnd() override;
    void Randomize(double value) override;
    void Randomize() override;

private:
    void Mix(std::uint64_t bits);

    std::mt19937_64 engine;
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
