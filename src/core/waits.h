#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/port.h"

namespace torvenhall
{

// The rules' way to everything that waits. Each call abandons its routine
// (core/life.h) when the life it began in is over on return.

Answer MsgBox(std::string_view text, std::string_view title, Icon icon,
              Buttons buttons = Buttons::Ok);
std::optional<std::string> InputBox(std::string_view prompt, std::string_view title);
std::optional<NewPlayer> AskName(const NewPlayer& shown);
std::optional<std::string> AskGameName(const GameNameQuestion& question);
void ShowVirusWindow();

/// Waits until so many seconds have passed, handling window events.
void Pause(double seconds);
/// The network's pause: ends when the elapsed seconds, rounded half to even,
/// reach n, so up to half a second early; n <= 0 ends at once.
void WaitSeconds(int n);

/// Shows a text in a main-window label and remembers it.
void ShowLabel(Label label, std::string_view text, TextColour colour = TextColour::LightCyan);
/// The text that the label shows now.
const std::string& LabelText(Label label);
/// Puts every label back to its design-time text, as in a new window.
void ResetLabels();

} // namespace torvenhall
