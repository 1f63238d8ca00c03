// School and courses from the first day, whatever it costs.

#include "core/GameState.h"
#include "lives/habits.h"
#include "lives/hands.h"
#include "lives/policy.h"

namespace torvenhall::lives
{

namespace
{

constexpr Limits Modest{0, -10, -30};
constexpr int PartsLeave = 500;

void Begin()
{
    TakeBestJob();
    AttendSchool();
    AttendCourses();
}

void Morning()
{
    TakeBestJob();
    LookAfter(EarnsWell() ? SafeLimits() : Modest);
    if (EarnsWell()) {
        BuyParts(PartsLeave);
    }
}

} // namespace

const Policy Student{"student", "school and courses from the first day, on credit if need be",
                     Begin, Morning};

} // namespace torvenhall::lives
