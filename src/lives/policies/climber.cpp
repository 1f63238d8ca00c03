// Begins on the easy level, as the menu allows, and goes back to the chosen one
// when a margin for its nights is there.

#include "core/GameState.h"
#include "core/basGame.h"
#include "lives/habits.h"
#include "lives/hands.h"
#include "lives/policy.h"

namespace torvenhall::lives
{

namespace
{

constexpr int Easy = 2;
int chosen = Easy; ///< in the name dialog

void Begin()
{
    chosen = GameState.GameLevel.value();
    ChooseLevel(Easy);
    TakeBestJob();
    AttendSchool();
}

void Morning()
{
    if (EarnsWell()) {
        ChooseLevel(chosen);
    }
    Careful.morning();
}

void Warned()
{
    Careful.warned();
}

} // namespace

const Policy Climber{"climber", "the careful one, on the easy level until the first good job",
                     Begin, Morning, Warned};

} // namespace torvenhall::lives
