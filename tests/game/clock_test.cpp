#include "game/clock.h"

#include <chrono>

#include "activities/work.h"
#include "core/basGame.h"
#include "equipment/basEquipment.h"
#include "game/entry.h"
#include "network/network.h"
#include "support/life.h"
#include "system/convert.h"

namespace torvenhall::test
{
namespace
{

using std::chrono::sys_days;
using std::chrono::year;

class Clock : public BegunLife
{
protected:
    Clock() { PlainDays(); }
};

TEST_F(Clock, ATickAddsTheSpeedCarriesOneHourAtMostAndMidnightDropsTheMinutes)
{
    struct {
        int speed;
        TimeOfDay before;
        const char* after;
    } const cases[]{
        {15, {10, 50}, "1 января 2001 г. - 11:05"},   {30, {0, 0}, "1 января 2001 г. - 00:30"},
        {30, {9, 30}, "1 января 2001 г. - 10:00"},    {60, {9, 45}, "1 января 2001 г. - 10:45"},
        {45, {9, 20}, "1 января 2001 г. - 10:05"},    {0, {9, 20}, "1 января 2001 г. - 09:20"},
        {32767, {9, 20}, "1 января 2001 г. - 09:20"}, {60, {23, 45}, "2 января 2001 г. - 00:00"},
        {200, {9, 0}, "2 января 2001 г. - 00:00"},    {-30, {9, 0}, "2 января 2001 г. - 00:00"},
    };
    for (const auto& row : cases) {
        GameState.GameDate = FirstDay;
        GameState.GameSpeed = row.speed;
        GameState.GameTime = row.before;
        Tick();
        EXPECT_EQ(LabelShown(lblTime), row.after) << row.speed;
    }
}

TEST_F(Clock, EveryTickReseedsTheDiceFromTheSystemTimer)
{
    Tick(3);
    EXPECT_EQ(dice.reseeds, std::vector<std::optional<double>>(3));
}

TEST_F(Clock, TheCalendarIsTheRealOneFrom2001To2104)
{
    for (sys_days expected = sys_days{FirstDay}; expected < sys_days{year{2104} / 12 / 31};) {
        GameState.GameTime = {23, 30};
        GameState.Happy = GameState.Health = GameState.EatLevel = 30000;
        GameState.Money = 0;
        Tick();
        expected += std::chrono::days{1};
        ASSERT_EQ(GameState.GameDate, Date{expected});
    }
}

TEST_F(Clock, AYearHasADailyWageTwelveMonthEndsAndOneTaxDay)
{
    Set(30000, 30000, 30000, 15);
    GameState.GameSpeed = 60;
    SetWork(1);
    GameState.Alimony = 1; // counts the month ends
    int taxDays = 0;
    for (int i = 0; i < 365; ++i) {
        const Int32 before = GameState.Money;
        FinishDay();
        if (LabelShown(lblMessage).find("налоги") != std::string::npos) {
            ++taxDays;
            EXPECT_EQ(DateText(GameState.GameDate), "01.01.2002");
            // 25 % of what the day's wage and the month's charge left.
            const double due = before.value() + 10 - 1;
            EXPECT_EQ(GameState.Money, ToInt32(due - Round(due / 100 * 25)));
        } else {
            const bool monthEnded = GameState.GameDate.day() == std::chrono::day{1};
            EXPECT_EQ(GameState.Money - before, monthEnded ? 9 : 10)
                << DateText(GameState.GameDate);
        }
    }
    EXPECT_EQ(taxDays, 1);
    // 365 ordinary days and twelve month ends wear five each, taxes take ten.
    EXPECT_EQ(GameState.Happy, 30000 - 5 * (365 + 12) - 10);
}

TEST_F(Clock, AnOnlineHourIsBilledWheneverAnHourIsCarried)
{
    EnterRules(DialInternet);
    GameState.GameTime = {21, 0};
    Tick(6);
    EXPECT_EQ(DateText(GameState.GameDate), "02.01.2001");
    EXPECT_EQ(Network().TrafficHours, 3) << "midnight is an hour too";
}

TEST_F(Clock, WinningNeedsMoreThanTheTargetTheTopJobAndTheCompleteComputer)
{
    struct {
        int money, job, printer;
        bool won;
    } const cases[]{
        {5000, 12, 4, false}, {5001, 11, 4, false}, {5001, 12, 3, false}, {5001, 12, 4, true}};
    for (const auto& row : cases) {
        Begin(2, "Победитель");
        SetMoney(row.money);
        SetWork(row.job);
        int category = 0;
        for (const int part : {10, 7, 7, 7, 6, 6, 6, 6, row.printer}) {
            InstallHardware(category++, part, false);
        }
        NextLifeIs("Следующий");
        Tick();
        EXPECT_EQ(Told(), row.won ? Texts{"! Наконец-то: Вы прошли всю игру"} : Texts{});
        EXPECT_EQ(GameState.PlayerName, row.won ? "Следующий" : "Победитель");
        player.names.clear();
    }
    EXPECT_EQ(GameState.Money, 15);
    EXPECT_EQ(LabelShown(lblTime), "1 января 2001 г. - 00:00");
}

TEST_F(Clock, PausingStopsTheTimerAndResumingStartsIt)
{
    EnterRules(PauseGame);
    EXPECT_FALSE(player.timerEnabled);
    EXPECT_TRUE(player.IsOpen(Window::frmPause));
    EnterRules(ResumeGame);
    EXPECT_TRUE(player.timerEnabled);
    EXPECT_FALSE(player.IsOpen(Window::frmPause));
}

} // namespace
} // namespace torvenhall::test
