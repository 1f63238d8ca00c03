// The activity windows: which button does what, and what the game does to them
// while they are open.

#include "activities/services.h"
#include "core/waits.h"
#include "equipment/basEquipment.h"
#include "support/play.h"

namespace torvenhall::test
{
namespace
{

class Activities : public Play
{
protected:
    Activities() { Begin(); }

    static bool Enabled(const char* window, const char* button)
    {
        return Control(window, button).isEnabled();
    }
};

TEST_F(Activities, EveryButtonOfAServiceChargesItsPrice)
{
    for (const auto& [opener, name, table] : {std::tuple{"cmdHappy", "frmHappy", &Entertainment},
                                              {"cmdHealth", "frmHospital", &Hospital},
                                              {"cmdShop", "frmShop", &FoodShop}}) {
        Click("frmMain", opener);
        for (std::size_t i = 0; i < table->services.size(); ++i) {
            EnterRules([] { SetMoney(300); });
            Click(name, QString("Command%1").arg(i + 1));
            EXPECT_EQ(GameState.Money, 300 - table->services[i].price) << name << i;
        }
        Click(name, "Command8");
    }
}

TEST_F(Activities, EveryButtonBuysItsPartOrProgramOrGivesItsJob)
{
    EnterRules([] {
        SetMoney(10000);
        SetIntelligence(100);
        SetEducation(8);
    });
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

TEST_F(Activities, TheLastPartIsOfferedAgainOnlyByAWindowOpenedAnew)
{
    EnterRules([] { InstallHardware(0, 10, false); });
    Click("frmMain", "cmdHard");
    EXPECT_FALSE(Enabled("frmHard", "cmdUpggrade0"));
    // when milk is spilt on it while the shop is open
    EnterRules([] {
        InstallHardware(0, 0, false);
        Windows().ReloadWindow(Window::frmHard);
    });
    EXPECT_EQ(TextOf("frmHard", "cmdUpggrade0"), "Процессор - 486 DX2-66 MHz - $25");
    EXPECT_FALSE(Enabled("frmHard", "cmdUpggrade0"));
    Click("frmHard", "Command8");
    Click("frmMain", "cmdHard");
    EXPECT_TRUE(Enabled("frmHard", "cmdUpggrade0"));
}

TEST_F(Activities, WhatIsFinishedIsDisabledEvenInAnOpenSchool)
{
    for (const auto& [rank, mind] : {std::pair{8, 20}, {1, 100}, {8, 100}}) {
        GameState.Education = rank;
        GameState.Intelligence = mind;
        Click("frmMain", "cmdSchool");
        EXPECT_EQ(Enabled("frmEducation", "Command1"), mind < 100);
        EXPECT_EQ(Enabled("frmEducation", "Command2"), rank < 8);
        Click("frmEducation", "Command8");
    }
    // given the last month of courses, and the window open at midnight
    EnterRules([] {
        SetIntelligence(20);
        SetEducation(7);
    });
    GameState.AttendCourses = True;
    GameState.GameDate = std::chrono::year{2001} / 1 / 31;
    GameState.GameTime = {23, 30};
    Click("frmMain", "cmdSchool");
    EnterTick();
    EXPECT_FALSE(Enabled("frmEducation", "Command2"));
    EXPECT_TRUE(Enabled("frmEducation", "Command1"));
}

} // namespace
} // namespace torvenhall::test
