#include "system/files.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>

#include "system/errors.h"
#include "system/platform.h"
#include "system/text.h"

namespace torvenhall
{

namespace
{

namespace fs = std::filesystem;

struct Mapping {
    std::errc failure;
    int number;
};

constexpr std::array Mappings{
    Mapping{std::errc::no_such_file_or_directory, error::FileNotFound},
    Mapping{std::errc::not_a_directory, error::PathNotFound},
    Mapping{std::errc::too_many_symbolic_link_levels, error::PathNotFound},
    Mapping{std::errc::filename_too_long, error::BadFileName},
    Mapping{std::errc::invalid_argument, error::BadFileName},
    Mapping{std::errc::illegal_byte_sequence, error::BadFileName},
    Mapping{std::errc::file_exists, error::FileExists},
    Mapping{std::errc::no_space_on_device, error::DiskFull},
    Mapping{std::errc::file_too_large, error::DiskFull},
    Mapping{std::errc::too_many_files_open, error::TooManyFiles},
    Mapping{std::errc::too_many_files_open_in_system, error::TooManyFiles},
    Mapping{std::errc::not_enough_memory, error::OutOfMemory},
    Mapping{std::errc::read_only_file_system, error::PermissionDenied},
    Mapping{std::errc::device_or_resource_busy, error::PermissionDenied},
    Mapping{std::errc::text_file_busy, error::PermissionDenied},
    Mapping{std::errc::permission_denied, error::PathFileAccess},
    Mapping{std::errc::operation_not_permitted, error::PathFileAccess},
    Mapping{std::errc::is_a_directory, error::PathFileAccess},
    Mapping{std::errc::directory_not_empty, error::PathFileAccess},
};

int NumberOf(const std::error_code& failure, Sought sought, std::string_view path)
{
    const auto found = std::ranges::find_if(
        Mappings, [&](const Mapping& mapping) { return failure == mapping.failure; });
    if (found == Mappings.end()) {
        return error::DeviceInputOutput;
    }
    if (found->number != error::FileNotFound) {
        return found->number;
    }
    std::error_code ignored;
    const bool folderIsThere = fs::is_directory(NativePath(path).parent_path(), ignored);
    return sought == Sought::File && folderIsThere ? error::FileNotFound : error::PathNotFound;
}

/// Control characters, blanks of no width and what turns the direction of
/// writing: a name would not be what it looks like.
bool IsInvisible(char32_t character)
{
    constexpr std::pair<char32_t, char32_t> ranges[]{
        {0x00, 0x1F},     {0x7F, 0x9F},     {0xAD, 0xAD},    {0x61C, 0x61C},
        {0x200B, 0x200F}, {0x2028, 0x202E}, {0x2060, 0x2069}};
    return std::ranges::any_of(ranges, [&](const auto& range) {
        return character >= range.first && character <= range.second;
    });
}

/// Whether only a writer gives such a name: a player's game may begin so too.
bool IsStray(const std::string& name)
{
    return name.starts_with(StrayPrefix) &&
           name.find_first_not_of("0123456789-", StrayPrefix.size()) == std::string::npos;
}

/// How a call that reports by an error code ended; one that a signal has
/// interrupted is repeated.
template <class Call>
std::error_code FailureOf(Call&& call)
{
    std::error_code failure;
    do {
        failure.clear();
        call(failure);
    } while (failure == std::errc::interrupted);
    return failure;
}

} // namespace

fs::path NativePath(std::string_view utf8)
{
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string Utf8Path(const fs::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

void RaiseFileError(const std::error_code& failure, Sought sought, std::string_view path)
{
    throw RuntimeError{NumberOf(failure, sought, path), std::string(path)};
}

void DeleteFile(const std::string& path)
{
    if (IsDirectory(path)) {
        throw RuntimeError{error::PathFileAccess, path};
    }
    std::error_code failure;
    const bool removed = fs::remove(NativePath(path), failure);
    if (failure) {
        RaiseFileError(failure, Sought::File, path);
    }
    if (!removed) {
        throw RuntimeError{error::FileNotFound, path};
    }
}

void RenameFile(const std::string& path, const std::string& newPath)
{
    std::error_code failure;
    fs::rename(NativePath(path), NativePath(newPath), failure);
    if (failure) {
        RaiseFileError(failure, Sought::File, path);
    }
}

bool IsDirectory(const std::string& path)
{
    std::error_code ignored;
    return fs::is_directory(NativePath(path), ignored);
}

void MakeDirectory(const std::string& path)
{
    if (IsDirectory(path)) {
        return;
    }
    bool isThere = false;
    const fs::path folder = NativePath(path);
    std::error_code failure = FailureOf([&](auto& told) { fs::create_directory(folder, told); });
    if (!failure) {
        // A file of that name is neither success nor failure to some libraries.
        failure = FailureOf([&](auto& told) { isThere = fs::is_directory(folder, told); });
    }
    if (failure) {
        RaiseFileError(failure, Sought::Folder, path);
    }
    if (!isThere) {
        throw RuntimeError{error::PathFileAccess, path};
    }
    FlushDirectory((folder.has_filename() ? folder : folder.parent_path()).parent_path());
}

void ChangeDirectory(const std::string& path)
{
    std::error_code failure;
    fs::current_path(NativePath(path), failure);
    if (failure) {
        RaiseFileError(failure, Sought::Folder, path);
    }
}

std::vector<std::string> FileNames(const std::string& directory)
{
    std::vector<std::string> names;
    std::error_code failure;
    fs::directory_iterator entry(NativePath(directory), failure);
    for (; !failure && entry != fs::directory_iterator(); entry.increment(failure)) {
        std::error_code unreadable;
        if (!entry->is_regular_file(unreadable)) {
            continue;
        }
        std::string name = Utf8Path(entry->path().filename());
        if (IsUtf8(name)) {
            names.push_back(std::move(name));
        }
    }
    if (failure && failure != std::errc::no_such_file_or_directory) {
        RaiseFileError(failure, Sought::Folder, directory);
    }
    // Names that differ only in case keep one order whatever the folder's is.
    std::ranges::sort(names, {},
                      [](const std::string& name) { return std::pair(FoldCase(name), name); });
    return names;
}

void DeleteStrays(const std::string& directory)
{
    constexpr std::chrono::minutes longestSave{1};
    for (const std::string& name : FileNames(directory)) {
        const fs::path path = NativePath(directory) / NativePath(name);
        std::error_code failure;
        const fs::file_time_type written = fs::last_write_time(path, failure);
        if (!failure && IsStray(name) && fs::file_time_type::clock::now() - written > longestSave) {
            fs::remove(path, failure);
        }
    }
}

std::string FileNameTrouble(std::string_view name)
{
    if (name.empty() || name == "." || name == ".." || !IsUtf8(name)) {
        return "Такого названия у файла быть не может.";
    }
    for (const std::string_view character : Characters(name)) {
        if (character == "/" || character == "\\") {
            return "В названии не должно быть знака «" + std::string(character) + "».";
        }
        if (IsInvisible(CodePoint(character))) {
            return "В названии есть невидимый знак.";
        }
    }
    return PlatformNameTrouble(name);
}

} // namespace torvenhall
