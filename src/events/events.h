#pragma once

#include "system/checked.h"

namespace torvenhall
{

/// When an event can be drawn: on each day, on each day of a marriage, or from
/// the life table.
enum class When : unsigned char { Daily, Married, Rare };

// Events are drawn as 0 to these.
inline constexpr int HighestDailyDraw = 50;
inline constexpr int HighestRareDraw = 25;

/// Lets the event happen that a number draws. Most numbers draw none, but
/// without a rare event the day wears.
void Happen(When when, Int16 draw);

} // namespace torvenhall
