#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/GameState.h"

namespace torvenhall
{

// The saved game as text: 38 lines in a fixed order, CR LF between them, in
// windows-1251, every byte one lower. The first line is ApplicationTitle; any
// other is another release's game.

inline constexpr std::size_t SavedLines = 38;
using SavedGame = std::vector<std::string>;

/// The bytes of the file for a game.
std::string EncodeGame(const Game& game);

/// The lines of a file's bytes, UTF-8: at least one. Error 9 for more lines
/// than a game has.
SavedGame DecodeGame(std::string_view bytes);

/// Whether a text can stand in a line, counted from 1.
bool IsLine(std::size_t line, std::string_view text);

/// The game that the lines tell, if they are all lines of a game of this
/// release and each of its kind.
std::optional<Game> WholeGame(const SavedGame& lines);

/// Converts one line, counted from 2, and applies it to the present game,
/// through the setter where there is one. Error 13 when it is no such value,
/// error 6 when it is out of range.
void ApplyLine(std::size_t line, std::string_view text);

} // namespace torvenhall
