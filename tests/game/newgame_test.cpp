#include "game/newgame.h"

#include "core/basGame.h"
#include "core/waits.h"
#include "equipment/basEquipment.h"
#include "game/entry.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

using NewLife = Life;

TEST_F(NewLife, ABeginnerHasTheStartingValuesInStateAndWindow)
{
    Begin(0, "<b>");
    EXPECT_EQ(GameState.WinMoney, 30000);
    EXPECT_EQ(player.title, "Marshend Torvenhall 1.5 - <b>");
    EXPECT_TRUE(player.mainWindowShown);
    const std::pair<Label, const char*> shown[]{
        {lblMoney, "$15"},       {lblHappy, "25%"},
        {lblEat, "75%"},         {lblHealth, "40%"},
        {lblEducation, "20%"},   {lblStatus, "BEGIN"},
        {lblFamily, "NO WIFE"},  {lblCurrWork, "Работа: Безработный ($0/день)"},
        {lblOther, "0 Мб"},      {lblTime, "1 января 2001 г. - 00:00"},
        {lblhard0, "Нет вооще"}, {lblhard8, "Нет вооще"},
        {lblOs, "Нет вооще"},    {lblGames, "Нет вооще"},
    };
    for (const auto& [label, text] : shown) {
        EXPECT_EQ(LabelShown(label), text) << LabelName(label);
    }
}

TEST_F(NewLife, TheSettersRunInTheGamesOrder)
{
    NextLifeIs("Иван");
    EnterRules(NewGame);
    const Texts order{
        "close all",
        "name dialog",
        "lblMoney=$15",
        "lblHappy=25%",
        "lblCurrWork=Работа: Безработный ($0/день)",
        "lblEat=75%",
        "lblHealth=40%",
        "lblGameSpeed=Скорость игры: Нормальная",
        "lblGameLevel=Сложность: Нормальная",
        "lblOther=0 Мб",
        "lblStatus=BEGIN",
        "lblEducation=20%",
        "lblOther=0 Мб",
        "lblFamily=NO WIFE",
        "lblMoney=$15",
        "lblhard0=Нет вооще",
    };
    ASSERT_GE(player.journal.size(), order.size() + 2);
    EXPECT_EQ(Texts(player.journal.begin(), player.journal.begin() + 16), order);
    EXPECT_EQ(Texts(player.journal.end() - 2, player.journal.end()),
              (Texts{"title Marshend Torvenhall 1.5 - Иван", "show main window"}));
}

TEST_F(NewLife, NamesThatNobodyTypedAreAskedForAgainWhateverTheirCase)
{
    for (const char* name : {"Введите Ваше имя", "Я: введите ВАШЕ имя!", "", "   "}) {
        player.names.push_back(NewPlayer{name, 2});
    }
    EnterRules(NewGame);
    EXPECT_EQ(Told(), Texts(3, "! Внимание: Введите корректное имя"));
    EXPECT_EQ(player.nameQuestions.at(0).name, "Введите Ваше имя");
    EXPECT_EQ(player.nameQuestions.at(0).level, 1);
    EXPECT_EQ(player.nameQuestions.at(1).level, 2) << "the selection stays between attempts";
    EXPECT_EQ(GameState.PlayerName, "   ") << "a name of blanks is a name";
}

TEST_F(NewLife, CancellingTheNameEndsTheProgramWithoutAQuestion)
{
    player.names.emplace_back();
    EnterRules(NewGame);
    EXPECT_TRUE(player.programEnded);
    EXPECT_EQ(player.journal, (Texts{"close all", "name dialog", "end program"}));

    player.Forget();
    EnterRules([] { SetMoney(1000); });
    EnterTick();
    EXPECT_TRUE(player.journal.empty()) << "nothing runs in an ended program";
}

TEST_F(NewLife, ANewGameReplacesEverythingButTheAttendance)
{
    Begin();
    GameState.AttendCourses = GameState.AttendSchool = True;
    GameState.WifeFound = GameState.Married = True;
    GameState.Sons = GameState.Daughters = 2;
    GameState.Alimony = 100;
    GameState.SoftSize = 5;
    for (int category = 0; category < 6; ++category) {
        SoftwareField(category) = 2;
    }
    GameState.HardCPU = GameState.HardPrinter = 3;
    GameState.GameSpeed = 60;
    GameState.CurrWork = GameState.WorkPay = 3;
    GameState.GameDate = std::chrono::year{2003} / 5 / 5;
    GameState.GameTime = {5, 5};
    Set(90, 90, 90, -500);
    SetEducation(5);
    SetIntelligence(90);
    ShowLabel(lblFamily, "PRST:2:1");
    player.open.insert(Window::frmHard);
    player.sawRestarting = false;

    Begin();
    EXPECT_EQ((std::vector<Int16>{GameState.Happy, GameState.Health, GameState.EatLevel,
                                  GameState.GameSpeed, GameState.CurrWork, GameState.WorkPay,
                                  GameState.Education, GameState.Intelligence}),
              (std::vector<Int16>{25, 40, 75, 30, 0, 0, 1, 20}));
    EXPECT_EQ(GameState.Money, 15);
    EXPECT_EQ(GameState.WorkTitle, "Безработный");
    EXPECT_EQ(GameState.SoftSize, 0);
    EXPECT_EQ(HardwareScore(), 0);
    for (int category = 0; category < 6; ++category) {
        EXPECT_EQ(SoftwareField(category), 0) << category;
    }
    EXPECT_EQ(GameState.WifeFound, False);
    EXPECT_EQ(GameState.Married, False);
    EXPECT_EQ(GameState.Sons + GameState.Daughters + GameState.Alimony, 0);
    EXPECT_EQ(GameState.GameDate, FirstDay);
    EXPECT_EQ(GameState.GameTime, TimeOfDay{});
    EXPECT_EQ(GameState.AttendCourses, True);
    EXPECT_EQ(GameState.AttendSchool, True);
    EXPECT_EQ(LabelText(lblFamily), "NO WIFE");
    EXPECT_EQ(LabelText(lblMessage), "");
    EXPECT_TRUE(player.open.empty());
    EXPECT_TRUE(player.sawRestarting);
    EXPECT_EQ(GameState.Restarting, False);
}

} // namespace
} // namespace torvenhall::test
