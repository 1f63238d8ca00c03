// The activity windows: what their buttons show and do, and what the game
// does to them while they are open.

#include <QLabel>

#include "core/outside.h"
#include "equipment/basEquipment.h"
#include "support/play.h"
#include "ui/support/text.h"

namespace torvenhall::test
{
namespace
{

class Activities : public Play
{
protected:
    Activities() { Begin(); }
};

TEST_F(Activities, HardwareIsOfferedOneStepAtATime)
{
    Click("frmMain", "cmdHard");
    EXPECT_EQ(TextOf("frmHard", "cmdUpggrade0"), "Процессор - 486 DX2-66 MHz - $25");
    Click("frmHard", "cmdUpggrade0");
    EXPECT_EQ(player.boxes, std::vector<QString>{"Я тоже много хочу!!!: У вас недостаточно денег "
                                                 "на покупку 486 DX2-66 MHz за $25"});
    Set([] { SetMoney(85); });
    Click("frmHard", "cmdUpggrade0");
    EXPECT_EQ(TextOf("frmHard", "cmdUpggrade0"), "Процессор - Pentium 133 MHz - $60");
    Click("frmHard", "cmdUpggrade0");
    EXPECT_EQ(TextOf("frmMain", "lblMoney"), "$0"); // exactly the price is enough
    EXPECT_EQ(TextOf("frmMain", "lblhard0"), "Pentium 133 MHz");
}

TEST_F(Activities, TheLastPartIsShownAndNeverOfferedAgain)
{
    Set([] { InstallHardware(0, 10, false); });
    Click("frmMain", "cmdHard");
    EXPECT_EQ(TextOf("frmHard", "cmdUpggrade0"), "Процессор - Intel Pentium 4 1500 MHz - $620");
    EXPECT_FALSE(Control<>("frmHard", "cmdUpggrade0").isEnabled());
    // when milk is spilt on it while the shop is open
    Set([] {
        InstallHardware(0, 0, false);
        Windows().ReloadWindow(Window::frmHard);
    });
    EXPECT_EQ(TextOf("frmHard", "cmdUpggrade0"), "Процессор - 486 DX2-66 MHz - $25");
    EXPECT_FALSE(Control<>("frmHard", "cmdUpggrade0").isEnabled());
    // and a window opened anew derives it from the state
    Click("frmHard", "Command8");
    Click("frmMain", "cmdHard");
    EXPECT_TRUE(Control<>("frmHard", "cmdUpggrade0").isEnabled());
}

TEST_F(Activities, SoftwareIsInstalledWhenTheComputerSuffices)
{
    Click("frmMain", "cmdSoft");
    const QStringList offers{"ОС - Microsoft Windows 3.1",       "Антивирус - Doctor Web",
                             "Прог-е - Borland Pascal 7.0",      "Графика - Microsoft Paint",
                             "Интернет - Internet Explorer 3.0", "Игра - DOOM-II"};
    for (int i = 0; i < offers.size(); ++i) {
        EXPECT_EQ(TextOf("frmSoft", QString("cmdUpgrade%1").arg(i)), offers[i]);
    }
    Click("frmSoft", "cmdUpgrade5");
    EXPECT_EQ(player.boxes, std::vector<QString>{"Ну у Вас и запросы...: Установи Windows 3.1"});
    Set([] { GameState.SoftOS = 1; });
    Click("frmSoft", "cmdUpgrade5");
    EXPECT_EQ(TextOf("frmMain", "lblGames"), "DOOM-II");
    EXPECT_EQ(TextOf("frmSoft", "cmdUpgrade5"), "Игра - Quake I");
    // given the last item of a list
    GameState.SoftAntivirus = 3;
    GameState.SoftOS = 6;
    Click("frmSoft", "cmdUpgrade1");
    EXPECT_EQ(TextOf("frmSoft", "cmdUpgrade1"), "Антивирус - AVP 3.5 Gold for Servers");
    EXPECT_FALSE(Control<>("frmSoft", "cmdUpgrade1").isEnabled());
}

TEST_F(Activities, EveryServiceHasItsPriceAndEveryWindowItsRefusal)
{
    // Each price is charged by one button only, or by two with unlike effects.
    struct Window {
        const char *opener, *name;
        std::vector<int> prices;
    };
    for (const Window& window : {Window{"cmdHappy", "frmHappy", {25, 50, 75, 5, 15}},
                                 Window{"cmdHealth", "frmHospital", {250, 100, 20, 2, 250, 20, 25}},
                                 Window{"cmdShop", "frmShop", {15, 45, 120, 10, 60}}}) {
        Click("frmMain", window.opener);
        for (std::size_t i = 0; i < window.prices.size(); ++i) {
            Set([] {
                SetMoney(300);
                SetHappy(0);
            });
            Click(window.name, QString("Command%1").arg(i + 1));
            EXPECT_EQ(GameState.Money, 300 - window.prices[i]) << window.name << i;
        }
        Set([] { SetMoney(1); });
        Click(window.name, "Command1");
        Click(window.name, "Command8");
    }
    EXPECT_EQ(player.boxes,
              (std::vector<QString>{"Тонкий кошелёк: Вам это не по карману",
                                    "Центральная клиническая больница: Доктор Картер: Извините, но "
                                    "мы лечем только за деньги",
                                    "Идиот!: Шеф-Повор: А ну убирайся отсюда!!!!!!"}));
}

TEST_F(Activities, AJobIsGivenToWhoQualifies)
{
    Click("frmMain", "cmdWork");
    Click("frmWork", "cmdWork0");
    EXPECT_EQ(TextOf("frmMain", "lblCurrWork"), "Работа: Дворник ($10/день)");
    Click("frmWork", "cmdWork1");
    EXPECT_EQ(player.boxes, std::vector<QString>{"Нифига!: Поумнейте до 25%"});
    Set([] {
        SetIntelligence(100);
        SetEducation(8);
        InstallHardware(5, 6, false);
        InstallHardware(7, 6, false);
    });
    for (int i = 0; i < 12; ++i) {
        Click("frmWork", QString("cmdWork%1").arg(i));
        EXPECT_EQ(GameState.CurrWork, i + 1);
    }
    EXPECT_TRUE(IsShown("frmWork"));
}

TEST_F(Activities, TheFinishedSchoolIsAnnouncedOnTheCoursesButton)
{
    struct Case {
        int rank, mind;
        const char *school, *courses;
        bool schoolOpen, coursesOpen;
    };
    for (const Case& each : {Case{8, 20, "Ходить в школу", "Закончил эти курсы!", true, false},
                             Case{1, 100, "Ходить в школу", "Закончил эту школу!", false, true},
                             Case{8, 100, "Ходить в школу", "Закончил эту школу!", false, false}}) {
        GameState.Education = each.rank;
        GameState.Intelligence = each.mind;
        Click("frmMain", "cmdSchool");
        EXPECT_EQ(TextOf("frmEducation", "Command1"), each.school);
        EXPECT_EQ(TextOf("frmEducation", "Command2"), each.courses);
        EXPECT_EQ(Control<>("frmEducation", "Command1").isEnabled(), each.schoolOpen);
        EXPECT_EQ(Control<>("frmEducation", "Command2").isEnabled(), each.coursesOpen);
        Click("frmEducation", "Command8");
    }
}

TEST_F(Activities, AMonthsEndDisablesTheButtonOfAnOpenSchool)
{
    // given the last month of courses, and the window open at midnight
    GameState.AttendCourses = True;
    Set([] { SetEducation(7); });
    GameState.GameDate = std::chrono::year{2001} / 1 / 31;
    GameState.GameTime = {23, 30};
    Click("frmMain", "cmdSchool");
    Tick();
    EXPECT_EQ(player.boxes, std::vector<QString>{"Доцент: Вы прошли компьютерные курсы!"});
    EXPECT_FALSE(Control<>("frmEducation", "Command2").isEnabled());
    EXPECT_TRUE(Control<>("frmEducation", "Command1").isEnabled());
}

TEST_F(Activities, ADismissalNamesThePlayerAsTyped)
{
    // given a name that a careless window would take for markup
    player.NextLifeIs("<b>");
    Choose("mnuFileNewgame");
    EXPECT_EQ(Main().windowTitle(), "Marshend Torvenhall 1.5 - <b>");
    Set([] { SetEatLevel(75); });
    Click("frmMain", "cmdWork");
    Click("frmWork", "cmdWork0");
    Click("frmWork", "Command8");
    const auto& line = Control<QLabel>("frmMain", "lblMessage");
    EXPECT_EQ(line.textFormat(), Qt::PlainText);
    QString longest;
    const Meanwhile watch(
        [&] { longest = line.text().size() > longest.size() ? line.text() : longest; });
    // when the day brings dismissal
    JustBeforeMidnight();
    dice.values = {DrawOf(1, 50), 0.5F, 0.5F, DrawOf(4, 25)};
    Tick();
    EXPECT_EQ(longest, "Сообщение от Вашего босса: Уважаемый <b>! Вы уволены!!!");
    EXPECT_EQ(TextOf("frmMain", "lblCurrWork"), "Работа: Безработный ($0/день)");
}

} // namespace
} // namespace torvenhall::test
