#pragma once

#include <string>

namespace torvenhall
{

/// A saved game as people read it.
struct Telling {
    std::string text;     ///< a line each: what it is and its value
    std::string troubles; ///< a line each: what is wrong with the file; empty: nothing
};

/// Tells what is in the file of a saved game. Run-time errors as reading a file
/// raises them.
Telling TellSavedGame(const std::string& path, bool inRussian);

} // namespace torvenhall
