#pragma once

namespace torvenhall
{

/// Shows the game's date and time in lblTime: "1 января 2001 г. - 00:30".
void ShowTime();

} // namespace torvenhall
