// Lives on as little as can be until the first good job, then with a margin
// for the worst night; and two who also use what the game's menus offer.

#include "core/GameState.h"
#include "core/basGame.h"
#include "lives/habits.h"
#include "lives/hands.h"
#include "lives/policy.h"
#include <cstdlib>

namespace torvenhall::lives
{

namespace
{

using namespace std::chrono_literals;
static int P(const char* n, int d)
{
    const char* v = std::getenv(n);
    return v ? std::atoi(v) : d;
}

void Begin()
{
    TakeBestJob();
    AttendSchool();
}

void Morning()
{
    static const Limits poor{P("E", 0), P("H", -20), P("M", -40)};
    static const int reserve = P("R", 300), courses = P("C", 2), stock = P("S", 0),
                     slope = P("D", 0);
    TakeBestJob();
    Limits now = poor;
    const int age =
        int((std::chrono::sys_days{GameState.GameDate} - std::chrono::sys_days{FirstDay}).count());
    now.eat -= age * P("DE", slope) / 90;
    now.health -= age * P("DH", slope) / 90;
    now.mood -= age * P("DM", slope) / 90;
    if (stock &&
        Date{std::chrono::sys_days{GameState.GameDate} + std::chrono::days{stock}}.month() !=
            GameState.GameDate.month())
        now = Limits{P("SE", 60), P("SH", 20), P("SM", 0)};
    LookAfter(EarnsWell() ? SafeLimits() : now);
    if (!EarnsWell() && GameState.EatLevel < -20) {
        Buy(FoodShop, BigMac);
    }
    if (GameState.GameDate >= Date{2001y, std::chrono::month(unsigned(courses)), 1d}) {
        AttendCourses();
    }
    if (EarnsWell()) {
        BuyParts(reserve);
    }
}

/// The blow is to come, and the money that it takes with it is still there.
void Warned()
{
    if (EarnsWell()) {
        LookAfter(SafeLimits());
    }
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

constexpr int MoreThanWear = 15;

bool WasBad(const Game& evening, int /*loads*/)
{
    return Fell(evening, MoreThanWear);
}

/// As long as the wages do not pay for the wear, nights without any are waited for.
bool WasNotFree(const Game& evening, int loads)
{
    static int loadsForFreeNight = P("W", 12);
    const bool poor = evening.WorkPay < 80;
    return Fell(evening, poor && loads < loadsForFreeNight ? 1 : MoreThanWear);
}

} // namespace

const Policy Careful{"careful",
                     "as little as can be until the first good job, then never near death", Begin,
                     Morning, Warned};
const Policy Reloader{"reloader", "the careful one, who loads the evening's game after a bad night",
                      Begin,      Morning,
                      Warned,     10,
                      WasBad};
const Policy Patient{"patient", "the reloader, who also waits for nights without wear while poor",
                     Begin,     Morning,
                     Warned,    60,
                     WasNotFree};

} // namespace torvenhall::lives
