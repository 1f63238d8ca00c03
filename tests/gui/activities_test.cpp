// What the main window and the places in town do beside showing their texts:
// which button buys what, and what the game changes in an open window.

#include <QLabel>
#include <QTextDocumentFragment>

#include "activities/services.h"
#include "equipment/basEquipment.h"
#include "support/play.h"
#include "ui/widgets/metrics.h"

using namespace torvenhall;
using namespace torvenhall::test;

struct Activities : Play {
    static QLabel& LabelOf(Label label)
    {
        return Control<QLabel>("frmMain", Text(LabelNames[label]));
    }
};

TEST_F(Activities, EveryButtonBuysItsServicePartOrProgramOrGivesItsJob)
{
    for (const auto& [opener, name, table] : {std::tuple{"cmdHappy", "frmHappy", &Entertainment},
                                              {"cmdHealth", "frmHospital", &Hospital},
                                              {"cmdShop", "frmShop", &FoodShop}}) {
        Click("frmMain", opener);
        for (std::size_t i = 0; i < table->services.size(); ++i) {
            SetMoney(300);
            Click(name, QString("Command%1").arg(i + 1));
            EXPECT_EQ(GameState.Money, 300 - table->services[i].price) << name << i;
        }
        Click(name, "Command8");
    }
    SetMoney(10000);
    SetIntelligence(100);
    SetEducation(8);
    Click("frmMain", "cmdHard");
    for (int i = 0; i < 9; ++i) {
        Click("frmHard", QString("cmdUpggrade%1").arg(i));
        EXPECT_EQ(HardwareField(i), 1) << i;
    }
    EXPECT_EQ(TextOf("frmHard", "cmdUpggrade0"), "Процессор - Pentium 133 MHz - $60");
    for (int i = 0; i < 9; ++i) {
        InstallHardware(i, 6, false);
    }
    Click("frmHard", "Command8");
    Click("frmMain", "cmdSoft");
    for (int i = 0; i < 6; ++i) {
        GameState.SoftOS = i == 0 ? 0 : 3;
        Click("frmSoft", QString("cmdUpgrade%1").arg(i));
        EXPECT_GE(SoftwareField(i), 1) << i;
    }
    EXPECT_EQ(TextOf("frmSoft", "cmdUpgrade5"), "Игра - Quake I");
    Click("frmSoft", "Command8");
    Click("frmMain", "cmdWork");
    for (int i = 0; i < 12; ++i) {
        Click("frmWork", QString("cmdWork%1").arg(i));
        EXPECT_EQ(GameState.CurrWork, i + 1);
    }
    EXPECT_TRUE(player.boxes.empty());
}

TEST_F(Activities, WhatTheGameChangesShowsInAnOpenWindow)
{
    // milk is spilt on the best processor; only a shop opened anew offers one again
    InstallHardware(0, 10, false);
    Click("frmMain", "cmdHard");
    EXPECT_FALSE(Control("frmHard", "cmdUpggrade0").isEnabled());
    InstallHardware(0, 0, false);
    Do([] { Windows().ReloadWindow("frmHard"); });
    EXPECT_EQ(TextOf("frmHard", "cmdUpggrade0"), "Процессор - 486 DX2-66 MHz - $25");
    EXPECT_FALSE(Control("frmHard", "cmdUpggrade0").isEnabled());
    Click("frmHard", "Command8");
    Click("frmMain", "cmdHard");
    EXPECT_TRUE(Control("frmHard", "cmdUpggrade0").isEnabled());
    Click("frmHard", "Command8");
    // the last month of courses
    SetEducation(7);
    GameState.AttendSchool = True;
    Click("frmMain", "cmdSchool");
    Click("frmEducation", "Command1");
    Click("frmEducation", "Command2");
    EXPECT_TRUE(GameState.AttendSchool == False && GameState.AttendCourses == True);
    GameState.GameDate = std::chrono::year{2001} / 1 / 31;
    GameState.GameTime = {23, 30};
    Tick();
    EXPECT_TRUE(Control("frmEducation", "Command1").isEnabled());
    EXPECT_FALSE(Control("frmEducation", "Command2").isEnabled());
}

TEST_F(Activities, APausedDashboardIsVeiledAndClicksGoThrough)
{
    const auto& veil = Control<QWidget>("frmMain", "PauseVeil");
    Type(Main(), "p");
    EXPECT_TRUE(veil.isVisible() && veil.geometry() == veil.parentWidget()->rect());
    auto& button = Control("frmMain", "cmdShop");
    EXPECT_EQ(veil.parentWidget()->childAt(button.geometry().center()), &button);
    Click(button);
    EXPECT_TRUE(Find("frmShop") && !ClockTicks());
    Click("frmPause", "Command1");
    EXPECT_FALSE(veil.isVisible());
}

TEST_F(Activities, TheMessageLineRemembersItsLastTenMessages)
{
    QStringList lastTen;
    for (int message = 1; message <= 12; ++message) {
        lastTen = (lastTen << QString("Письмо № %1").arg(message)).mid(message > 10 ? 1 : 0);
        for (int typed = 0; typed <= lastTen.last().size(); ++typed) {
            ShowLabel(Label::lblMessage, Utf8(lastTen.last().left(typed)));
        }
    }
    const QLabel& line = LabelOf(Label::lblMessage);
    EXPECT_EQ(line.accessibleDescription(), lastTen.join('\n'));
    EXPECT_EQ(QTextDocumentFragment::fromHtml(line.toolTip()).toPlainText(), lastTen.join('\n'));
}

TEST_F(Activities, EveryStatisticIsSpokenHoveredAndGauged)
{
    for (const Label vital : {Label::lblHappy, Label::lblEat, Label::lblHealth}) {
        ShowLabel(vital, "-30%", TextColour::Red);
        EXPECT_TRUE(LabelOf(vital).accessibleName().endsWith(": -30%, опасно"));
        ShowLabel(vital, "30%");
        EXPECT_TRUE(LabelOf(vital).accessibleName().endsWith(": 30%"));
    }
    ShowLabel(Label::lblGames, "Quake I");
    EXPECT_EQ(LabelOf(Label::lblGames).toolTip(), "Quake I");
    const std::tuple<Label, std::function<void()>, bool> changes[]{
        {Label::lblMoney, [] { SetMoney(4000); }, true},
        {Label::lblMoney, [] { Choose("mnuLevelEasy"); }, true},
        {Label::lblMoney, [] { SetHappy(60); }, false},
        {Label::lblHappy, [] { SetHappy(-30); }, true},
        {Label::lblEat, [] { SetEatLevel(10); }, true},
        {Label::lblHealth, [] { SetHealth(90); }, true},
        {Label::lblEducation, [] { SetIntelligence(70); }, true},
        {Label::lblStatus, [] { SetEducation(6); }, true},
    };
    for (const auto& [label, change, shows] : changes) {
        const QWidget& shown = LabelOf(label); // whose gauge lies in the foot of its tile
        const QRect gauge(shown.mapTo(&Main(), QPoint(0, shown.height())),
                          QSize(shown.width(), Px(5)));
        const auto picture = [&] { return Main().grab().toImage().copy(gauge); };
        const QImage before = picture();
        change();
        EXPECT_EQ(picture() != before, shows) << LabelNames[label];
    }
}
