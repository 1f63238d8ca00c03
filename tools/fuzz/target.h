#pragma once

#include <string>
#include <string_view>

#include "core/GameState.h"
#include "support/scripted.h"

namespace torvenhall::fuzz
{

// A target reads one input as the game reads a file that anybody may have
// written, and ends the process when something does not hold. Under libFuzzer
// the inputs follow the coverage; without it replay.cpp makes them.

/// What the target does with one input. Each target defines it.
void Check(std::string_view input);
/// The lengths of input that a target is for; longer ones are cut.
std::size_t LongestInput();

/// Ends the process with these words, and keeps the input, unless it holds.
void Require(bool holds, std::string_view what);
/// Runs a reader of the game: in less than 100 ms, no piece of memory larger
/// than 64 MiB.
void Limited(const std::function<void()>& reader);
/// What `Limited` holds, where the allocations are counted: libFuzzer has a
/// limit of its own.
extern std::size_t largestAllocation;
/// Counts an input's outcome for the line of figures.
void Count(const std::string& outcome);
/// "name: 1000 executions, slowest 0.8 ms, ...: loaded 7, refused 993".
void PrintFigures();

/// The rules, just started, with a player, dice and a folder of their own; the
/// game's files lie three folders deep in it.
struct Rules {
    ScriptedFrontEnd player;
    ScriptedDice dice;
    std::string top, folder; ///< with a separator at the end

    Rules();
    ~Rules();
    void Save(const std::string& name);
    /// Loads a game of that name; the boxes are then in player.boxes.
    void Load(const std::string& name);
};
Rules& TheRules();
/// Begins a new life.
Game BegunLife();

/// The files' bytes, not by the game's own reader and writer.
void WriteBytes(const std::string& path, std::string_view bytes);
std::string BytesOf(const std::string& path);

} // namespace torvenhall::fuzz
