#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "system/files.h"

namespace torvenhall
{

/// The path with one separator at its end: unchanged if it has one already.
std::string AddBackslash(std::string path, char separator = PathSeparator);
/// The path without its last character if that is the separator.
std::string StripBackslash(std::string path, char separator = PathSeparator);

/// Whether the path can be opened for reading as a file. Never raises and
/// never creates; a folder or a locked file gives false.
bool FileExists(const std::string& path);

/// The name without its last "." and what follows it.
std::string StripExtension(std::string_view name);

/// The saved-game transform: every byte one lower (0 becomes 255), and back.
std::string ShiftCharsDown(std::string bytes);
std::string ShiftCharsUp(std::string bytes);

/// The system's own folder without a trailing separator; empty where the
/// platform has none.
std::string GetWindowsDir();

/// Reads one value of the local machine's settings store as text (a number
/// becomes "&h" and hexadecimal digits). False when it is missing or the
/// platform has no such store.
bool GetKeyValue(const std::string& keyName, const std::string& valueName, std::string& value);

/// From now on the memory of a closed window's picture goes back to the system at
/// once, where the platform would keep it.
void GiveMemoryBack();

/// What the program was started with, its own name first, in UTF-8.
std::vector<std::string> ProgramArguments(int count, char** given);
/// From now on what the program tells appears on the console from which it was
/// started, where the platform gives a program with windows none by itself.
void SpeakToConsole();

/// From now on a request to end the program (a logout, the terminal closed)
/// does not end it but makes the returned descriptor readable. -1 where the
/// platform has no such thing.
int WatchEndRequests();

/// Whether the machine runs on its battery, where the system tells.
bool OnBattery();

/// Where the shipped files lie (texts, anecdotes), with a trailing separator:
/// the program's own folder, or the share folder of an installed program.
const std::string& ProgramDirectory();
/// Where SAVE and TEMP are made, with a trailing separator: the program's own
/// folder, or the user's data folder of an installed program.
const std::string& DataDirectory();
/// Finds both: the program is installed if there is a share folder at its place
/// relative to the program's own ("../share/torvenhall"); `userData` is the
/// player's folder for the data of this program, made if it is needed.
void FindDirectories(const std::string& programFolder, const std::string& installedShare,
                     const std::string& userData);
/// Sets both folders, for tools and tests.
void SetDirectories(const std::string& shipped, const std::string& data);

} // namespace torvenhall
