#pragma once

#include <optional>

class QRect;
class QWidget;

namespace torvenhall
{

// The player's own magnification of everything. It opens as large as the screen
// allows and is remembered per user.

/// The scale of the whole session's start: the given one, else the one that the
/// player chose last, unless the screen has become too small for it, else the
/// fitting one.
void ChooseScale(std::optional<double> given);

/// The largest step at which every window with its frame fits into most of a
/// screen's free area.
double FittingScale(const QRect& freeArea);

/// Magnifies every open window at once, and what opens later.
void ApplyScale(double scale);

/// Ctrl+Plus, Ctrl+Minus and Ctrl+0 (what fits) change the scale in this window
/// too, and remember it.
void ChangeScaleByKeys(QWidget* window);

/// Where a window stands, for its next opening; it goes there only if that place,
/// its frame included, is still on a screen.
void RememberPlace(const QWidget& window);
void StandWhereItStood(QWidget& window);

} // namespace torvenhall
