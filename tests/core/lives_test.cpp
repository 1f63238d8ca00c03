// Life's end, the life number, the program's end and the ticks in between:
// each test fails when its decision is undone.

#include "activities/services.h"
#include "core/basGame.h"
#include "core/cheats.h"
#include "core/clock.h"
#include "core/commands.h"
#include "core/entry.h"
#include "core/life.h"
#include "core/newgame.h"
#include "core/outside.h"
#include "events/basEvents.h"
#include "events/message.h"
#include "network/network.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

class Lives : public Life
{
protected:
    Lives()
    {
        Begin();
        PlainDays();
    }

    void NextLifeIs(const char* name) { player.names.push_back(NewPlayer{name, 1}); }

    void ExpectFreshLife(const char* name)
    {
        EXPECT_EQ(GameState.PlayerName, name);
        EXPECT_EQ(GameState.Money, 15);
        EXPECT_EQ(GameState.Happy, 25);
        EXPECT_EQ(GameState.Health, 40);
        EXPECT_EQ(GameState.EatLevel, 75);
        EXPECT_EQ(LabelShown(Label::lblMoney), "$15");
        EXPECT_EQ(LabelShown(Label::lblTime), "1 января 2001 г. - 00:00");
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
    SetHappy(-30);
    SetMoney(300);
    player.open.insert(Window::frmHospital);
    player.Forget();
    NextLifeIs("Новый");
    EnterRules([] { BuyService(Hospital, 4); });
    EXPECT_EQ(player.boxes.size(), 1U);
    EXPECT_TRUE(player.open.empty());
    ExpectFreshLife("Новый");
}

TEST_F(Lives, StarvationAtMidnightBeginsTheNextLifeOnItsFirstDay)
{
    JustBeforeMidnight();
    SetEatLevel(-30);
    player.Forget();
    NextLifeIs("Новый");
    Tick();
    EXPECT_EQ(player.BoxTexts(),
              std::vector<std::string>{
                  "Желаю тебе быть большим и тольстым: Вы умерли голодной смертью!"});
    ExpectFreshLife("Новый");
}

TEST_F(Lives, TaxesThatKillLeaveNoTaxOnTheNextLife)
{
    GameState.GameDate = std::chrono::year{2001} / 12 / 31;
    GameState.GameTime = {23, 30};
    SetMoney(1000);
    SetHappy(-60); // two days' wear leaves -70, the taxes take ten more
    player.Forget();
    NextLifeIs("Новый");
    Tick();
    EXPECT_EQ(player.boxes.size(), 1U);
    ExpectFreshLife("Новый");
    EXPECT_EQ(LabelShown(Label::lblMessage), "");
}

TEST_F(Lives, ADeathWhileAShopsRefusalIsOpenBuysNothingForTheNextLife)
{
    SetMoney(5);
    SetEatLevel(-34);
    player.Forget();
    NextLifeIs("Новый");
    player.whileBoxOpen.push_back([&] {
        JustBeforeMidnight();
        Tick();
    });
    EnterRules([] {
        BuyService(Entertainment, 0);
        SetMoney(99999); // what the dead person's handler would do next
    });
    EXPECT_EQ(player.boxes.size(), 2U) << "the refusal and the death";
    ExpectFreshLife("Новый");
}

TEST_F(Lives, CancellingTheNameAfterADeathInAShopEndsTheProgramAtOnce)
{
    SetHappy(-30);
    SetMoney(300);
    player.Forget();
    player.names.emplace_back();
    EnterRules([] { BuyService(Hospital, 4); });
    EXPECT_TRUE(player.programEnded);
    EXPECT_EQ(player.boxes.size(), 1U);
    EXPECT_EQ(player.journal.back(), "end program");
}

TEST_F(Lives, TheDeathBoxIsTheOnlyOneAndStopsTheClock)
{
    JustBeforeMidnight();
    SetEatLevel(-34);
    player.Forget();
    NextLifeIs("Новый");
    player.whileBoxOpen.push_back([&] {
        SetHealth(-500); // a second death of the same person
        Tick(10);
        EXPECT_EQ(TimeText(GameState.GameTime), "00:00");
    });
    Tick();
    EXPECT_EQ(player.boxes.size(), 1U);
    ExpectFreshLife("Новый");
}

TEST_F(Lives, ADeathByAClickStopsTheClockTooAndASecondOneIsSilent)
{
    player.Forget();
    NextLifeIs("Новый");
    player.whileBoxOpen.push_back([&] {
        Tick(10);
        EXPECT_EQ(TimeText(GameState.GameTime), "00:00");
        SetHealth(-500);
    });
    EnterRules([] { SetHappy(-75); });
    EXPECT_EQ(player.boxes.size(), 1U);
    ExpectFreshLife("Новый");
}

TEST_F(Lives, NobodyDiesUnderTheWinnersBox)
{
    GameState.CurrWork = 12;
    GameState.HardCPU = 59;
    SetMoney(10001);
    player.Forget();
    NextLifeIs("Новый");
    player.whileBoxOpen.push_back([&] {
        SetHealth(-500);
        Tick(10);
    });
    Tick();
    EXPECT_EQ(player.BoxTexts(), std::vector<std::string>{"Наконец-то: Вы прошли всю игру"});
    ExpectFreshLife("Новый");
}

TEST_F(Lives, TheClockOnlyShowsItselfWhileANewGameAsksForAName)
{
    GameState.GameDate = std::chrono::year{2003} / 5 / 5;
    NextLifeIs("Новый");
    player.whileDialogOpen.push_back([&] {
        Tick(200);
        EXPECT_EQ(LabelShown(Label::lblTime), "5 мая 2003 г. - 00:00") << "shown, not advanced";
        EXPECT_NO_THROW(SetHealth(-500)) << "nobody lives who could die";
    });
    EnterRules(NewGame);
    EXPECT_TRUE(player.boxes.empty());
    ExpectFreshLife("Новый");
}

TEST_F(Lives, ACodeTypedForADeadPersonDoesNotHelpTheNextOne)
{
    SetHealth(-49);
    player.Forget();
    NextLifeIs("Новый");
    player.inputs.emplace_back("QUOKKAFOX");
    player.whileDialogOpen.push_back([&] {
        JustBeforeMidnight();
        Tick();
    });
    // The box that is open belongs to the old life, the dialog to the new one.
    player.whileDialogOpen.emplace_back();
    EnterRules(EnterCheat);
    ExpectFreshLife("Новый");
}

TEST_F(Lives, ATypedMessageOfTheOldLifeIsNotFinishedInTheNewOne)
{
    NextLifeIs("Новый");
    player.duringWait.push_back([] { EnterRules(NewGame); });
    EnterRules([] {
        ShowMessage("Сообщение");
        SetMoney(1);
    });
    ExpectFreshLife("Новый");
    EXPECT_EQ(LabelShown(Label::lblMessage), "");
}

TEST_F(Lives, ANewGameDuringTheDaysMessageAbandonsTheOldDay)
{
    JustBeforeMidnight();
    GameState.WifeFound = GameState.Married = True;
    dice.values = {DrawOf(32, 50)};
    player.Forget();
    NextLifeIs("Новый");
    player.duringWait.push_back([] { EnterRules(NewGame); });
    Tick();
    ExpectFreshLife("Новый");
    EXPECT_FALSE(Running::Now(Running::What::Day));
}

TEST_F(Lives, TimeGoesOnDuringAMessageButNoSecondDayBegins)
{
    JustBeforeMidnight();
    GameState.WifeFound = GameState.Married = True;
    SetMoney(1000);
    SetEatLevel(75);
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
    EXPECT_EQ(LabelShown(Label::lblTime), "15 июня 2001 г. - 23:30");
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
    player.Forget();
    NextLifeIs("Новый");
    player.whileVirusOpen.push_back([] { EnterRules([] { SetHealth(-50); }); });
    Tick();
    ExpectFreshLife("Новый");
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
    player.Forget();
    NextLifeIs("Новый");
    player.answers.push_back(Answer::No);
    player.whileBoxOpen.push_back([&] {
        JustBeforeMidnight();
        Tick();
    });
    EnterRules(CloseProgram);
    EXPECT_FALSE(player.programEnded);
    ExpectFreshLife("Новый");
}

} // namespace
} // namespace torvenhall::test
