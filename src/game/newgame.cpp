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
#include "game/clock.h"
#include "savegame/recovery.h"
#include "savegame/savegame.h"
#include "system/convert.h"
#include "system/files.h"
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

void CloseEverything()
{
    GameState.Restarting = True;
    Windows().CloseAllWindows();
    ForgetShown();
    SetPaused(false);
    GameState.Restarting = False;
}

/// Asks until the name is valid; cancelling ends the program.
NewPlayer AskPlayerName()
{
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

constexpr std::string_view BrokenOff = "Прерванная игра";

/// Whether the player wants to go on with it.
bool Offer(const Game& life)
{
    const std::string told = "Прошлая игра прервалась, но не потеряна: " + life.PlayerName + ", " +
                             LongDateText(life.GameDate) + " г., $" + Decimal(life.Money) +
                             ".\n\nПродолжить её? «Нет» удалит её навсегда.";
    return MsgBox(told, BrokenOff, Icon::Question, Buttons::YesNo) == Answer::Yes;
}

void GoOnWith(const KeptLife& kept)
{
    BeginAnotherLife();
    CloseEverything();
    TakeLifeInHand(kept);
    {
        const Running newGame(Running::What::NewGame);
        SetStartingValues({kept.game->PlayerName});
        EmptyTheComputer();
    }
    ContinueGame(kept.lines);
    SetPaused(true);
    Windows().EnableTimer(false);
    Windows().ShowMainWindow();
    constexpr double untilItStands = 0.2; // somewhere on the desktop; the pause opens over it
    AwaitTime(untilItStands);
    if (PlayStandsStill()) {
        PauseGame();
    }
}

/// Tells why nobody can go on with a kept life; a damaged one is not offered
/// again.
void Refuse(const KeptLife& kept)
{
    const bool isDamaged = kept.failure == 0 || kept.failure == error::Subscript ||
                           kept.failure == error::BadRecordLength;
    if (!isDamaged) {
        ReportError(kept.failure, kept.path);
        return;
    }
    Trapped([&] {
        MsgBox("Прошлая игра прервалась, а её файл повреждён. Он отложен: " +
                   SetKeptLifeAside(kept),
               BrokenOff, Icon::Exclamation);
    });
}

/// Whether the player goes on with a life that a program had in hand when it
/// stopped.
bool GoesOn()
{
    for (const KeptLife& kept : FindKeptLives()) {
        if (!kept.game) {
            Refuse(kept);
        } else if (Offer(*kept.game)) {
            GoOnWith(kept);
            return true;
        } else {
            Trapped([&] { DeleteFile(kept.path); });
        }
    }
    return false;
}

/// The same for a saved game that the program was begun with.
bool GoesOnWith(const std::string& savedGame)
{
    if (savedGame.empty()) {
        return false;
    }
    const SavedGame lines = DecodeGame(ReadWholeFile(savedGame));
    const std::optional<Game> game = WholeGame(lines);
    if (game) {
        GoOnWith({.path = {}, .lock = {}, .lines = lines, .game = game});
    }
    return game.has_value();
}

} // namespace

void Main()
{
    MainWith({});
}

void MainWith(const std::string& savedGame)
{
    DeleteStraySaves();
    bool goesOn = false;
    // What failed half-way is still kept for the next start.
    if (!Trapped([&] { goesOn = GoesOn() || GoesOnWith(savedGame); })) {
        EndProgram();
    }
    if (!goesOn) {
        NewGame();
    }
}

void NewGame()
{
    Trapped([] {
        KeepLife(); // until its successor has a name
        BeginAnotherLife();
        const Running newGame(Running::What::NewGame);
        CloseEverything();
        const NewPlayer player = AskPlayerName();
        TakeLifeInHand();
        SetStartingValues(player);
        EmptyTheComputer();
        ShowTime();
        ShowTitle();
        Windows().ShowMainWindow();
    });
}

} // namespace torvenhall
