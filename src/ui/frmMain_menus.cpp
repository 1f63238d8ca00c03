// The menus of the main window, in order.

#include <QActionGroup>
#include <QMenuBar>

#include "core/GameState.h"
#include "core/basGame.h"
#include "core/port.h"
#include "game/commands.h"
#include "game/entry.h"
#include "game/newgame.h"
#include "game/programs.h"
#include "savegame/savegame.h"
#include "ui/frmMain.h"
#include "ui/widgets/colours.h"
#include "ui/windows.h"

namespace torvenhall
{

QMenu* frmMain::AddMenu(const QString& title)
{
    return menuBar()->addMenu(title);
}

QAction* frmMain::AddItem(QMenu* menu, const char* name, const QString& text,
                          const Command& command)
{
    QAction* action = menu->addAction(text);
    action->setObjectName(name);
    if (command) {
        connect(action, &QAction::triggered, this, [command] { EnterRules(command); });
    }
    return action;
}

void frmMain::AddChoices(const QString& title, Int16 Game::*present,
                         const std::vector<MenuChoice>& choices, void (*choose)(int))
{
    QMenu* menu = AddMenu(title);
    auto* group = new QActionGroup(menu);
    for (const MenuChoice& choice : choices) {
        QAction* action = AddItem(menu, choice.name, choice.text,
                                  [choose, value = choice.value] { choose(value); });
        action->setCheckable(true);
        group->addAction(action);
        connect(menu, &QMenu::aboutToShow, action, [action, present, value = choice.value] {
            action->setChecked(GameState.*present == value);
        });
    }
}

void frmMain::AddSeparator(QMenu* menu, const char* name)
{
    menu->addSeparator()->setObjectName(name);
}

/// The keys in both layouts: where a machine has the Russian one only, nothing else
/// tells which letter is meant.
void frmMain::BuildFileMenu()
{
    QMenu* menu = AddMenu("&Файл");
    AddItem(menu, "mnuFileNewgame", "Новая игра", NewGame);
    AddSeparator(menu, "mnuFileSep1");
    AddItem(menu, "mnuFileSavegame", "Сохранить игру...", SaveGame)
        ->setShortcuts({QKeySequence("Ctrl+S"), QKeySequence("Ctrl+Ы")});
    AddItem(menu, "mnuFileLoadgame", "Загрузить игру...", LoadGame)
        ->setShortcuts({QKeySequence("Ctrl+O"), QKeySequence("Ctrl+Щ")});
    AddSeparator(menu, "mnuFileSep2");
    AddItem(menu, "mnuFileExit", "Выход", CloseProgram);
}

void frmMain::BuildGameMenu()
{
    QMenu* menu = AddMenu("&Игра");
    for (const WindowRow& row : WindowTable()) {
        if (row.item != nullptr) {
            AddItem(menu, row.item, row.itemText,
                    row.itemOpens ? Command([&row] { Open(row); }) : Command())
                ->setIcon(GlyphIcon(row.glyph, colour::Warm));
        }
    }
}

void frmMain::BuildSettingsMenus()
{
    AddChoices("&Уровень игры", &Game::GameLevel,
               {{"mnuLevelHard", "Сложный", 0},
                {"mnuLevelMiddle", "Нормальный", 1},
                {"mnuLevelEasy", "Простой", 2}},
               [](int chosen) {
                   Int16 level = chosen;
                   SetGameLevel(level);
               });
    AddChoices("&Скорость игры", &Game::GameSpeed,
               {{"mnuSpeedFast", "Быстрый", 60},
                {"mnuSpeedNormal", "Нормальный", 30},
                {"mnuSpeedSlow", "Медленный", 15}},
               [](int chosen) { SetGameSpeed(chosen); });
}

void frmMain::BuildHelpMenu()
{
    QMenu* menu = AddMenu("Сп&равка");
    QAction* help = AddItem(menu, "mnuhelpReadme", "Справка", ShowReadme);
    help->setShortcut(QKeySequence("F1"));
    help->setAutoRepeat(false); // one editor, however long the key is held
    AddItem(menu, "mnuHelpEULA", "Лицензионное соглашение", ShowLicence);
    AddSeparator(menu, "mnuHelpS1");
    AddItem(menu, "mnuHelpAbout", "О программе...", [] { Windows().OpenWindow("frmAbout"); });
}

} // namespace torvenhall
