// What the day brings goes to the casino; the rest is an afterthought.

#include "core/GameState.h"
#include "lives/hands.h"
#include "lives/policy.h"

namespace torvenhall::lives
{

namespace
{

void Begin()
{
    TakeBestJob();
}

void Morning()
{
    TakeBestJob();
    if (GameState.EatLevel < 0 && !Buy(FoodShop, WholeMeal)) {
        Buy(FoodShop, BigMac);
    }
    if (GameState.Health < -20) {
        Buy(Hospital, Spirit);
    }
    if (GameState.EatLevel >= 0) {
        Buy(Entertainment, Casino);
    }
}

} // namespace

const Policy Gambler{"gambler", "a night at the casino whenever the money reaches", Begin, Morning};

} // namespace torvenhall::lives
