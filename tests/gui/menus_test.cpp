// The menus and buttons of the main window: each item in its place, and what
// it does.

#include <QMenu>
#include <QMenuBar>

#include "support/play.h"

namespace torvenhall::test
{
namespace
{

/// Each menu's title and its items: name and text, a separator without one.
const std::pair<const char*, QStringList> Menus[]{
    {"Файл",
     {"mnuFileNewgame=Новая игра", "mnuFileSep1=", "mnuFileSavegame=Сохранить игру...",
      "mnuFileLoadgame=Загрузить игру...", "mnuFileSep2=", "mnuFileExit=Выход"}},
    {"Игра",
     {"mnuGameUpgrade=Апгрейд компьютера", "mnuGameSoft=Установка ПО", "mnuGameHappy=Развлечения",
      "mnuGameHosp=Больница", "mnuGameShop=Магазин", "mnugameWork=Центр занятости",
      "mnuGameSchool=Школа", "mnuGameInNet=Выход в свет"}},
    {"Уровень игры", {"mnuLevelHard=Сложный", "mnuLevelMiddle=Нормальный", "mnuLevelEasy=Простой"}},
    {"Скорость игры",
     {"mnuSpeedFast=Быстрый", "mnuSpeedNormal=Нормальный", "mnuSpeedSlow=Медленный"}},
    {"Справка",
     {"mnuhelpReadme=Справка", "mnuHelpEULA=Лицензионное соглашение",
      "mnuHelpS1=", "mnuHelpAbout=О программе..."}},
};

class MainMenus : public Play
{
protected:
    MainMenus() { Begin(); }

    void ExpectOpens(const char* window, const std::function<void()>& deed)
    {
        deed();
        ASSERT_TRUE(Find(window)) << window;
        EXPECT_EQ(OpenWindows().size(), 2);
        Press(*Find(window), Qt::Key_Escape);
        EXPECT_EQ(OpenWindows(), QStringList{"frmMain"});
    }
};

TEST_F(MainMenus, StandInOrder)
{
    const auto bar = Main().menuBar()->actions();
    ASSERT_EQ(std::size_t(bar.size()), std::size(Menus));
    for (qsizetype i = 0; i < bar.size(); ++i) {
        const auto& [title, items] = Menus[i];
        EXPECT_EQ(bar[i]->text().remove('&'), title);
        QStringList found;
        for (const QAction* item : bar[i]->menu()->actions()) {
            found << item->objectName() + '=' + item->text().remove('&');
            EXPECT_EQ(item->isSeparator(), item->text().isEmpty()) << found.last().toStdString();
        }
        EXPECT_EQ(found, items);
    }
}

TEST_F(MainMenus, OpenTheirWindows)
{
    GameState.HardComm = GameState.SoftBrowser = 1;
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
    Choose("mnuGameSchool"); // the school's item does nothing
    GameState.HardComm = 0;
    Choose("mnuGameInNet"); // the network asks for a modem
    EXPECT_EQ(OpenWindows(), QStringList{"frmMain"});
    EXPECT_EQ(player.boxes.size(), 1U);
}

TEST_F(MainMenus, SetLevelAndSpeed)
{
    for (const auto& [item, label, shown] :
         {std::tuple{"mnuLevelHard", "lblGameLevel", "Сложность: Сложная"},
          {"mnuLevelEasy", "lblGameLevel", "Сложность: Лёгкая"},
          {"mnuLevelMiddle", "lblGameLevel", "Сложность: Нормальная"},
          {"mnuSpeedFast", "lblGameSpeed", "Скорость игры: Быстрая"},
          {"mnuSpeedSlow", "lblGameSpeed", "Скорость игры: Медленная"},
          {"mnuSpeedNormal", "lblGameSpeed", "Скорость игры: Нормальная"}}) {
        Choose(item);
        EXPECT_EQ(TextOf("frmMain", label), shown);
    }
}

TEST_F(MainMenus, ANewGameAsksForTheNameAtOnce)
{
    EnterRules([] { SetMoney(999); });
    Click("frmMain", "cmdShop");
    player.NextLifeIs("<b>Пётр</b>", 2);
    Choose("mnuFileNewgame");
    EXPECT_EQ(player.dialogs, std::vector<QString>{"frmPlayerName"}); // and for nothing else
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
    player.Answers("Нет");
    EXPECT_EQ(Leave(), 0);
    EXPECT_EQ(player.boxes, std::vector<QString>{"Вопрос: Сохранить игру сейчас???"});
    EXPECT_TRUE(SavedFiles().isEmpty());
    EXPECT_TRUE(OpenWindows().isEmpty());
}

TEST_P(Leaving, SavesFirstOnYes)
{
    player.Answers("Да");
    player.SavesAs("Последняя");
    EXPECT_EQ(Leave(), 0);
    EXPECT_EQ(SavedFiles(), QStringList{"Последняя.QVS"});
}

TEST_P(Leaving, EndsEvenWhenTheSaveIsCancelled)
{
    player.Answers("Да");
    player.When("frmLocGame", [](QWidget& dialog) { Press(dialog, Qt::Key_Escape); });
    EXPECT_EQ(Leave(), 0);
    EXPECT_TRUE(SavedFiles().isEmpty());
}

} // namespace
} // namespace torvenhall::test
