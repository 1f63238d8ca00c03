// The ticks, life's end, the life number and the program's end:
// each row and each test fails when its decision is undone.

#include "activities/services.h"
#include "activities/work.h"
#include "core/running.h"
#include "core/waits.h"
#include "game/cheats.h"
#include "game/clock.h"
#include "game/commands.h"
#include "network/network.h"
#include "savegame/savegame.h"
#include "support/life.h"

using namespace torvenhall;
using std::chrono::sys_days;

class Lives : public BegunLife
{
protected:
    Lives() { dice.otherwise = DrawOf(9, 25); } // nothing but the ordinary wear

    static void Midnight()
    {
        JustBeforeMidnight();
        EnterTick();
    }
    /// A day of a married person on which this is drawn.
    void DayOf(int draw)
    {
        Assign("WifeFound=-1 Married=-1 SoftOS=1");
        dice.values = {DrawOf(draw, 50)};
        Midnight();
    }
};

TEST_F(Lives, WhateverADeathOrTheProgramsEndInterruptsTouchesNobodyAfterIt)
{
    const std::map<std::string, std::function<void()>> deeds{
        {"nothing", [] {}},
        {"treatment", [] { BuyService(Hospital, 4); }},
        {"refusal",
         [] {
             BuyService(Entertainment, 0);
             SetMoney(99999); // what the dead person's handler would do next
         }},
        {"year",
         [] {
             JustBeforeMidnight();
             GameState.GameDate = MakeDate(31, 12, 2001);
             ClockTick();
         }},
        {"tick", ClockTick},
        {"midnight", Midnight},
        {"quarrel", [this] { DayOf(29); }},
        {"wish", [this] { DayOf(32); }},
        {"virus", [this] { DayOf(21); }},
        {"death", [] { EnterRules([] { SetHealth(-50); }); }},
        {"again",
         [] {
             const TimeOfDay stopped = GameState.GameTime;
             EXPECT_NO_THROW(SetHealth(-500));
             Tick(10);
             EXPECT_EQ(GameState.GameTime, stopped);
         }},
        {"cheat", EnterCheat},
        {"game", [] { EnterRules(NewGame); }},
        {"save", SaveGame},
        {"dial", DialInternet},
        {"question", [] { EnterRules(CloseProgram); }},
        {"end", [] { EnterRules(EndProgram); }}};
    // "virus death": in what the virus' day opens, death comes.
    ExpectEach("lives.txt", [&](const std::string& line) {
        SCOPED_TRACE(line);
        std::istringstream words(line);
        std::string happens, meanwhile, name, fields;
        std::getline(words >> happens >> meanwhile >> name, fields);
        StartRules({&player, &dice, &player}, folder);
        player.programEnded = false;
        Begin();
        Assign(fields);
        NextLifeIs(name);
        player.names[0] = name == "nobody" ? std::nullopt : player.names[0];
        player.open = {"frmHospital"};
        player.inputs = {"QUOKKAFOX"};
        player.games = {"a"};
        player.answers = {Answer::No};
        Meanwhile(deeds.at(meanwhile));
        EnterRules(deeds.at(happens));
        EXPECT_EQ(GameState.Money, 15);
        EXPECT_TRUE(ListSavedGames().empty() && Network().InetConnected == False);
        if (player.journal.back() == "end program") {
            return Joined(Told()) + " - the end";
        }
        ExpectFreshLife(name);
        EXPECT_TRUE(player.open.empty());
        EXPECT_FALSE(Running::Now(Running::What::Day));
        return Joined(Told());
    });
}

TEST_F(Lives, TimeGoesOnDuringAMessageButNoSecondDayBegins)
{
    EnterRules(DialInternet);
    Meanwhile([&] {
        Tick(3);
        EXPECT_EQ(LabelShown(lblTime), "15 июня 2001 г. - 01:30") << "the day that has begun";
        Tick(200);
        EXPECT_EQ(GameState.GameTime, (TimeOfDay{23, 30})) << "the tick to midnight is dropped";
        EXPECT_EQ(Network().TrafficHours, 24) << "it bills no hour either";
    });
    DayOf(29);
    EXPECT_EQ(LabelShown(lblTime), "15 июня 2001 г. - 23:30");
    EXPECT_EQ(GameState.Money, 5);
    EXPECT_EQ(GameState.EatLevel, 70) << "one day's wear";
}

TEST_F(Lives, APausePausesTheMessageAndTheRestOfItsDay)
{
    int waits = 0;
    Meanwhile([&] {
        PauseGame();
        const std::string typed = LabelShown(lblMessage);
        player.atEachWait = [&, typed] {
            EXPECT_EQ(LabelShown(lblMessage), typed);
            if (++waits == 2) {
                player.atEachWait = [] {};
                ResumeGame();
            }
        };
    });
    DayOf(29);
    EXPECT_EQ(waits, 2);
    EXPECT_GT(player.seconds, 3600) << "an hour of pause does not count";
    EXPECT_EQ(GameState.Money, 5);
}

TEST_F(Lives, TicksAreDroppedUnderATicksBoxButRunUnderAClicksBoxAndTheVirusWindow)
{
    const auto clickForABox = [this] {
        GameState.GameTime = {2, 0};
        Meanwhile([] { Tick(5); });
        EnterRules([] { MsgBox("?", "?", Icon::Information); });
        EXPECT_EQ(GameState.GameTime, (TimeOfDay{4, 30}));
    };
    clickForABox();
    dice.values = {DrawOf(1, 50), 0.5F, 0.5F, DrawOf(24, 25)}; // the wedding
    Meanwhile([] { Tick(5); });
    Midnight();
    EXPECT_EQ(LabelShown(lblTime), "15 июня 2001 г. - 00:00");
    Meanwhile([&] {
        Tick(100);
        EXPECT_EQ(GameState.GameTime, (TimeOfDay{23, 30})) << "the day waits for the window";
        clickForABox();
    });
    DayOf(21);
    EXPECT_EQ(LabelShown(lblTime), "15 июня 2001 г. - 04:30");
}

TEST_F(Lives, ATickAddsTheSpeedCarriesOneHourAtMostAndTheRichestWins)
{
    EnterRules(DialInternet); // counts the hours
    TryEach("clock.txt", {{"at", [this](int time) {
                               GameState.GameTime = {time / 100, time % 100};
                               const Int16 hours = Network().TrafficHours;
                               dice.calls.clear();
                               ClockTick();
                               const bool billed = Network().TrafficHours > hours;
                               player.journal.emplace_back(billed ? "billed" : "");
                               EXPECT_TRUE(dice.calls.starts_with(" seed")) << "from the timer";
                           }}});
}

TEST_F(Lives, EachDayOfACenturyIsPaidEachMonthsEndChargedAndEachYearsEndTaxed)
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
    JustBeforeMidnight();
    GameState.GameDate = LastDay;
    Tick();
    EXPECT_EQ(GameState.GameDate, LastDay) << "the calendar has no further one";
}
