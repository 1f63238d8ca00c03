// Spends as late as can be and learns only from what is spare.

#include "core/GameState.h"
#include "lives/habits.h"
#include "lives/hands.h"
#include "lives/policy.h"

namespace torvenhall::lives
{

namespace
{

/// Red figures are when a saver goes shopping.
constexpr Limits OnTheBrink{-10, -30, -50};
constexpr int NestEgg = 300; ///< before anything is spent on learning or parts

void Begin()
{
    TakeBestJob();
}

void Morning()
{
    TakeBestJob();
    LookAfter(OnTheBrink);
    if (GameState.Money >= NestEgg) {
        AttendSchool();
        AttendCourses();
    } else {
        LeaveSchool();
        LeaveCourses();
    }
    if (EarnsWell()) {
        BuyParts(GameState.WinMoney.value());
    }
}

} // namespace

const Policy Saver{"saver", "spends at the last moment, learns and buys from what is spare", Begin,
                   Morning};

} // namespace torvenhall::lives
