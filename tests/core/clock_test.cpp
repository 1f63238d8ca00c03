#include "core/clock.h"

#include <chrono>

#include "activities/work.h"
#include "core/basGame.h"
#include "core/entry.h"
#include "core/life.h"
#include "equipment/basEquipment.h"
#include "network/network.h"
#include "support/life.h"
#include "system/convert.h"

namespace torvenhall::test
{
namespace
{

using std::chrono::day;
using std::chrono::month;
using std::chrono::year;

class Clock : public Life
{
protected:
    Clock()
    {
        Begin();
        PlainDays();
    }

    /// Vitals so high that no number of days kills.
    static void Immortal()
    {
        SetHealth(30000);
        SetEatLevel(30000);
        SetHappy(30000);
    }
};

TEST_F(Clock, ATickAddsTheSpeedAndCarriesOneHourAtMost)
{
    struct {
        int speed;
        TimeOfDay before, after;
    } const cases[]{
        {15, {10, 50}, {11, 5}},   {30, {0, 0}, {0, 30}},  {30, {9, 30}, {10, 0}},
        {60, {9, 45}, {10, 45}},   {45, {9, 20}, {10, 5}}, {0, {9, 20}, {9, 20}},
        {32767, {9, 20}, {9, 20}},
    };
    for (const auto& row : cases) {
        GameState.GameSpeed = row.speed;
        GameState.GameTime = row.before;
        Tick();
        EXPECT_EQ(TimeText(GameState.GameTime), TimeText(row.after)) << row.speed;
        EXPECT_EQ(GameState.GameDate, FirstDay);
    }
}

TEST_F(Clock, MidnightDropsTheMinutesAndBeginsTheNextDay)
{
    GameState.GameSpeed = 60;
    GameState.GameTime = {23, 45};
    Tick();
    EXPECT_EQ(LabelShown(Label::lblTime), "2 января 2001 г. - 00:00");
}

TEST_F(Clock, ASpeedThatMakesNoTimeOfDayBeginsTheNextDay)
{
    for (const int speed : {200, -30}) {
        GameState.GameDate = FirstDay;
        GameState.GameTime = {9, 0};
        GameState.GameSpeed = speed;
        Tick();
        EXPECT_EQ(LabelShown(Label::lblTime), "2 января 2001 г. - 00:00") << speed;
    }
}

TEST_F(Clock, EveryTickReseedsTheDiceFromTheSystemTimer)
{
    Tick(3);
    EXPECT_EQ(dice.reseeds, std::vector<std::optional<double>>(3));
}

TEST_F(Clock, TheCalendarIsTheRealOneFrom2001To2104)
{
    using std::chrono::sys_days;
    Immortal();
    GameState.GameSpeed = 60;
    for (sys_days expected = sys_days{FirstDay}; expected < sys_days{year{2104} / 12 / 31};) {
        GameState.GameTime = {23, 0};
        GameState.Happy = GameState.Health = GameState.EatLevel = 30000;
        GameState.Money = 0;
        Tick();
        expected += std::chrono::days{1};
        ASSERT_EQ(GameState.GameDate, Date{expected});
    }
}

TEST_F(Clock, AYearHasADailyWageTwelveMonthEndsAndOneTaxDay)
{
    Immortal();
    GameState.GameSpeed = 60;
    SetWork(1);
    GameState.Alimony = 1; // counts the month ends
    int taxDays = 0;
    for (int i = 0; i < 365; ++i) {
        const Int32 before = GameState.Money;
        FinishDay();
        const bool taxed = LabelShown(Label::lblMessage).find("налоги") != std::string::npos;
        if (taxed) {
            ++taxDays;
            EXPECT_EQ(DateText(GameState.GameDate), "01.01.2002");
            // 25 % of what the day's wage and the month's charge left.
            const double due = before.value() + 10 - 1;
            EXPECT_EQ(GameState.Money, ToInt32(due - Round(due / 100 * 25)));
        } else {
            const bool monthEnded = GameState.GameDate.day() == day{1};
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
    dice.otherwise = DrawOf(1, 50);
    player.duringWait = {};
    EnterRules(DialInternet);
    ASSERT_EQ(Network().InetConnected, True);
    GameState.GameSpeed = 30;
    GameState.GameTime = {21, 0};
    Tick(6);
    EXPECT_EQ(DateText(GameState.GameDate), "02.01.2001");
    EXPECT_EQ(Network().TrafficHours, 3) << "midnight is an hour too";
}

TEST_F(Clock, WinningNeedsMoreThanTheTargetTheTopJobAndTheCompleteComputer)
{
    const auto complete = [this] {
        Begin(2, "Победитель");
        SetMoney(5001);
        SetWork(12);
        const int best[]{10, 7, 7, 7, 6, 6, 6, 6, 4};
        for (int category = 0; category < 9; ++category) {
            InstallHardware(category, best[category], false);
        }
        player.Forget();
    };
    const std::vector<std::string> none;

    complete();
    SetMoney(5000);
    Tick();
    EXPECT_EQ(player.BoxTexts(), none);
    complete();
    SetWork(11);
    Tick();
    EXPECT_EQ(player.BoxTexts(), none);
    complete();
    InstallHardware(8, 3, false);
    Tick();
    EXPECT_EQ(player.BoxTexts(), none);

    complete();
    player.names.push_back(NewPlayer{"Следующий", 1});
    Tick();
    EXPECT_EQ(player.BoxTexts(), std::vector<std::string>{"Наконец-то: Вы прошли всю игру"});
    EXPECT_EQ(player.boxes[0].icon, Icon::Exclamation);
    EXPECT_EQ(GameState.PlayerName, "Следующий");
    EXPECT_EQ(GameState.Money, 15);
    EXPECT_EQ(LabelShown(Label::lblTime), "1 января 2001 г. - 00:00");
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
