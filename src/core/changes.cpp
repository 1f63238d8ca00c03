#include "core/changes.h"

#include "core/basGame.h"

namespace torvenhall
{

void Apply(const Change& change)
{
    switch (change.stat) {
    case Stat::None:
        break;
    case Stat::Money:
        SetMoney(GameState.Money + change.amount);
        break;
    case Stat::Happy:
        SetHappy(GameState.Happy + change.amount);
        break;
    case Stat::Health:
        SetHealth(GameState.Health + change.amount);
        break;
    case Stat::EatLevel:
        SetEatLevel(GameState.EatLevel + change.amount);
        break;
    }
}

} // namespace torvenhall
