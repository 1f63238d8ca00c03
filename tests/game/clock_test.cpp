#include "game/clock.h"

#include "activities/work.h"
#include "network/network.h"
#include "support/life.h"

using namespace torvenhall;
using std::chrono::sys_days;

class Clock : public BegunLife
{
protected:
    Clock() { dice.otherwise = DrawOf(9, 25); } // nothing but the ordinary wear
};

TEST_F(Clock, ATickAddsTheSpeedCarriesOneHourAtMostAndMidnightDropsTheMinutes)
{
    EnterRules(DialInternet); // counts the hours
    // clang-format off
    struct {
        int speed;
        TimeOfDay before;
        const char* after;
        int hours;
    } const rows[]{
        {15, {10, 50}, "1 января 2001 г. - 11:05", 1}, {30, {0, 0}, "1 января 2001 г. - 00:30", 0},
        {29, {9, 30}, "1 января 2001 г. - 09:59", 0}, {30, {9, 30}, "1 января 2001 г. - 10:00", 1},
        {60, {9, 45}, "1 января 2001 г. - 10:45", 1}, {0, {9, 20}, "1 января 2001 г. - 09:20", 0},
        {32767, {9, 20}, "1 января 2001 г. - 09:20", 0}, {60, {23, 45}, "2 января 2001 г. - 00:00", 1},
        {200, {9, 0}, "2 января 2001 г. - 00:00", 1}, {-30, {9, 0}, "2 января 2001 г. - 00:00", 0},
    };
    // clang-format on
    for (const auto& row : rows) {
        GameState.GameDate = FirstDay;
        GameState.GameSpeed = row.speed;
        GameState.GameTime = row.before;
        const Int16 hours = Network().TrafficHours;
        dice.calls.clear();
        Tick();
        EXPECT_EQ(LabelShown(lblTime), row.after) << row.speed;
        EXPECT_EQ(Network().TrafficHours - hours, row.hours) << row.speed;
        EXPECT_TRUE(dice.calls.starts_with(" seed")) << "from the system timer";
    }
}

TEST_F(Clock, EachDayOfACenturyIsPaidEachMonthsEndChargedAndEachYearsEndTaxed)
{
    SetWork(1);
    for (sys_days today{FirstDay}; today < sys_days{std::chrono::year{2105} / 1 / 1};) {
        const Date before{today};
        const Date after{today += std::chrono::days{1}};
        JustBeforeMidnight();
        GameState.GameDate = before;
        Assign("Happy=30000 Health=30000 EatLevel=30000 Money=996 Alimony=3");
        Tick();
        const bool monthEnds = before.month() != after.month();
        const bool yearEnds = before.year() != after.year();
        // The wage, then the alimony, then a quarter of the 1003 that they leave.
        ASSERT_EQ(GameState.Money, yearEnds ? 752 : monthEnds ? 1003 : 1006) << DateText(after);
        ASSERT_EQ(GameState.Happy, 30000 - (yearEnds ? 20 : monthEnds ? 10 : 5));
        ASSERT_EQ(GameState.GameDate, after);
    }
}

TEST_F(Clock, WinningNeedsMoreThanTheTargetTheTopJobAndTheCompleteComputer)
{
    const std::string computer = "WinMoney=5000 HardCPU=10 HardRAM=7 HardVideo=7 HardHDD=7 "
                                 "HardCDROM=6 HardComm=6 HardSound=6 HardScanner=6 HardPrinter=";
    for (const char* rest : {"4 Money=5000 CurrWork=12", "4 Money=5001 CurrWork=11",
                             "3 Money=5001 CurrWork=12", "4 Money=5001 CurrWork=12"}) {
        EXPECT_EQ(Told(), Texts{});
        Assign(computer + rest);
        NextLifeIs("Следующий");
        Tick();
    }
    EXPECT_EQ(Told(), Texts{"! Наконец-то: Вы прошли всю игру"});
    ExpectFreshLife("Следующий");
    Assign("Money=20000 CurrWork=12 HardCPU=20000 HardRAM=20000");
    Tick();
    EXPECT_EQ(Told(), Texts{}) << "an overflowing score is no win and nobody's box";
}
