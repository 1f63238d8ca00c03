#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace torvenhall
{

// Paths are UTF-8 everywhere; files are read and written in binary.

inline constexpr char PathSeparator = static_cast<char>(std::filesystem::path::preferred_separator);

/// No file of the game is nearly as long, bytes.
inline constexpr std::size_t LongestFile = 1U << 20U;

/// The whole file, which must be a regular one (else error 75) and not longer
/// than LongestFile (error 59). Errors 53 (missing), 70, 75, 76, 57 as the
/// system tells.
std::string ReadWholeFile(const std::string& path);

/// Replaces the file so that at any moment, a crash or a full disk included,
/// the path holds either the old bytes or the new ones: writes a temporary
/// file beside it, flushes it to the disk, renames it over the path and
/// flushes the folder. Every step is checked; a failed one removes the
/// temporary file, leaves the old file as it was and raises 52, 57, 61, 70,
/// 75 or 76. (Only if the very last step fails are the new bytes in place
/// already.) A write-protected file is not replaced.
void ReplaceFile(const std::string& path, std::string_view bytes);

/// Puts a new file in the place of whatever has that name; never writes through
/// a link. Errors as above.
void WriteNewFile(const std::string& path, std::string_view bytes);

void DeleteFile(const std::string& path);
/// Renames a file within its folder, over what has that name.
void RenameFile(const std::string& path, const std::string& newPath);

/// Makes the file (empty, if it is missing) this program's own for as long as
/// what is returned lives, or until the process ends, however it does. Nothing
/// when another program has it or it cannot be made.
std::shared_ptr<void> LockFile(const std::string& path);

bool IsDirectory(const std::string& path);
/// Creates one folder; no error if it is there already. Errors 75, 76.
void MakeDirectory(const std::string& path);
/// Makes the folder current; error 76 when there is no such folder, 75 when
/// it may not be entered.
void ChangeDirectory(const std::string& path);

/// The names of the regular files of a folder, sorted without regard to
/// case; names that are not UTF-8 are left out. Empty when there is no such
/// folder; errors 75, 76 when it cannot be read.
std::vector<std::string> FileNames(const std::string& directory);

/// Deletes the temporary files that killed writers have left in a folder, but
/// none that may still be written by another copy of the program.
void DeleteStrays(const std::string& directory);

/// Why no file should have this name (no folder in it), in the player's words
/// and in Russian: empty, a separator, a character that cannot be seen, a name
/// reserved by the system, too long. Empty when there is nothing to say.
std::string FileNameTrouble(std::string_view name);

} // namespace torvenhall
