// The menus of the main window, in order.

#include <QMenuBar>

#include "core/basGame.h"
#include "core/port.h"
#include "game/commands.h"
#include "game/entry.h"
#include "game/newgame.h"
#include "game/programs.h"
#include "savegame/savegame.h"
#include "ui/frmMain.h"
#include "ui/windows.h"

namespace torvenhall
{

namespace
{

template <int chosen>
void ChooseLevel()
{
    Int16 level = chosen;
    SetGameLevel(level);
}

template <int speed>
void ChooseSpeed()
{
    SetGameSpeed(speed);
}

} // namespace

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

void frmMain::AddSeparator(QMenu* menu, const char* name)
{
    menu->addSeparator()->setObjectName(name);
}

void frmMain::BuildFileMenu()
{
    QMenu* menu = AddMenu("&Файл");
    AddItem(menu, "mnuFileNewgame", "Новая игра", NewGame);
    AddSeparator(menu, "mnuFileSep1");
    AddItem(menu, "mnuFileSavegame", "Сохранить игру...", SaveGame)
        ->setShortcut(QKeySequence("Ctrl+S"));
    AddItem(menu, "mnuFileLoadgame", "Загрузить игру...", LoadGame)
        ->setShortcut(QKeySequence("Ctrl+O"));
    AddSeparator(menu, "mnuFileSep2");
    AddItem(menu, "mnuFileExit", "Выход", CloseProgram);
}

void frmMain::BuildGameMenu()
{
    QMenu* menu = AddMenu("&Игра");
    for (const WindowRow& row : WindowTable()) {
        if (row.item != nullptr) {
            AddItem(menu, row.item, row.itemText,
                    row.itemOpens ? Command([&row] { Open(row); }) : Command());
        }
    }
}

void frmMain::BuildSettingsMenus()
{
    QMenu* level = AddMenu("&Уровень игры");
    AddItem(level, "mnuLevelHard", "Сложный", ChooseLevel<0>);
    AddItem(level, "mnuLevelMiddle", "Нормальный", ChooseLevel<1>);
    AddItem(level, "mnuLevelEasy", "Простой", ChooseLevel<2>);
    QMenu* speed = AddMenu("&Скорость игры");
    AddItem(speed, "mnuSpeedFast", "Быстрый", ChooseSpeed<60>);
    AddItem(speed, "mnuSpeedNormal", "Нормальный", ChooseSpeed<30>);
    AddItem(speed, "mnuSpeedSlow", "Медленный", ChooseSpeed<15>);
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
