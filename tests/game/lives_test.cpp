// Life's end, the life number, the program's end and the ticks in between:
// each test fails when its decision is undone.

#include "activities/services.h"
#include "core/basGame.h"
#include "core/life.h"
#include "core/waits.h"
#include "events/basEvents.h"
#include "events/message.h"
#include "game/cheats.h"
#include "game/clock.h"
#include "game/commands.h"
#include "game/entry.h"
#include "game/newgame.h"
#include "network/network.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

class Lives : public BegunLife
{
protected:
    Lives() { PlainDays(); }

    /// The next life, which NextLifeIs("Новый") announced, is untouched, and
    /// so many boxes were shown until it began.
    void ExpectFreshLife(std::size_t boxes = 1)
    {
        EXPECT_EQ(player.boxes.size(), boxes);
        EXPECT_EQ(GameState.PlayerName, "Новый");
        EXPECT_EQ(GameState.Money, 15);
        EXPECT_EQ(GameState.Happy, 25);
        EXPECT_EQ(GameState.Health, 40);
        EXPECT_EQ(GameState.EatLevel, 75);
        EXPECT_EQ(LabelShown(lblMoney), "$15");
        EXPECT_EQ(LabelShown(lblTime), "1 января 2001 г. - 00:00");
        EXPECT_EQ(LabelShown(lblMessage), "");
        EXPECT_TRUE(player.names.empty());
    }

    /// Makes the next tick begin a day.
    static void JustBeforeMidnight()
    {
        GameState.GameDate = std::chrono::year{2001} / 6 / 14;
        GameState.GameTime = {23, 30};
        GameState.GameSpeed = 30;
    }
};

TEST_F(Lives, AFatalPurchaseTakesNothingFromTheNextLife)
{
    Set(-30, 40, 75, 300);
    player.open.insert(Window::frmHospital);
    NextLifeIs("Новый");
    EnterRules([] { BuyService(Hospital, 4); });
    EXPECT_TRUE(player.open.empty());
    ExpectFreshLife();
}

TEST_F(Lives, TaxesThatKillLeaveNoTaxOnTheNextLife)
{
    GameState.GameDate = std::chrono::year{2001} / 12 / 31;
    GameState.GameTime = {23, 30};
    Set(-60, 40, 75, 1000); // two days' wear leaves -70, the taxes take ten more
    NextLifeIs("Новый");
    Tick();
    ExpectFreshLife();
}

TEST_F(Lives, ADeathWhileAShopsRefusalIsOpenBuysNothingForTheNextLife)
{
    Set(25, 40, -34, 5);
    NextLifeIs("Новый");
    player.whileBoxOpen.push_back([&] {
        JustBeforeMidnight();
        Tick();
    });
    EnterRules([] {
        BuyService(Entertainment, 0);
        SetMoney(99999); // what the dead person's handler would do next
    });
    ExpectFreshLife(2); // the refusal and the death
}

TEST_F(Lives, CancellingTheNameAfterADeathInAShopEndsTheProgramAtOnce)
{
    Set(-30, 40, 75, 300);
    player.names.emplace_back();
    EnterRules([] { BuyService(Hospital, 4); });
    EXPECT_TRUE(player.programEnded);
    EXPECT_EQ(player.boxes.size(), 1U);
    EXPECT_EQ(player.journal.back(), "end program");
}

TEST_F(Lives, TheDeathBoxIsTheOnlyOneAndStopsTheClockWhetherATickOrAClickKills)
{
    for (const bool byTick : {true, false}) {
        Begin();
        JustBeforeMidnight();
        SetEatLevel(-34);
        NextLifeIs("Новый");
        player.whileBoxOpen.push_back([&] {
            const TimeOfDay stopped = GameState.GameTime;
            SetHealth(-500); // a second death of the same person
            Tick(10);
            EXPECT_EQ(TimeText(GameState.GameTime), TimeText(stopped));
        });
        byTick ? Tick() : EnterRules([] { SetEatLevel(-35); });
        ExpectFreshLife();
    }
}

TEST_F(Lives, NobodyDiesUnderTheWinnersBox)
{
    GameState.CurrWork = 12;
    GameState.HardCPU = 59;
    SetMoney(10001);
    NextLifeIs("Новый");
    player.whileBoxOpen.push_back([&] {
        SetHealth(-500);
        Tick(10);
    });
    Tick();
    EXPECT_EQ(player.boxes.at(0).title, "Наконец-то");
    ExpectFreshLife();
}

TEST_F(Lives, TheClockOnlyShowsItselfWhileANewGameAsksForAName)
{
    GameState.GameDate = std::chrono::year{2003} / 5 / 5;
    NextLifeIs("Новый");
    player.whileDialogOpen.push_back([&] {
        Tick(200);
        EXPECT_EQ(LabelShown(lblTime), "5 мая 2003 г. - 00:00") << "shown, not advanced";
        EXPECT_NO_THROW(SetHealth(-500)) << "nobody lives who could die";
    });
    EnterRules(NewGame);
    ExpectFreshLife(0);
}

TEST_F(Lives, ACodeTypedForADeadPersonDoesNotHelpTheNextOne)
{
    SetHealth(-49);
    NextLifeIs("Новый");
    player.inputs.emplace_back("QUOKKAFOX");
    player.whileDialogOpen.push_back([&] {
        JustBeforeMidnight();
        Tick();
    });
    // The box that is open belongs to the old life, the dialog to the new one.
    player.whileDialogOpen.emplace_back();
    EnterRules(EnterCheat);
    ExpectFreshLife();
}

TEST_F(Lives, ANewGameDuringTheDaysMessageAbandonsTheOldDay)
{
    JustBeforeMidnight();
    GameState.WifeFound = GameState.Married = True;
    dice.values = {DrawOf(32, 50)};
    NextLifeIs("Новый");
    player.duringWait.push_back([] { EnterRules(NewGame); });
    Tick();
    ExpectFreshLife(0);
    EXPECT_FALSE(Running::Now(Running::What::Day));
}

TEST_F(Lives, TimeGoesOnDuringAMessageButNoSecondDayBegins)
{
    JustBeforeMidnight();
    GameState.WifeFound = GameState.Married = True;
    SetMoney(1000);
    EnterRules(DialInternet);
    dice.values = {DrawOf(29, 50)};
    player.duringWait.push_back([&] {
        Tick(3);
        EXPECT_EQ(TimeText(GameState.GameTime), "01:30");
        Tick(200);
        EXPECT_EQ(TimeText(GameState.GameTime), "23:30") << "the tick to midnight is dropped whole";
        EXPECT_EQ(Network().TrafficHours, 24) << "it bills no hour either";
        EXPECT_EQ(DateText(GameState.GameDate), "14.06.2001");
    });
    Tick();
    EXPECT_EQ(LabelShown(lblTime), "15 июня 2001 г. - 23:30");
    EXPECT_EQ(GameState.Money, 990);
    EXPECT_EQ(GameState.EatLevel, 70);
    EXPECT_EQ(player.messages.size(), 1U);
}

TEST_F(Lives, TicksAreDroppedUnderATicksBoxButRunUnderAClicksBox)
{
    JustBeforeMidnight();
    dice.values = {DrawOf(1, 50), 0.5F, 0.5F, DrawOf(24, 25)}; // the wedding
    player.whileBoxOpen.push_back([&] {
        Tick(5);
        EXPECT_EQ(TimeText(GameState.GameTime), "00:00");
    });
    Tick();
    EXPECT_EQ(GameState.Married, True);

    player.whileBoxOpen.push_back([&] {
        Tick(5);
        EXPECT_EQ(TimeText(GameState.GameTime), "02:30");
    });
    EnterRules([] { MsgBox("?", "?", Icon::Information); });
}

TEST_F(Lives, TheVirusWindowLetsTimeGoOnAndTheDayWaits)
{
    JustBeforeMidnight();
    GameState.SoftOS = 1;
    dice.values = {DrawOf(21, 50)};
    player.whileVirusOpen.push_back([&] {
        Tick(100);
        EXPECT_EQ(TimeText(GameState.GameTime), "23:30");
        // A box opened by a click in that window does not stop the clock either.
        player.whileBoxOpen.push_back([&] {
            GameState.GameTime = {5, 0};
            Tick();
        });
        EnterRules([] { MsgBox("?", "?", Icon::Information); });
        EXPECT_EQ(TimeText(GameState.GameTime), "05:30");
    });
    Tick();
    EXPECT_EQ(DateText(GameState.GameDate), "15.06.2001");
}

TEST_F(Lives, ADeathInTheVirusWindowAbandonsTheDay)
{
    JustBeforeMidnight();
    GameState.SoftOS = 1;
    dice.values = {DrawOf(21, 50)};
    NextLifeIs("Новый");
    player.whileVirusOpen.push_back([] { EnterRules([] { SetHealth(-50); }); });
    Tick();
    ExpectFreshLife();
}

TEST_F(Lives, AnsweringNoEndsTheProgramAndUnwindsEverything)
{
    JustBeforeMidnight();
    GameState.WifeFound = GameState.Married = True;
    dice.values = {DrawOf(29, 50)};
    const Int32 money = GameState.Money;
    player.answers.push_back(Answer::No);
    player.duringWait.push_back([] { EnterRules(CloseProgram); });
    Tick();
    EXPECT_TRUE(player.programEnded);
    EXPECT_EQ(GameState.Money, money) << "the interrupted day charges nothing";
    EXPECT_EQ(player.journal.back(), "end program");
}

TEST_F(Lives, ADeathUnderTheClosingQuestionKeepsTheProgramRunning)
{
    SetHealth(-49);
    NextLifeIs("Новый");
    player.answers.push_back(Answer::No);
    player.whileBoxOpen.push_back([&] {
        JustBeforeMidnight();
        Tick();
    });
    EnterRules(CloseProgram);
    EXPECT_FALSE(player.programEnded);
    ExpectFreshLife(2); // the question and the death
}

} // namespace
} // namespace torvenhall::test
