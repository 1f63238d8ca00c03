#pragma once

namespace torvenhall
{

// The time in which the game goes on: the wall clock's without the pauses. The
// message line is typed by it.

/// Seconds since some moment; they stand still while anything stops them.
double PlaySeconds();
bool PlayStandsStill();

/// The player's pause; a new game begins without one.
void SetPaused(bool paused);

/// Stops the time for a scope.
class StandStill
{
public:
    StandStill();
    ~StandStill();
    StandStill(const StandStill&) = delete;
    StandStill& operator=(const StandStill&) = delete;
};

} // namespace torvenhall
