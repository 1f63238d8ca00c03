#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/GameState.h"

namespace torvenhall
{

// The saved game as text: 38 lines in a fixed order, CR LF between them, in
// windows-1251, every byte one lower. Nothing here shows or stores anything.

/// The first line; any other text there is another release's game.
inline constexpr std::string_view ApplicationTitle = "Marshend Torvenhall 1.5";

inline constexpr std::size_t SavedLines = 38;
using SavedGame = std::vector<std::string>;

/// The bytes of the file for a game.
std::string EncodeGame(const GameStateRecord& game);

/// The lines of a file's bytes, UTF-8: at least one. Error 9 for more lines
/// than a game has.
SavedGame DecodeGame(std::string_view bytes);

/// Converts one line, counted from 1, into its field; the first line has
/// none. Error 13 when it is no such value, error 6 when it is out of range.
void ReadField(GameStateRecord& game, std::size_t line, std::string_view text);

} // namespace torvenhall
