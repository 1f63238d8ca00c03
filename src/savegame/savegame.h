#pragma once

#include <string>
#include <vector>

#include "savegame/format.h"

namespace torvenhall
{

/// Asks for a name and writes the game. A name that cannot be one is explained
/// in the dialog, a write that failed in a box; it asks again with the name
/// still there. Cancelling writes nothing. True when the game is written.
bool SaveGame();

/// Asks for a game and applies it line by line through the setters, or tells
/// why not. The file is never written to. A line that is none of its kind is
/// reported; the lines before it stay applied. A vital statistic at its fatal
/// bound ends the life (LifeEnd).
void LoadGame();

/// Begins another life with these lines, applied as a load applies them.
void ContinueGame(const SavedGame& game);

/// Deletes what a killed save may have left in the folder of the saved games.
void DeleteStraySaves();

/// The names of the saved games, sorted, without their extension. Errors 75, 76
/// when the folder cannot be read.
std::vector<std::string> ListSavedGames();

} // namespace torvenhall
