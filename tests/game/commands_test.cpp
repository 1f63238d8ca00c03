#include "game/commands.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "core/basGame.h"
#include "core/traps.h"
#include "game/cheats.h"
#include "game/entry.h"
#include "game/programs.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

using Commands = BegunLife;

TEST_F(Commands, GoingOnlineTakesAModemAndABrowserButNoSystem)
{
    for (const auto& [modem, browser] : {std::pair{0, 0}, {1, 0}, {0, 1}, {1, 1}}) {
        GameState.HardComm = modem;
        GameState.SoftBrowser = browser;
        GoOnline();
        const bool both = modem > 0 && browser > 0;
        EXPECT_EQ(Told(),
                  both ? Texts{}
                       : Texts{"i Слабая машинка: Установи 9600 bps модем, Microsoft Windows 95 и "
                               "Mirosoft Internet Explorer 3.0"});
        EXPECT_EQ(player.IsOpen(Window::frmNetwork), both);
    }
}

TEST_F(Commands, NothingThatAHandlerThrowsLeavesTheRules)
{
    EXPECT_NO_THROW(EnterRules([] { throw RuntimeError{error::Overflow, {}}; }));
    EXPECT_NO_THROW(EnterRules([] { throw std::runtime_error("?"); }));
    Trapped([] { throw std::bad_alloc(); });
    Trapped([] { throw RuntimeError{error::TypeMismatch, {}}; });
    Trapped([] { throw RuntimeError{error::DiskFull, "подробность"}; });
    const Texts told = Told();
    ASSERT_EQ(told.size(), 3U);
    EXPECT_EQ(told[0], "x Torvenhall: Системная ошибка: Недостаточно памяти для выполнения "
                       "команды. Закройте часть приложений и повторите попытку");
    EXPECT_EQ(told[1], "x Torvenhall: Ошибка приложения или системная ошибка: Несовпадение типов "
                       "данных! Обратитесь к разработчику! Программа может работать некорректно.");
    EXPECT_TRUE(told[2].starts_with("x Torvenhall: Возникла непредвиденная ошибка № 61 : "));
    EXPECT_TRUE(told[2].ends_with(": подробность. Программа может некорректно работать. "
                                  "Обратитесь к разработчику!"));
}

TEST_F(Commands, ClosingAsksOnceAndEndsEvenIfTheSavingIsCancelled)
{
    player.answers.push_back(Answer::Yes);
    player.games.emplace_back();
    EnterRules(CloseProgram);
    EXPECT_EQ(Told(), Texts{"? Вопрос: Сохранить игру сейчас???"});
    EXPECT_EQ(player.gameQuestions.size(), 1U);
    EXPECT_TRUE(player.programEnded);
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
    ShowReadme();
    ShowLicence();
    const std::string missing =
        "'" + Folder() + "License.txt' не найден или ошибка доступа!"; // the licence both times
    EXPECT_EQ(Told(), (Texts{"x Ошибка: Файл справочной информации " + missing,
                             "x Ошибка: Файл лицензионного соглашения " + missing}));
    const std::string file = Folder() + "Readme.txt";
    std::ofstream(file) << "?";
    ShowReadme();
    EXPECT_EQ(Told(), Texts{"x Ошибка: Файл 'xdg-open' не найден!!!"});
    EXPECT_EQ(player.started, Texts{});
    for (const char* editor : {"kate", "xdg-open"}) {
        Install(editor);
        ShowReadme();
        EXPECT_EQ(player.started.back(), Folder() + editor + " " + file);
    }
}

TEST_F(OtherPrograms, SystemInformationIsTheFirstToolFoundOrItsBox)
{
    StartSysInfo();
    EXPECT_EQ(Told(), Texts{"x General Error: System Information Is Unavailable At This Time"});
    Install("hardinfo");
    StartSysInfo();
    EXPECT_EQ(player.started, Texts{Folder() + "hardinfo"});
}
#endif

TEST_F(Commands, CheatCodesCountCaseAndBlanks)
{
    const auto type = [this](const std::optional<std::string>& code) {
        player.inputs.push_back(code);
        EnterRules(EnterCheat);
    };
    struct {
        const char* code;
        Label label;
        const char* shown;
    } const codes[]{
        {"QUOKKAFOX", lblMoney, "$5015"},   {"ZEPHR", lblHappy, "75%"},
        {"MARLIN", lblEat, "125%"},         {"WOMBAT", lblHealth, "90%"},
        {"TANGERINE", lblEducation, "30%"}, {"PELICAN", lblStatus, ""},
    };
    for (const auto& row : codes) {
        Begin();
        type(row.code);
        EXPECT_EQ(LabelShown(row.label), row.shown) << row.code;
    }
    EXPECT_EQ(GameState.Education, 21) << "the rank comes from the intelligence";

    player.Forget();
    for (const char* code : {"quokkafox", " ZEPHR", "", "MARLIN "}) {
        type(code);
    }
    type({});
    EXPECT_EQ(player.journal, Texts(5, "input Torvenhall 1.5: Введите чит:"));

    SetHealth(32767);
    type("WOMBAT");
    EXPECT_EQ(GameState.Health, 32767);
    EXPECT_EQ(ErrorTold(), error::Overflow);
}

} // namespace
} // namespace torvenhall::test
