// Saves and loads by the real rules without windows, for the drivers beside it.
// Starts as the program does, so strays of killed saves are swept first.
//
//   saver save DATA GAME PLAYER        saves PLAYER's life as GAME, then cancels
//                                      the dialog if it is shown again
//   saver save-anew DATA GAME PLAYER   the same, but the folder SAVE vanishes
//                                      while the dialog is open
//   saver loop DATA GAME PLAYER...     saves one life after the other, for ever
//   saver load DATA [GAME]             loads GAME; without it cancels the dialog
//
// DATA is the folder with SAVE. Printed are, one a line: "box ..." for each box
// shown, "ask ..." for each dialog with the games that it lists, and "life HEX",
// the bytes of a saved game of the life as it is at the end. The loop prints
// "ready" when it begins, and goes on until it is killed or a box was shown.

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <utility>

#include <sys/uio.h>
#include <unistd.h>

#include "core/random.h"
#include "game/commands.h"
#include "game/entry.h"
#include "game/newgame.h"
#include "savegame/format.h"
#include "savegame/savegame.h"
#include "support/scripted.h"

using namespace torvenhall;

/// A call that does nothing, for who reads the trace of this program's calls.
static void Mark(const char* what)
{
    static_cast<void>(::access(what, F_OK));
}

/// Prints by a call that no saved game needs, so that it works while those fail.
static void Print(std::string line)
{
    std::ranges::replace(line, '\n', ' ');
    line += '\n';
    const iovec whole{line.data(), line.size()};
    static_cast<void>(::writev(STDOUT_FILENO, &whole, 1));
}

static void PrintJournal(const ScriptedFrontEnd& player)
{
    for (const std::string& line : player.journal) {
        if (std::ranges::find(player.boxes, line) != player.boxes.end()) {
            Print("box " + line);
        } else if (line.starts_with("Сохранение игры |") || line.starts_with("Загрузка игры |")) {
            Print("ask " + line);
        }
    }
}

static void PrintLife()
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string line = "life ";
    for (const char byte : EncodeGame(GameState)) {
        const auto value = static_cast<unsigned char>(byte);
        line += {digits[value / digits.size()], digits[value % digits.size()]};
    }
    Print(line);
}

/// Confirms the save dialog once; the calls of the save lie between the marks.
static void Save(ScriptedFrontEnd& player, const std::string& game,
                 const std::function<void()>& whileAsked)
{
    player.games = {game, std::nullopt};
    player.whileOpen = {[&] {
        whileAsked();
        Mark("torvenhall:confirmed");
    }};
    EnterRules(SaveGame);
    Mark("torvenhall:returned");
}

static void SaveForEver(ScriptedFrontEnd& player, const std::string& game, const Texts& names)
{
    Print("ready");
    for (std::size_t turn = 0; player.boxes.empty(); ++turn) {
        GameState.PlayerName = names[turn % names.size()];
        Save(player, game, [] {});
        player.journal.clear();
    }
}

int main(int count, char** values)
{
    const Texts arguments(values + 1, values + count);
    const std::string mode = arguments.empty() ? "" : arguments[0];
    if (arguments.size() < (mode == "load" ? 2 : 4)) {
        std::cerr << "usage: see the head of saver.cpp\n";
        return 2;
    }
    const std::string data = arguments[1] + "/", game = arguments.size() > 2 ? arguments[2] : "";
    const Texts names(arguments.begin() + std::min<long>(3, std::ssize(arguments)),
                      arguments.end());

    ScriptedFrontEnd player;
    RandomDice dice{1};
    StartRules({&player, &dice, &player}, data);
    player.names = {NewPlayer{names.empty() ? "a" : names.front(), 1}};
    EnterRules(Main);
    player.journal.clear();
    if (mode == "load") {
        player.games = {game};
        EnterRules(LoadGame);
    } else if (mode == "loop") {
        SaveForEver(player, game, names);
    } else {
        const bool vanishes = mode == "save-anew";
        Save(player, game, [&] {
            if (vanishes) {
                std::filesystem::remove_all(data + "SAVE");
            }
        });
    }
    PrintJournal(player);
    PrintLife();
    player.answers = {Answer::No};
    EnterRules(CloseProgram); // leaves no life in hand
    return 0;
}
