#include "game/commands.h"

#include <stdexcept>

#include "core/playclock.h"
#include "game/clock.h"
#include "game/programs.h"
#include "support/life.h"
#include "system/text.h"

using namespace torvenhall;

using Commands = BegunLife;

// Another system's folder and its settings, in the place of this one's.
static std::string windowsFolder;
static std::map<std::string, std::string> settings;

extern "C" std::string WINDOWS_FOLDER()
{
    return windowsFolder;
}
extern "C" bool SETTINGS(const std::string&, const std::string& name, std::string& value)
{
    value = settings.contains(name) ? settings[name] : value;
    return settings.contains(name);
}

TEST_F(Commands, ANewGameReplacesEverythingButTheAttendanceInItsOrder)
{
    Given("AttendCourses=-1 AttendSchool=-1 WifeFound=-1 Married=-1 Sons=2 Daughters=2 Alimony=100 "
          "HardCPU=4 HardRAM=4 HardVideo=4 HardHDD=4 HardCDROM=4 HardComm=4 HardSound=4 "
          "HardScanner=4 HardPrinter=4 SoftOS=2 SoftAntivirus=2 SoftProgramming=2 SoftGraphic=2 "
          "SoftBrowser=2 SoftGames=2 CurrWork=9 WorkPay=9 SoftSize=9");
    JustBeforeMidnight();
    ShowLabel(lblMessage, "taxes");
    NextLifeIs("<b>", 2);
    EnterRules(Main);
    lines = Happened();
    lines.push_back(ChangedFields({}));
    player.names = {
        {{"Введите Ваше имя", 1}}, {{"Я: введите ВАШЕ имя!", 2}}, {{"", 0}}, {{" ", 0}}};
    EnterRules(NewGame); // a name of blanks is a name
    player.journal.resize(8);
    lines.insert(lines.end(), player.journal.begin(), player.journal.end());
    ExpectKept("newgame.txt", lines);
    ExpectFreshLife(" ");
}

TEST_F(Commands, EachDoesAsItsLineSays)
{
    const auto run = [&](void (*command)()) {
        lines.push_back(ReplaceAll(Outcome([=] { EnterRules(command); }), folder, "FOLDER/"));
    };
    for (const char* computer :
         {"HardComm=0 SoftBrowser=1", "HardComm=1 SoftBrowser=0", "HardComm=1 SoftBrowser=1"}) {
        Assign(computer);
        run(GoOnline);
    }
    run(PauseGame);
    run(ResumeGame);
    run(ShowReadme);
    run(ShowLicence);
    ReplaceFile(folder + "Readme.txt", "");
    ReplaceFile(folder + "License.txt", "");
    run(ShowLicence);
    run(StartSysInfo);
    player.programs = {"kate", "gedit", "hardinfo"};
    run(ShowReadme);
    run(ShowLicence);
    run(StartSysInfo);
    windowsFolder = folder + "nowhere";
    run(ShowReadme);
    windowsFolder = folder;
    run(ShowReadme);
    ReplaceFile(folder + "Notepad.exe", "");
    run(ShowReadme);
    windowsFolder.clear();
    settings = {{"MSINFO", folder + "tools"}};
    run(StartSysInfo);
    ReplaceFile(folder + "tools\\MSINFO32.EXE", "");
    run(StartSysInfo);
    settings["PATH"] = "MSINFO.EXE";
    run(StartSysInfo);
    settings.clear();
    run([] { throw RuntimeError{error::Overflow}; }); // nothing leaves the rules
    run([] { throw std::runtime_error("?"); });
    player.answers = {Answer::Yes};
    player.games = {std::nullopt};
    Meanwhile([] { EXPECT_TRUE(PlayStandsStill()) << "no day goes on, no death comes"; });
    run(CloseProgram);           // even if the saving is cancelled
    run([] { SetMoney(1000); }); // nothing runs in an ended program
    EnterTick();
    EXPECT_EQ(Happened(), Texts{});
    ExpectKept("commands.txt", lines);
}
