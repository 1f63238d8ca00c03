#include "core/changes.h"

#include "core/basGame.h"

namespace torvenhall
{

namespace
{

constexpr EnumArray<Stat, void (*)(int amount)> Setters{{
    [](int) {},
    [](int amount) { SetMoney(GameState.Money + amount); },
    [](int amount) { SetHappy(GameState.Happy + amount); },
    [](int amount) { SetHealth(GameState.Health + amount); },
    [](int amount) { SetEatLevel(GameState.EatLevel + amount); },
}};

} // namespace

void Apply(const Change& change)
{
    Setters[change.stat](change.amount);
}

void ApplyAll(std::span<const Change> changes)
{
    for (const Change& change : changes) {
        Apply(change);
    }
}

} // namespace torvenhall
