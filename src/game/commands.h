#pragma once

namespace torvenhall
{

// What the main window's commands do beyond opening a window.

/// Opens the network window, or tells what is missing.
void GoOnline();

/// The closing question, then the end of the program; saves first on "Да".
void CloseProgram();

} // namespace torvenhall
