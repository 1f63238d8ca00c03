#pragma once

#include <optional>

#include "core/GameState.h"
#include "core/port.h"

namespace torvenhall
{

/// The field of GameState for a category 0..8 or 0..5; error 9 outside.
Int16& HardwareField(Int16 category);
Int16& SoftwareField(Int16 category);

/// The box that a purchase of the part, or an installation of the program, would
/// bring; nothing where it would succeed, or where there is no such item. Error
/// 6 as the purchase's own.
std::optional<MessageBox> HardwareRefusal(Int16 category, Int16 index);
std::optional<MessageBox> SoftwareRefusal(Int16 category, Int16 index);

/// Puts a part into its slot, for its full price if `pay` is set: refused
/// with a box when the money does not reach. Errors are reported.
void InstallHardware(Int16 category, Int16 index, bool pay);

/// Installs an item if its requirements are met; otherwise tells them and
/// returns false. An index outside the list does nothing and returns false.
bool InstallSoftware(Int16 category, Int16 index);

/// Shows the name of what the category's field holds.
void ShowSoftware(Int16 category);

/// Shows and stores the size of the other software, megabytes.
void SetSoftSize(Int16 megabytes);

/// The sum of the installed indices; CompleteComputer is the highest.
Int16 HardwareScore();

} // namespace torvenhall
