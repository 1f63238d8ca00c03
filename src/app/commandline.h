#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace torvenhall
{

/// What the program was asked for on its command line.
struct CommandLine {
    /// The program ends at once with this code; what it has to say is said.
    std::optional<int> ended;
    QString tourFolder;          ///< empty: play
    QString dataFolder;          ///< empty: the usual place
    QString savedGame;           ///< absolute path of a game to go on with; empty: none
    QString recordFile;          ///< empty: the game is not recorded
    double fontPoints = 0;       ///< 0: the desktop's
    std::optional<double> scale; ///< else the player's own or the fitting one
    bool still = false;
};

/// Reads the command line, the program's name first. What needs no window is
/// answered here, before a display is needed: help, version, --show; a mistake
/// ends the program with code 2, a file that cannot be told with 1. Messages are
/// in Russian where the player's locale is, else in English.
CommandLine ReadCommandLine(const QStringList& arguments);

/// Tells that there is no display to play on, and ends the program with code 3.
[[noreturn]] void EndWithoutDisplay();

} // namespace torvenhall
