#pragma once

#include <string>

namespace torvenhall
{

/// The program's own logic begins here: offers to go on with a life that was
/// in hand when a program stopped without its normal end, paused; else a new
/// game.
void Main();
/// The same with a saved game, by its path, instead of a new one; paused.
void MainWith(const std::string& savedGame);

/// Closes every window, asks for name and difficulty (cancelling ends the
/// program and keeps the life before) and begins a life with the starting
/// values. The attendance flags stay as they were.
void NewGame();

} // namespace torvenhall
