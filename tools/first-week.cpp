// Plays the manual's advice for the first weeks by the real rules with real
// dice, a hundred lives on two levels, and tells how many are still alive. What
// the manual promises must hold: fails when it does not.

#include <iostream>

#include "activities/education.h"
#include "activities/services.h"
#include "activities/work.h"
#include "core/basGame.h"
#include "core/random.h"
#include "core/unwinding.h"
#include "game/entry.h"
#include "game/newgame.h"
#include "support/scripted.h"

using namespace torvenhall;

static constexpr std::size_t BigMac = 0, WholeMeal = 4, Spirit = 6, ShortRest = 3;
static constexpr int MealPrice = 60;

/// A hungry person keeps the money for the meal unless death is near.
static bool CanSpend(const ServiceWindow& window, std::size_t index)
{
    const bool nearDeath = GameState.Health <= -20 || GameState.Happy <= -40;
    const bool saving = GameState.EatLevel < 20 && !nearDeath;
    const Int32 rest = GameState.Money - window.services[index].price;
    return CanAfford(window, window.services[index]) && (!saving || rest >= MealPrice);
}

/// What the manual says to do each morning, in its order.
static void Morning()
{
    for (int job = TopJob; GameState.CurrWork < job; --job) {
        ApplyForJob(job - 1);
    }
    if (GameState.EatLevel < 20 && GameState.Money >= MealPrice) {
        BuyService(FoodShop, WholeMeal);
    } else if (GameState.EatLevel < -15 && CanAfford(FoodShop, FoodShop.services[BigMac])) {
        BuyService(FoodShop, BigMac);
    }
    while (GameState.Health < 10 && CanSpend(Hospital, Spirit)) {
        BuyService(Hospital, Spirit);
    }
    while (GameState.Happy < -20 && CanSpend(Entertainment, ShortRest)) {
        BuyService(Entertainment, ShortRest);
    }
}

/// Whether a life that follows the advice is still the same after so many days.
static bool Survives(ScriptedFrontEnd& player, int level, int days)
{
    GameState.AttendCourses = GameState.AttendSchool = False;
    player.names = {NewPlayer{"a", level}, NewPlayer{"b", level}}; // the next one, at a death
    EnterRules(NewGame);
    const int life = LifeNumber();
    GameState.GameSpeed = 60;
    ApplyForJob(0);
    ToggleSchool();
    for (int day = 1; day <= days && LifeNumber() == life; ++day) {
        for (const Date today = GameState.GameDate;
             GameState.GameDate == today && LifeNumber() == life;) {
            EnterTick();
        }
        EnterRules(Morning);
        if (GameState.GameDate == std::chrono::year{2001} / 2 / 1) {
            ToggleCourses();
        }
        player.journal.clear();
        player.boxes.clear();
    }
    return LifeNumber() == life;
}

int main()
{
    ScriptedFrontEnd player;
    RandomDice dice{2001};
    StartRules({&player, &dice, &player}, ".");
    struct {
        const char* what;
        int level, days, least;
    } const promises[]{{"easy, in April", 2, 90, 93}, {"normal, after a week", 1, 7, 95}};
    bool kept = true;
    for (const auto& [what, level, days, least] : promises) {
        int alive = 0;
        for (int i = 0; i < 100; ++i) {
            alive += Survives(player, level, days) ? 1 : 0;
        }
        std::cout << what << ": " << alive << " of 100 alive, promised " << least << '\n';
        kept = kept && alive >= least;
    }
    return kept ? 0 : 1;
}
