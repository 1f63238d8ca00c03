// Lives on as little as can be until the first good job, then with a margin
// for the worst night.

#include "core/GameState.h"
#include "core/basGame.h"
#include "lives/habits.h"
#include "lives/hands.h"
#include "lives/policy.h"

namespace torvenhall::lives
{

namespace
{

using namespace std::chrono_literals;

/// What a poor person can afford: found by trying.
constexpr ByLevel<Limits> Poor{{{0, -15, -50}, {0, -15, -50}, {20, 0, -20}}};
constexpr int PartsLeave = 300;

void Begin()
{
    TakeBestJob();
    AttendSchool();
}

void Morning()
{
    TakeBestJob();
    LookAfter(EarnsWell() ? SafeLimits() : OfLevel(Poor));
    if (GameState.EatLevel < -20) {
        Buy(FoodShop, BigMac); // there is no money for more
    }
    if (GameState.GameDate >= 2001y / 2 / 1) {
        AttendCourses();
    }
    if (EarnsWell()) {
        BuyParts(PartsLeave);
    }
}

/// The blow is to come, and the money that it takes with it is still there.
void Warned()
{
    if (EarnsWell()) {
        LookAfter(SafeLimits());
    }
}

} // namespace

const Policy Careful{"careful",
                     "as little as can be until the first good job, then never near death", Begin,
                     Morning, Warned};

} // namespace torvenhall::lives
