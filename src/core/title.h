#pragma once

#include <string_view>

namespace torvenhall
{

/// The program's title; a saved game begins with it.
inline constexpr std::string_view ApplicationTitle = "Marshend Torvenhall 1.5";

/// Puts the title and the player's name on the main window.
void ShowTitle();

} // namespace torvenhall
