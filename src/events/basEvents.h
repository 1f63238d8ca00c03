#pragma once

#include "system/checked.h"

namespace torvenhall
{

/// The start of a game day: the random event, the wage, the day's wear.
/// An error abandons it silently.
void DailyEvents();
/// The life table; at a month's end (anything but 0) also its charges.
/// An error is reported.
void LifeEvents(Int16 monthEnd);
/// The year's taxes. An error abandons it silently.
void PayTaxes();

} // namespace torvenhall
