// The manual's advice for the first weeks, played by the real rules with real
// dice: what it promises must hold.

#include "activities/education.h"
#include "activities/services.h"
#include "activities/work.h"
#include "core/basGame.h"
#include "core/life.h"
#include "core/random.h"
#include "game/clock.h"
#include "game/entry.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

constexpr std::size_t BigMac = 0;
constexpr std::size_t WholeMeal = 4;
constexpr std::size_t Spirit = 6;
constexpr std::size_t ShortRest = 3;
constexpr int MealPrice = 60;

class FirstWeeks : public Life
{
protected:
    FirstWeeks() { Connect({&player, &realDice, &clock}); }

    /// What the manual says to do each morning, in its order.
    static void Morning()
    {
        for (int button = JobButtons - 1; GameState.CurrWork < button + 1; --button) {
            const Int16 before = GameState.CurrWork;
            ApplyForJob(button);
            if (GameState.CurrWork != before) {
                break;
            }
        }
        if (GameState.EatLevel < 20 && GameState.Money >= MealPrice) {
            BuyService(FoodShop, WholeMeal);
        } else if (GameState.EatLevel < -15) {
            BuyIfPaid(FoodShop, BigMac);
        }
        while (GameState.Health < 10 && CanSpend(Hospital, Spirit)) {
            BuyService(Hospital, Spirit);
        }
        while (GameState.Happy < -20 && CanSpend(Entertainment, ShortRest)) {
            BuyService(Entertainment, ShortRest);
        }
    }

    /// Whether one of a hundred lives that follow the advice is still the
    /// same after so many days.
    bool Survives(int level, int days)
    {
        GameState.AttendCourses = GameState.AttendSchool = False;
        Begin(level);
        player.names.push_back(NewPlayer{"следующий", level}); // asked for at a death
        const int life = LifeNumber();
        GameState.GameSpeed = 60;
        ApplyForJob(0);
        ToggleSchool();
        for (int day = 1; day <= days && LifeNumber() == life; ++day) {
            FinishDay();
            if (LifeNumber() == life) {
                EnterRules(Morning);
            }
            if (GameState.GameDate == std::chrono::year{2001} / 2 / 1) {
                ToggleCourses();
            }
        }
        player.names.clear();
        return LifeNumber() == life;
    }

    int SurvivorsOfHundred(int level, int days)
    {
        int survivors = 0;
        for (int i = 0; i < 100; ++i) {
            survivors += Survives(level, days) ? 1 : 0;
        }
        return survivors;
    }

private:
    static void BuyIfPaid(const ServiceWindow& window, std::size_t index)
    {
        if (CanAfford(window, window.services[index])) {
            BuyService(window, index);
        }
    }

    /// A hungry person keeps the money for the meal unless death is near.
    static bool CanSpend(const ServiceWindow& window, std::size_t index)
    {
        const bool nearDeath = GameState.Health <= -20 || GameState.Happy <= -40;
        const bool saving = GameState.EatLevel < 20 && !nearDeath;
        const Int32 rest = GameState.Money - window.services[index].price;
        return CanAfford(window, window.services[index]) && (!saving || rest >= MealPrice);
    }

    RandomDice realDice{2001};
};

TEST_F(FirstWeeks, OnTheEasyLevelAlmostEveryoneIsAliveInApril)
{
    EXPECT_GE(SurvivorsOfHundred(2, 90), 93);
}

TEST_F(FirstWeeks, OnTheNormalLevelTheFirstWeekIsSafe)
{
    EXPECT_GE(SurvivorsOfHundred(1, 7), 95);
}

} // namespace
} // namespace torvenhall::test
