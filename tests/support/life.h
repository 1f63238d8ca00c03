#pragma once

#include <filesystem>
#include <map>
#include <random>
#include <sstream>

#include "core/basGame.h"
#include "core/unwinding.h"
#include "game/entry.h"
#include "game/newgame.h"
#include "support/journal.h"

namespace torvenhall::test
{

using enum Label;

inline std::string MakeFolder()
{
    const std::string name = "torvenhall-" + std::to_string(std::random_device{}());
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / name;
    EXPECT_TRUE(std::filesystem::create_directory(folder)) << "no folder for the test's files";
    return AddBackslash(folder.string());
}

/// A test that plays: the scripted player and dice connected to rules that
/// have just started, files in a folder of the test's own.
class Life : public ::testing::Test
{
protected:
    Life() { StartRules({&player, &dice, &player}, folder); }
    ~Life() override
    {
        // The game may have made its own folder the current one.
        std::filesystem::current_path(std::filesystem::temp_directory_path());
        std::error_code isStillHeld; // the life in hand, where a held file cannot be deleted
        std::filesystem::remove_all(folder, isStillHeld);
        Connect({});
    }

    /// Begins a new game and forgets what it showed.
    void Begin(int level = 1, const std::string& name = "Иван")
    {
        NextLifeIs(name, level);
        EnterRules(NewGame);
        player.journal.clear();
        Given("");
    }
    /// Forgets what was shown; the next name dialog is answered with this name.
    void NextLifeIs(const std::string& name, int level = 1)
    {
        player.journal = player.boxes = {};
        player.names = {NewPlayer{name, level}};
    }
    /// A tick through the same door as the real timer's.
    static void Tick(int times = 1)
    {
        for (int i = 0; i < times; ++i) {
            EnterTick();
        }
    }
    /// The next tick begins a day, the 15th of June.
    static void JustBeforeMidnight()
    {
        GameState.GameDate = std::chrono::year{2001} / 6 / 14;
        GameState.GameTime = {23, 30};
        GameState.GameSpeed = 30;
    }
    /// The player does this once, in the next box, dialog, virus window or wait.
    void Meanwhile(const std::function<void()>& body)
    {
        player.whileOpen = player.duringWait = {[=, this] {
            player.whileOpen = player.duringWait = {};
            body();
        }};
    }

    /// Changes fields, "Married=-1 Sons=2", for the attempts that follow.
    void Given(const std::string& fields)
    {
        Assign(fields);
        given = GameState;
    }
    /// What a body does: "Money -5, Happy +20 | SoftOS=1", and that one dies.
    std::string Outcome(const std::function<void()>& body)
    {
        Game before = GameState;
        player.journal.clear();
        std::string end;
        try {
            body();
        } catch (const LifeEnd&) {
            end = "dies";
        }
        player.boxes.clear();
        const std::string happened = Joined(WithChanges(Happened(), before));
        before.Money = GameState.Money; // told already
        before.Happy = GameState.Happy;
        before.Health = GameState.Health;
        before.EatLevel = GameState.EatLevel;
        return Joined({happened, ChangedFields(before), end}, " | ");
    }
    /// Writes down the outcome from the given life with these fields changed.
    void Try(const std::string& fields, const std::function<void()>& body)
    {
        GameState = given;
        Assign(fields);
        lines.push_back(Joined({fields, Outcome(body)}, ": "));
    }
    /// The same for the lines of a file, "verb 21 Married=-1: its outcome".
    void TryEach(const std::string& file,
                 const std::map<std::string, std::function<void(int)>>& verbs)
    {
        ExpectEach(file, [&](const std::string& line) {
            std::istringstream words(line);
            std::string verb, fields;
            int number = 0;
            std::getline(words >> verb >> number, fields);
            GameState = given;
            Assign(fields);
            return Outcome([&] { verbs.at(verb)(number); });
        });
    }
    /// The same for each number, where equal outcomes share a line.
    void Walk(const std::string& what, int first, int last, const std::function<void(int)>& body)
    {
        for (const std::string& line : Grouped(first, last, [&](int number) {
                 GameState = given;
                 return Outcome([&] { body(number); });
             })) {
            lines.push_back(Joined({what, line}));
        }
    }

    /// The text that the main window shows there.
    static const std::string& LabelShown(Label label) { return ShownAt(label).text; }
    /// What happened, and the boxes, since the last call.
    Texts Happened() { return std::exchange(player.journal, {}); }
    Texts Told() { return std::exchange(player.boxes, {}); }
    /// The number of the error that a box since the last call reports, or 0.
    int ErrorTold()
    {
        const std::string told = Joined(Told()), sign = "№ ";
        const std::size_t at = told.find(sign);
        return at != std::string::npos ? std::stoi(told.substr(at + sign.size()))
               : told.find("Несовпадение типов") != std::string::npos ? error::TypeMismatch
                                                                      : 0;
    }

    ScriptedFrontEnd player;
    ScriptedDice dice;
    const std::string folder = MakeFolder(); ///< of the test's own, with a trailing separator
    Texts lines;                             ///< what was written down

private:
    Game given;
};

/// The same with a game begun.
class BegunLife : public Life
{
protected:
    BegunLife() { Begin(); }
};

} // namespace torvenhall::test
