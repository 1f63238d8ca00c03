// The menus and buttons of the main window: each item in its place, and what
// it does.

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

#include "support/play.h"

namespace torvenhall::test
{
namespace
{

struct Item {
    const char *name, *text; ///< a separator has no text
};
struct Menu {
    const char* title;
    std::vector<Item> items;
};

const std::vector<Menu> Menus{
    {"Файл",
     {{"mnuFileNewgame", "Новая игра"},
      {"mnuFileSep1", ""},
      {"mnuFileSavegame", "Сохранить игру..."},
      {"mnuFileLoadgame", "Загрузить игру..."},
      {"mnuFileSep2", ""},
      {"mnuFileExit", "Выход"}}},
    {"Игра",
     {{"mnuGameUpgrade", "Апгрейд компьютера"},
      {"mnuGameSoft", "Установка ПО"},
      {"mnuGameHappy", "Развлечения"},
      {"mnuGameHosp", "Больница"},
      {"mnuGameShop", "Магазин"},
      {"mnugameWork", "Центр занятости"},
      {"mnuGameSchool", "Школа"},
      {"mnuGameInNet", "Выход в свет"}}},
    {"Уровень игры",
     {{"mnuLevelHard", "Сложный"}, {"mnuLevelMiddle", "Нормальный"}, {"mnuLevelEasy", "Простой"}}},
    {"Скорость игры",
     {{"mnuSpeedFast", "Быстрый"},
      {"mnuSpeedNormal", "Нормальный"},
      {"mnuSpeedSlow", "Медленный"}}},
    {"Справка",
     {{"mnuhelpReadme", "Справка"},
      {"mnuHelpEULA", "Лицензионное соглашение"},
      {"mnuHelpS1", ""},
      {"mnuHelpAbout", "О программе..."}}},
};

QString Plain(const QAction& action)
{
    return action.text().remove('&');
}

QStringList OtherWindows()
{
    QStringList names;
    for (const QWidget* each : QApplication::topLevelWidgets()) {
        if (each->isVisible() && each->objectName() != "frmMain") {
            names << each->objectName();
        }
    }
    return names;
}

class MainMenus : public Play
{
protected:
    MainMenus() { Begin(); }

    void ExpectOpens(const char* window, const std::function<void()>& deed)
    {
        deed();
        EXPECT_EQ(OtherWindows(), QStringList{window});
        if (QWidget* open = Find(window)) {
            Press(*open, Qt::Key_Escape);
        }
        EXPECT_TRUE(OtherWindows().isEmpty());
    }
};

TEST_F(MainMenus, StandInOrder)
{
    const auto bar = Main().menuBar()->actions();
    ASSERT_EQ(std::size_t(bar.size()), Menus.size());
    for (qsizetype i = 0; i < bar.size(); ++i) {
        const Menu& menu = Menus[std::size_t(i)];
        EXPECT_EQ(Plain(*bar[i]), menu.title);
        const auto items = bar[i]->menu()->actions();
        ASSERT_EQ(std::size_t(items.size()), menu.items.size()) << menu.title;
        for (qsizetype j = 0; j < items.size(); ++j) {
            const Item& item = menu.items[std::size_t(j)];
            EXPECT_EQ(items[j]->objectName(), item.name);
            EXPECT_EQ(Plain(*items[j]), item.text);
            EXPECT_EQ(items[j]->isSeparator(), QString(item.text).isEmpty()) << item.name;
        }
    }
}

TEST_F(MainMenus, OpenTheirWindows)
{
    GameState.HardComm = 1;
    GameState.SoftBrowser = 1;
    for (const auto& [item, button, window] : {std::tuple{"mnuGameUpgrade", "cmdHard", "frmHard"},
                                               {"mnuGameSoft", "cmdSoft", "frmSoft"},
                                               {"mnuGameHappy", "cmdHappy", "frmHappy"},
                                               {"mnuGameHosp", "cmdHealth", "frmHospital"},
                                               {"mnuGameShop", "cmdShop", "frmShop"},
                                               {"mnugameWork", "cmdWork", "frmWork"},
                                               {"mnuGameInNet", "cmdInInet", "frmNetwork"}}) {
        ExpectOpens(window, [name = item] { Choose(name); });
        ExpectOpens(window, [name = button] { Click("frmMain", name); });
    }
    ExpectOpens("frmAbout", [] { Choose("mnuHelpAbout"); });
    ExpectOpens("frmEducation", [] { Click("frmMain", "cmdSchool"); });
}

TEST_F(MainMenus, TheSchoolItemDoesNothing)
{
    Choose("mnuGameSchool");
    EXPECT_TRUE(OtherWindows().isEmpty());
}

TEST_F(MainMenus, TheNetworkAsksForAModemAndABrowser)
{
    for (const auto& [modem, browser] : {std::pair{0, 0}, {1, 0}, {0, 1}}) {
        GameState.HardComm = modem;
        GameState.SoftBrowser = browser;
        Choose("mnuGameInNet");
        EXPECT_TRUE(OtherWindows().isEmpty());
    }
    EXPECT_EQ(player.boxes,
              std::vector<QString>(3, "Слабая машинка: Установи 9600 bps модем, Microsoft Windows "
                                      "95 и Mirosoft Internet Explorer 3.0"));
}

TEST_F(MainMenus, SetLevelAndSpeed)
{
    for (const auto& [item, win, shown] : {std::tuple{"mnuLevelHard", 30000, "Сложность: Сложная"},
                                           {"mnuLevelEasy", 5000, "Сложность: Лёгкая"},
                                           {"mnuLevelMiddle", 10000, "Сложность: Нормальная"}}) {
        Choose(item);
        EXPECT_EQ(GameState.WinMoney, win);
        EXPECT_EQ(TextOf("frmMain", "lblGameLevel"), shown);
    }
    for (const auto& [item, minutes, shown] :
         {std::tuple{"mnuSpeedFast", 60, "Скорость игры: Быстрая"},
          {"mnuSpeedSlow", 15, "Скорость игры: Медленная"},
          {"mnuSpeedNormal", 30, "Скорость игры: Нормальная"}}) {
        Choose(item);
        EXPECT_EQ(GameState.GameSpeed, minutes);
        EXPECT_EQ(TextOf("frmMain", "lblGameSpeed"), shown);
    }
}

TEST_F(MainMenus, ANewGameAsksForTheNameAtOnce)
{
    Set([] { SetMoney(999); });
    Click("frmMain", "cmdShop");
    player.NextLifeIs("<b>Пётр</b>", 2);
    Choose("mnuFileNewgame");
    EXPECT_EQ(player.dialogs, std::vector<QString>{"frmPlayerName"}); // and for nothing else
    EXPECT_TRUE(OtherWindows().isEmpty());
    ExpectFreshLife("<b>Пётр</b>");
    EXPECT_EQ(GameState.WinMoney, 5000);
}

/// The two ways out, both of which ask.
class Leaving : public Play, public ::testing::WithParamInterface<bool>
{
protected:
    int Leave()
    {
        return RunInEventLoop([this] {
            Begin();
            if (GetParam()) {
                Choose("mnuFileExit");
            } else {
                Main().close();
            }
        });
    }
};
INSTANTIATE_TEST_SUITE_P(ByMenuAndCloseBox, Leaving, ::testing::Bool());

TEST_P(Leaving, EndsWithoutSavingOnNo)
{
    player.Answer("Нет");
    EXPECT_EQ(Leave(), 0);
    EXPECT_EQ(player.boxes, std::vector<QString>{"Вопрос: Сохранить игру сейчас???"});
    EXPECT_TRUE(SavedFiles().isEmpty());
    EXPECT_TRUE(OtherWindows().isEmpty());
    EXPECT_FALSE(IsShown("frmMain"));
}

TEST_P(Leaving, SavesFirstOnYes)
{
    player.Answer("Да");
    player.When("frmLocGame", [](QWidget& dialog) {
        Type(*dialog.findChild<QLineEdit*>("Text1"), "Последняя");
        Click(*dialog.findChild<QAbstractButton*>("Command1"));
    });
    EXPECT_EQ(Leave(), 0);
    EXPECT_EQ(SavedFiles(), QStringList{"Последняя.QVS"});
}

TEST_P(Leaving, EndsEvenWhenTheSaveIsCancelled)
{
    player.Answer("Да");
    player.When("frmLocGame", [](QWidget& dialog) { Press(dialog, Qt::Key_Escape); });
    EXPECT_EQ(Leave(), 0);
    EXPECT_TRUE(SavedFiles().isEmpty());
}

} // namespace
} // namespace torvenhall::test
