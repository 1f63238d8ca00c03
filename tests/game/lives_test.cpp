// Life's end, the life number, the program's end and the ticks in between:
// each row and each test fails when its decision is undone.

#include "activities/services.h"
#include "core/running.h"
#include "core/waits.h"
#include "game/cheats.h"
#include "game/clock.h"
#include "game/commands.h"
#include "network/network.h"
#include "savegame/savegame.h"
#include "support/life.h"

using namespace torvenhall;

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
    static void Die()
    {
        EnterRules([] { SetHealth(-50); });
    }
    static void Quit() { EnterRules(EndProgram); }
    static void DieAgain()
    {
        const TimeOfDay stopped = GameState.GameTime;
        EXPECT_NO_THROW(SetHealth(-500));
        Tick(10);
        EXPECT_EQ(GameState.GameTime, stopped);
    }
};

TEST_F(Lives, WhateverADeathOrTheProgramsEndInterruptsTouchesNobodyAfterIt)
{
    // clang-format off
    struct {
        const char* what;
        const char* given;
        std::function<void()> meanwhile, happens;
        std::size_t boxes = 1; ///< before the new life
        bool ends = false;     ///< the program, instead of a new life
    } const rows[]{
        {"a purchase", "Happy=-30 Money=300", [] {}, [] { BuyService(Hospital, 4); }},
        {"taxes after two days' wear", "Happy=-60 Money=1000", [] {}, [] {
             JustBeforeMidnight();
             GameState.GameDate = MakeDate(31, 12, 2001);
             ClockTick();
         }},
        {"under a shop's refusal", "EatLevel=-34", Midnight, [] {
             BuyService(Entertainment, 0);
             SetMoney(99999); // what the dead person's handler would do next
         }, 2},
        {"under the winner's box", "CurrWork=12 HardCPU=59 Money=10001", DieAgain, ClockTick},
        {"under a tick's death box", "EatLevel=-34", DieAgain, Midnight},
        {"under a click's death box", "", DieAgain, Die},
        {"under the cheat console", "Health=-49", Midnight, EnterCheat},
        {"a new game during the day's message", "", [] { EnterRules(NewGame); }, [this] { DayOf(32); }, 0},
        {"in the virus window", "", Die, [this] { DayOf(21); }},
        {"under the closing question", "Health=-49", Midnight, CloseProgram, 1, true},
        {"under the save dialog", "", Die, SaveGame},
        {"while the name is asked for", "", DieAgain, NewGame, 0},
        {"no name for the next life", "", [] {}, Die, 1, true},
        {"the answer no during a day's message", "", [] { EnterRules(CloseProgram); }, [this] { DayOf(29); }, 1, true},
        {"quitting in a network's pause", "", Quit, DialInternet, 0, true},
        {"quitting under the save dialog", "", Quit, SaveGame, 0, true},
    };
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        StartRules({&player, &dice, &player}, folder);
        player.programEnded = false;
        Begin();
        Assign(row.given);
        NextLifeIs("Новый");
        player.names = {row.ends ? std::nullopt : player.names[0]};
        player.open = {"frmHospital"};
        player.inputs = {"QUOKKAFOX"};
        player.games = {"a"};
        player.answers = {Answer::No};
        Meanwhile(row.meanwhile);
        EnterRules(row.happens);
        EXPECT_EQ(Told().size(), row.boxes);
        EXPECT_EQ(player.journal.back() == "end program", row.ends);
        EXPECT_EQ(GameState.Money, 15);
        EXPECT_TRUE(ListSavedGames().empty() && Network().InetConnected == False);
        if (!row.ends) {
            ExpectFreshLife("Новый");
            EXPECT_TRUE(player.open.empty());
            EXPECT_FALSE(Running::Now(Running::What::Day));
        }
    }
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
