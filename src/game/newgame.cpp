#include "game/newgame.h"

#include <string>

#include "activities/work.h"
#include "core/basGame.h"
#include "core/playclock.h"
#include "core/running.h"
#include "core/shown.h"
#include "core/timelabel.h"
#include "core/title.h"
#include "core/traps.h"
#include "core/unwinding.h"
#include "core/waits.h"
#include "equipment/basEquipment.h"
#include "equipment/catalogue.h"
#include "events/family.h"
#include "savegame/savegame.h"
#include "system/text.h"

namespace torvenhall
{

namespace
{

constexpr std::string_view NamePlaceholder = "Введите Ваше имя";

bool IsValidName(std::string_view name)
{
    return !name.empty() && !ContainsIgnoringCase(name, NamePlaceholder);
}

/// Closes every window and asks until the name is valid; cancelling ends the
/// program.
NewPlayer AskPlayerName()
{
    GameState.Restarting = True;
    Windows().CloseAllWindows();
    ForgetShown();
    SetPaused(false);
    GameState.Restarting = False;

    NewPlayer player{std::string(NamePlaceholder), 1};
    for (;;) {
        const std::optional<NewPlayer> entered = AskName(player);
        if (!entered) {
            EndProgram();
        }
        player = *entered;
        if (IsValidName(player.name)) {
            return player;
        }
        MsgBox("Введите корректное имя", "Внимание", Icon::Exclamation);
    }
}

void SetStartingValues(const NewPlayer& player)
{
    GameState.PlayerName = player.name;
    SetMoney(15);
    SetHappy(25);
    SetWork(0);
    SetEatLevel(75);
    SetHealth(40);
    SetGameSpeed(30);
    Int16 level = player.level;
    SetGameLevel(level);
    SetSoftSize(0);
    SetEducation(1);
    SetIntelligence(20);
    SetSoftSize(0);
    GameState.WifeFound = GameState.Married = False;
    GameState.Sons = GameState.Daughters = GameState.Alimony = 0;
    ShowFamily();
    GameState.GameDate = FirstDay;
    GameState.GameTime = {};
}

void EmptyTheComputer()
{
    for (int category = 0; category < HardwareCategories; ++category) {
        InstallHardware(category, 0, true);
    }
    for (int category = 0; category < SoftwareCategories; ++category) {
        InstallSoftware(category, 0);
    }
}

} // namespace

void Main()
{
    NewGame();
    DeleteStraySaves(); // not before the player sees anything
}

void NewGame()
{
    Trapped([] {
        BeginAnotherLife();
        const Running newGame(Running::What::NewGame);
        const NewPlayer player = AskPlayerName();
        SetStartingValues(player);
        EmptyTheComputer();
        ShowTime();
        ShowTitle();
        Windows().ShowMainWindow();
    });
}

} // namespace torvenhall
