#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/port.h"

namespace torvenhall
{

// The rules' way to everything that waits. Each call abandons its routine
// (core/unwinding.h) when the life it began in is over on return.

Answer MsgBox(std::string_view text, std::string_view title, Icon icon,
              Buttons buttons = Buttons::Ok);
/// The box that ends a life. Whatever else waits for that life is abandoned
/// first: nothing of a dead person's day comes over it.
[[noreturn]] void LastBox(std::string_view text, std::string_view title, Icon icon);
std::optional<std::string> InputBox(std::string_view prompt, std::string_view title);
std::optional<NewPlayer> AskName(const NewPlayer& shown);
std::optional<std::string> AskGameName(const GameNameQuestion& question);
void ShowVirusWindow();

/// Waits until so many seconds of the game (core/playclock.h) have passed.
void Pause(double seconds);
/// Waits so many seconds of the wall clock, or less.
void AwaitTime(double seconds);
/// The network's pause, in the game's seconds too: ends when the elapsed seconds, rounded half to
/// even, reach n, so up to half a second early; n <= 0 ends at once.
void WaitSeconds(int n);

} // namespace torvenhall
