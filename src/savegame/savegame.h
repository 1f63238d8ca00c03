#pragma once

#include <string>
#include <vector>

namespace torvenhall
{

/// Asks for a name and writes the game; tells the player when it failed and
/// asks again with the name still there. Cancelling writes nothing.
void SaveGame();

/// Asks for a game and applies it line by line through the setters, or tells
/// why not. The file is never written to. A line that is none of its kind is
/// reported; the lines before it stay applied. A vital statistic at its fatal
/// bound ends the life (LifeEnd).
void LoadGame();

/// The names of the saved games, sorted, without their extension.
std::vector<std::string> ListSavedGames();

} // namespace torvenhall
