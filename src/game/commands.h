#pragma once

namespace torvenhall
{

// What the main window's commands do beyond opening a window.

/// Opens the network window, or tells what is missing.
void GoOnline();

/// The closing question, then the end of the program; saves first on "Да". A
/// game that was to be saved and could not be is kept for the next start.
void CloseProgram();

/// The end that nobody at the keyboard has asked for (a logout, a signal):
/// without a question, the life in hand kept for the next start.
void EndFromOutside();

} // namespace torvenhall
