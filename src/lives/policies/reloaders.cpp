// The careful one who saves every evening, and has the night over again.

#include "core/GameState.h"
#include "lives/habits.h"
#include "lives/policy.h"

namespace torvenhall::lives
{

namespace
{

void Begin()
{
    Careful.begin();
}

void Morning()
{
    Careful.morning();
}

void Warned()
{
    Careful.warned();
}

/// Whether anything fell by so much overnight, or the job is gone.
bool Fell(const Game& evening, int least)
{
    const auto fell = [&](Int16 Game::*vital) {
        return evening.*vital - GameState.*vital >= least;
    };
    return fell(&Game::Happy) || fell(&Game::Health) || fell(&Game::EatLevel) ||
           GameState.CurrWork < evening.CurrWork;
}

constexpr int MoreThanWear = 15; ///< on every level

bool WasBad(const Game& evening, int /*loads*/)
{
    return Fell(evening, MoreThanWear);
}

/// As long as the wages do not pay for the wear, a night without any is waited
/// for; so many times, then the wear is borne.
bool WasNotFree(const Game& evening, int loads)
{
    constexpr int patience = 8;
    return Fell(evening, !EarnsWell() && loads < patience ? 1 : MoreThanWear);
}

} // namespace

const Policy Reloader{"reloader", "the careful one, who loads the evening's game after a bad night",
                      Begin,      Morning,
                      Warned,     10,
                      WasBad};
const Policy Patient{"patient", "the reloader, who also waits for nights without wear while poor",
                     Begin,     Morning,
                     Warned,    100,
                     WasNotFree};

} // namespace torvenhall::lives
