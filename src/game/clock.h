#pragma once

namespace torvenhall
{

/// One tick: advances the game time by GameSpeed minutes, runs what the hour,
/// day, month and year bring, tests for the win and refreshes lblTime.
/// Dropped whole, or reduced to the label, while something runs that a tick
/// must not disturb.
void ClockTick();

/// Stops the clock and the message line and shows the pause window; and back.
void PauseGame();
void ResumeGame();

} // namespace torvenhall
