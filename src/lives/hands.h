#pragma once

#include <cstddef>

#include "activities/services.h"
#include "core/GameState.h"

namespace torvenhall::lives
{

// What a player's hands can do: each asks the rules by the call that the
// window's own button makes. A button that would refuse tells so beforehand,
// as it does in its window, and is left alone.

// The rows of the services, by their place in the window.
inline constexpr std::size_t BigMac = 0, WholeMeal = 4;
inline constexpr std::size_t Casino = 0, Sauna = 2, ShortRest = 3;
inline constexpr std::size_t Spirit = 6;

int PriceOf(const ServiceWindow& window, std::size_t service);
/// Buys; false when the money does not reach.
bool Buy(const ServiceWindow& window, std::size_t service);

/// Takes the best job that is given, if it is better than the present one.
void TakeBestJob();

/// Goes to school or to the courses from now on, unless it is done with.
void AttendSchool();
void AttendCourses();
void LeaveSchool();
void LeaveCourses();

/// What the next part of a category costs; 0 when it has the best.
int PriceOfNext(int category);
/// Buys it if that leaves so much money.
bool BuyNext(int category, int leaving);

/// Chooses a difficulty from the menu.
void ChooseLevel(int level);

/// Whether it is the last day of a month: the night will cast the dice twice.
bool MonthEnds();

} // namespace torvenhall::lives
