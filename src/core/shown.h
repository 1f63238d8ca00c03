#pragma once

#include <string>
#include <string_view>

#include "core/labels.h"
#include "system/calendar.h"

namespace torvenhall
{

// What the main window shows. This is the only copy: the windows are told
// which label has changed and read it here.

enum class TextColour : unsigned char { LightCyan, Red };

struct ShownText {
    std::string text;
    TextColour colour = TextColour::LightCyan;
};

/// Shows a text in a main-window label.
void ShowLabel(Label label, std::string_view text, TextColour colour = TextColour::LightCyan);
/// Shows a day and a time of day, "1 января 2001 г. - 00:30". They change more
/// often than somebody looks: the text is only made for whoever asks.
void ShowMoment(Label label, Date date, TimeOfDay time);
/// What the label shows now.
const ShownText& ShownAt(Label label);
/// Empties every label, as no main window is left to show it.
void ForgetShown();

} // namespace torvenhall
