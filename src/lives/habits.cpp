#include "lives/habits.h"

#include "core/basGame.h"
#include "equipment/hardware.h"
#include "lives/hands.h"

namespace torvenhall::lives
{

void LookAfter(const Limits& limits)
{
    while (GameState.EatLevel < limits.eat && Buy(FoodShop, WholeMeal)) {
    }
    while (GameState.Health < limits.health && Buy(Hospital, Spirit)) {
    }
    while (GameState.Happy < limits.mood && Buy(Entertainment, ShortRest)) {
    }
}

Limits SafeLimits()
{
    // The fatal bound, the worst blow, a quarrel with the wife and some wear.
    constexpr ByLevel<Limits> aNight{{{50, 15, 15}, {25, 5, 10}, {20, 0, 0}}};
    constexpr ByLevel<Limits> twoNights{{{110, 55, 75}, {45, 35, 55}, {30, 15, 25}}};
    return OfLevel(MonthEnds() ? twoNights : aNight);
}

void BuyParts(int leaving)
{
    constexpr int modem = 5;
    while (BuyNext(modem, leaving)) {
    }
    if (PriceOfNext(modem) != 0) {
        return;
    }
    for (int category = 0; category < HardwareCategories; ++category) {
        while (BuyNext(category, leaving)) {
        }
    }
}

bool EarnsWell()
{
    constexpr int wellPaid = 80;
    return GameState.WorkPay >= wellPaid;
}

} // namespace torvenhall::lives
