#include "core/commands.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "core/basGame.h"
#include "core/cheats.h"
#include "core/entry.h"
#include "core/errors.h"
#include "core/programs.h"
#include "network/network.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

class Commands : public Life
{
protected:
    Commands() { Begin(); }
};

TEST_F(Commands, GoingOnlineTakesAModemAndABrowserButNoSystem)
{
    for (const auto& [modem, browser] : {std::pair{0, 0}, {1, 0}, {0, 1}}) {
        GameState.HardComm = modem;
        GameState.SoftBrowser = browser;
        player.Forget();
        GoOnline();
        EXPECT_EQ(player.BoxTexts(),
                  std::vector<std::string>{
                      "Слабая машинка: Установи 9600 bps модем, Microsoft Windows 95 и Mirosoft "
                      "Internet Explorer 3.0"});
        EXPECT_FALSE(player.IsOpen(Window::frmNetwork));
    }
    GameState.HardComm = GameState.SoftBrowser = 1;
    GoOnline();
    EXPECT_TRUE(player.IsOpen(Window::frmNetwork));
}

TEST_F(Commands, ANetworkWindowThatOpensTellsTheTrueStatus)
{
    GameState.HardComm = GameState.SoftBrowser = 1;
    EnterRules(DialInternet);
    dice.values = {DrawOf(7, 10)};
    player.duringWait.emplace_back([] { EnterRules(DialInternet); });
    EnterRules(DownloadAntivirus);
    EXPECT_EQ(Network().inetStatus, "Status: Connected") << "though it was hung up meanwhile";
    GoOnline();
    EXPECT_EQ(Network().inetStatus, "Status: Disconnected");
}

TEST_F(Commands, NothingThatAHandlerThrowsLeavesTheRules)
{
    EXPECT_NO_THROW(EnterRules([] { throw RuntimeError{error::Overflow, {}}; }));
    EXPECT_NO_THROW(EnterRules([] { throw std::runtime_error("?"); }));
    Trapped([] { throw std::bad_alloc(); });
    EXPECT_TRUE(player.boxes.at(0).text.starts_with("Системная ошибка: Недостаточно памяти"));
    Trapped([] { throw RuntimeError{error::DiskFull, "подробность"}; });
    EXPECT_NE(player.boxes.at(1).text.find(": подробность. Программа"), std::string::npos);
}

TEST_F(Commands, ClosingAsksOnceAndNoEndsTheProgram)
{
    player.answers.push_back(Answer::No);
    EnterRules(CloseProgram);
    EXPECT_EQ(player.BoxTexts(), std::vector<std::string>{"Вопрос: Сохранить игру сейчас???"});
    EXPECT_EQ(player.boxes[0].icon, Icon::Question);
    EXPECT_TRUE(player.programEnded);
}

TEST_F(Commands, ClosingWithYesOffersToSaveAndEndsEvenIfThatIsCancelled)
{
    player.answers.push_back(Answer::Yes);
    player.games.emplace_back();
    EnterRules(CloseProgram);
    EXPECT_EQ(player.gameQuestions.size(), 1U);
    EXPECT_TRUE(player.programEnded);
}

TEST_F(Commands, AMissingReadmeIsReportedUnderTheLicencesName)
{
    ShowReadme();
    ShowLicence();
    EXPECT_EQ(player.BoxTexts(),
              (std::vector<std::string>{"Ошибка: Файл справочной информации '" + Folder() +
                                            "License.txt' не найден или ошибка доступа!",
                                        "Ошибка: Файл лицензионного соглашения '" + Folder() +
                                            "License.txt' не найден или ошибка доступа!"}));
    EXPECT_EQ(player.boxes[0].icon, Icon::Critical);
    EXPECT_TRUE(player.started.empty());
}

#ifndef _WIN32
class OtherPrograms : public Commands
{
protected:
    OtherPrograms() : searchPath(std::getenv("PATH")) { setenv("PATH", Folder().c_str(), 1); }
    ~OtherPrograms() override { setenv("PATH", searchPath.c_str(), 1); }

    void Install(const std::string& program)
    {
        std::ofstream(Folder() + program) << "#!/bin/sh\n";
        std::filesystem::permissions(Folder() + program, std::filesystem::perms::owner_all);
    }

private:
    std::string searchPath;
};

TEST_F(OtherPrograms, TextsOpenInTheDesktopsEditorOrTheBoxNamesWhatIsMissing)
{
    std::ofstream(Folder() + "Readme.txt") << "?";
    ShowReadme();
    EXPECT_EQ(player.BoxTexts(), std::vector<std::string>{"Ошибка: Файл 'xdg-open' не найден!!!"});
    Install("kate");
    ShowReadme();
    Install("xdg-open");
    ShowReadme();
    EXPECT_EQ(player.started,
              (std::vector<std::string>{Folder() + "kate " + Folder() + "Readme.txt",
                                        Folder() + "xdg-open " + Folder() + "Readme.txt"}));
}

TEST_F(OtherPrograms, SystemInformationIsTheFirstToolFoundOrItsBox)
{
    StartSysInfo();
    EXPECT_EQ(
        player.BoxTexts(),
        std::vector<std::string>{"General Error: System Information Is Unavailable At This Time"});
    Install("hardinfo");
    StartSysInfo();
    EXPECT_EQ(player.started, std::vector<std::string>{Folder() + "hardinfo"});
}
#endif

TEST_F(Commands, CheatCodesCountCaseAndBlanks)
{
    struct {
        const char* code;
        Label label;
        const char* shown;
    } const codes[]{
        {"QUOKKAFOX", Label::lblMoney, "$5015"},   {"ZEPHR", Label::lblHappy, "75%"},
        {"MARLIN", Label::lblEat, "125%"},         {"WOMBAT", Label::lblHealth, "90%"},
        {"TANGERINE", Label::lblEducation, "30%"}, {"PELICAN", Label::lblStatus, ""},
    };
    for (const auto& row : codes) {
        Begin();
        player.inputs.emplace_back(row.code);
        EnterRules(EnterCheat);
        EXPECT_EQ(LabelShown(row.label), row.shown) << row.code;
    }
    EXPECT_EQ(GameState.Education, 21) << "the rank comes from the intelligence";

    Begin();
    for (const char* code : {"quokkafox", " ZEPHR", "", "MARLIN "}) {
        player.inputs.emplace_back(code);
        EnterRules(EnterCheat);
    }
    player.inputs.emplace_back();
    EnterRules(EnterCheat);
    EXPECT_EQ(player.journal, std::vector<std::string>(5, "input Torvenhall 1.5: Введите чит:"));
}

TEST_F(Commands, ACheatThatOverflowsIsReportedAndChangesNothing)
{
    SetHealth(32767);
    player.inputs.emplace_back("WOMBAT");
    EnterRules(EnterCheat);
    EXPECT_EQ(GameState.Health, 32767);
    EXPECT_EQ(player.boxes.size(), 1U);
}

TEST_F(Commands, TwoErrorsHaveTextsOfTheirOwn)
{
    ReportError(7);
    ReportError(13);
    EXPECT_EQ(player.boxes[0].text, "Системная ошибка: Недостаточно памяти для выполнения команды. "
                                    "Закройте часть приложений и повторите попытку");
    EXPECT_EQ(player.boxes[1].text,
              "Ошибка приложения или системная ошибка: Несовпадение типов данных! Обратитесь к "
              "разработчику! Программа может работать некорректно.");
}

} // namespace
} // namespace torvenhall::test
