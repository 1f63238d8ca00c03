#pragma once

namespace torvenhall
{

/// The program's own logic begins here: a new game.
void Main();

/// Closes every window, asks for name and difficulty (cancelling ends the
/// program) and begins a life with the starting values. The attendance flags
/// stay as they were.
void NewGame();

} // namespace torvenhall
