#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace torvenhall
{

// What the files of src/system share among themselves. Each platform has one
// file; it defines the last two functions here, and from system/files.h and
// system/basSystem.h whatever needs more than the standard library.

std::filesystem::path NativePath(std::string_view utf8);
std::string Utf8Path(const std::filesystem::path& path);

/// Throws the run-time error of a failed file operation. Something missing is
/// a missing file only where a file was sought and its folder is there.
enum class Sought : unsigned char { File, Folder };
[[noreturn]] void RaiseFileError(const std::error_code& failure, Sought sought,
                                 std::string_view path);

/// Whether the path opens for reading as a file.
bool OpensForReading(const std::string& path);

/// Makes a folder's new entries outlast a power cut, where the platform can;
/// raises when that failed.
void FlushDirectory(const std::filesystem::path& directory);

/// What the platform has against a file of this name, which is UTF-8, not
/// empty and without separators.
std::string PlatformNameTrouble(std::string_view name);
/// How the names of temporary files begin.
inline constexpr std::string_view StrayPrefix = ".torvenhall-";

inline constexpr std::string_view NameTooLong = "Название слишком длинное.";

} // namespace torvenhall
