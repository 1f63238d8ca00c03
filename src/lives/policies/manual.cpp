// The advice of the manual's last chapters, in its order.

#include "core/GameState.h"
#include "lives/habits.h"
#include "lives/hands.h"
#include "lives/policy.h"

namespace torvenhall::lives
{

namespace
{

using namespace std::chrono_literals;

constexpr int HungryBelow = 20;
constexpr int PartsLeave = 200;

/// A hungry person keeps the money for the meal unless death is near.
bool BuyUnlessSaving(const ServiceWindow& window, std::size_t service)
{
    const bool nearDeath = GameState.Health <= -20 || GameState.Happy <= -40;
    const bool saving = GameState.EatLevel < HungryBelow && !nearDeath;
    const Int32 rest = GameState.Money - PriceOf(window, service);
    return (!saving || rest >= PriceOf(FoodShop, WholeMeal)) && Buy(window, service);
}

void Begin()
{
    TakeBestJob();
    AttendSchool();
}

void Morning()
{
    TakeBestJob();
    const bool getsMeal = GameState.EatLevel < HungryBelow && Buy(FoodShop, WholeMeal);
    if (!getsMeal && GameState.EatLevel < -15) {
        Buy(FoodShop, BigMac);
    }
    while (GameState.Health < 10 && BuyUnlessSaving(Hospital, Spirit)) {
    }
    while (GameState.Happy < -20 && BuyUnlessSaving(Entertainment, ShortRest)) {
    }
    if (GameState.GameDate >= 2001y / 2 / 1) {
        AttendCourses();
    }
    if (GameState.GameDate >= 2001y / 4 / 1 && EarnsWell()) {
        BuyParts(PartsLeave);
    }
}

} // namespace

const Policy Manual{"manual", "the manual's advice, day by day; parts from April on", Begin,
                    Morning};

} // namespace torvenhall::lives
