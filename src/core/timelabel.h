#pragma once

namespace torvenhall
{

/// Shows the game's date and time in lblTime: "1 января 2001 г. - 00:30".
/// While a day's events run it is the day that has begun; GameDate itself moves
/// when they are done.
void ShowTime();

} // namespace torvenhall
