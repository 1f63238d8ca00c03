#include "core/newgame.h"

#include "core/basGame.h"
#include "core/entry.h"
#include "core/life.h"
#include "core/outside.h"
#include "equipment/basEquipment.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

class NewLife : public Life
{
protected:
    void ExpectStartingValues()
    {
        EXPECT_EQ(GameState.Money, 15);
        EXPECT_EQ(GameState.Happy, 25);
        EXPECT_EQ(GameState.Health, 40);
        EXPECT_EQ(GameState.EatLevel, 75);
        EXPECT_EQ(GameState.GameSpeed, 30);
        EXPECT_EQ(GameState.CurrWork, 0);
        EXPECT_EQ(GameState.WorkPay, 0);
        EXPECT_EQ(GameState.WorkTitle, "Безработный");
        EXPECT_EQ(GameState.Education, 1);
        EXPECT_EQ(GameState.Intelligence, 20);
        EXPECT_EQ(GameState.SoftSize, 0);
        EXPECT_EQ(HardwareScore(), 0);
        EXPECT_EQ(GameState.WifeFound, False);
        EXPECT_EQ(GameState.Sons + GameState.Daughters + GameState.Alimony, 0);
        EXPECT_EQ(GameState.GameDate, FirstDay);
        EXPECT_EQ(GameState.GameTime, TimeOfDay{});
    }
};

TEST_F(NewLife, ABeginnerHasTheStartingValuesInStateAndWindow)
{
    Begin(0, "<b>");
    ExpectStartingValues();
    EXPECT_EQ(GameState.WinMoney, 30000);
    EXPECT_EQ(player.title, "Marshend Torvenhall 1.5 - <b>");
    EXPECT_TRUE(player.mainWindowShown);
    const std::pair<Label, const char*> shown[]{
        {Label::lblMoney, "$15"},       {Label::lblHappy, "25%"},
        {Label::lblEat, "75%"},         {Label::lblHealth, "40%"},
        {Label::lblEducation, "20%"},   {Label::lblStatus, "BEGIN"},
        {Label::lblFamily, "NO WIFE"},  {Label::lblCurrWork, "Работа: Безработный ($0/день)"},
        {Label::lblOther, "0 Мб"},      {Label::lblTime, "1 января 2001 г. - 00:00"},
        {Label::lblhard0, "Нет вооще"}, {Label::lblhard8, "Нет вооще"},
        {Label::lblOs, "Нет вооще"},    {Label::lblGames, "Нет вооще"},
    };
    for (const auto& [label, text] : shown) {
        EXPECT_EQ(LabelShown(label), text) << LabelName(label);
    }
}

TEST_F(NewLife, TheSettersRunInTheGamesOrder)
{
    player.names.push_back(NewPlayer{"Иван", 1});
    EnterRules(NewGame);
    const std::vector<std::string> order{
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
    ASSERT_GE(player.journal.size(), order.size());
    EXPECT_EQ(std::vector(player.journal.begin(), player.journal.begin() + 16), order);
    EXPECT_EQ(player.journal.back(), "show main window");
}

TEST_F(NewLife, NamesThatNobodyTypedAreAskedForAgainWhateverTheirCase)
{
    for (const char* refused : {"Введите Ваше имя", "Я: введите ВАШЕ имя!", ""}) {
        player.names.push_back(NewPlayer{refused, 2});
    }
    player.names.push_back(NewPlayer{"   ", 2});
    EnterRules(NewGame);
    EXPECT_EQ(player.BoxTexts(), std::vector<std::string>(3, "Внимание: Введите корректное имя"));
    EXPECT_EQ(player.boxes[0].icon, Icon::Exclamation);
    EXPECT_EQ(player.nameQuestions[1].level, 2) << "the selection stays between attempts";
    EXPECT_EQ(GameState.PlayerName, "   ") << "a name of blanks is a name";
}

TEST_F(NewLife, TheDialogStartsWithItsPlaceholderOnTheNormalLevel)
{
    player.names.push_back(NewPlayer{"Иван", 0});
    EnterRules(NewGame);
    EXPECT_EQ(player.nameQuestions.at(0).name, "Введите Ваше имя");
    EXPECT_EQ(player.nameQuestions.at(0).level, 1);
}

TEST_F(NewLife, CancellingTheNameEndsTheProgramWithoutAQuestion)
{
    player.names.emplace_back();
    EnterRules(NewGame);
    EXPECT_TRUE(player.programEnded);
    EXPECT_TRUE(player.boxes.empty());
    EXPECT_FALSE(player.mainWindowShown);

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
    GameState.Sons = 2;
    GameState.Alimony = 100;
    GameState.SoftOS = GameState.SoftGames = 4;
    GameState.HardCPU = GameState.HardPrinter = 3;
    SetMoney(-500);
    GameState.GameSpeed = 60;
    Begin();
    ExpectStartingValues();
    EXPECT_EQ(GameState.SoftOS + GameState.SoftGames, 0);
    EXPECT_EQ(GameState.AttendCourses, True);
    EXPECT_EQ(GameState.AttendSchool, True);
}

TEST_F(NewLife, WindowsAreClosedWhileRestartingIsSet)
{
    Begin();
    player.open.insert(Window::frmHard);
    player.sawRestarting = false;
    Begin();
    EXPECT_TRUE(player.open.empty());
    EXPECT_TRUE(player.sawRestarting);
    EXPECT_EQ(GameState.Restarting, False);
}

TEST_F(NewLife, TheTitleIsThereBeforeTheWindow)
{
    player.names.push_back(NewPlayer{"Иван", 1});
    EnterRules(NewGame);
    ASSERT_GE(player.journal.size(), 2U);
    EXPECT_EQ(player.journal[player.journal.size() - 2], "title Marshend Torvenhall 1.5 - Иван");
}

TEST_F(NewLife, EverySoftwareSlotIsEmptied)
{
    Begin();
    for (int category = 0; category < 6; ++category) {
        SoftwareField(category) = 2;
    }
    Begin();
    for (int category = 0; category < 6; ++category) {
        EXPECT_EQ(SoftwareField(category), 0) << category;
    }
}

TEST_F(NewLife, AnImpossibleFamilyOfTheOldLifeLeavesNothingInTheLabel)
{
    Begin();
    ShowLabel(Label::lblFamily, "PRST:2:1");
    Begin();
    EXPECT_EQ(LabelText(Label::lblFamily), "NO WIFE");
    EXPECT_EQ(LabelText(Label::lblMessage), "");
}

} // namespace
} // namespace torvenhall::test
