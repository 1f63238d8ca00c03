#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <memory>
#include <system_error>
#include <utility>
#include <vector>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <shellapi.h>

// The system's header renames these.
#undef DeleteFile
#undef ReplaceFile

#include "system/basSystem.h"
#include "system/errors.h"
#include "system/platform.h"
#include "system/text.h"

namespace torvenhall
{

namespace
{

std::wstring Wide(std::string_view utf8)
{
    return NativePath(utf8).wstring();
}

std::string Utf8(const std::wstring& wide)
{
    return Utf8Path(std::filesystem::path(wide));
}

struct Meaning {
    DWORD last;
    std::errc failure;
};

// Not every compiler's headers for this system name it.
constexpr DWORD DiskQuotaExceeded = 1295;

// The standard library's own translation knows neither all nor always these.
constexpr std::array Meanings{
    Meaning{ERROR_SHARING_VIOLATION, std::errc::device_or_resource_busy},
    Meaning{ERROR_LOCK_VIOLATION, std::errc::device_or_resource_busy},
    Meaning{ERROR_WRITE_PROTECT, std::errc::read_only_file_system},
    Meaning{ERROR_DISK_FULL, std::errc::no_space_on_device},
    Meaning{ERROR_HANDLE_DISK_FULL, std::errc::no_space_on_device},
    Meaning{DiskQuotaExceeded, std::errc::no_space_on_device},
    Meaning{ERROR_INVALID_NAME, std::errc::filename_too_long},
    Meaning{ERROR_FILENAME_EXCED_RANGE, std::errc::filename_too_long},
    Meaning{ERROR_ACCESS_DENIED, std::errc::permission_denied},
};

void RaiseUnless(bool succeeded, std::string_view path)
{
    if (succeeded) {
        return;
    }
    const DWORD last = ::GetLastError();
    const auto known = std::ranges::find(Meanings, last, &Meaning::last);
    const std::error_code failure =
        known != Meanings.end() ? std::make_error_code(known->failure)
                                : std::error_code(static_cast<int>(last), std::system_category());
    RaiseFileError(failure, Sought::File, path);
}

/// An open file.
class Handle
{
public:
    explicit Handle(HANDLE opened) : handle(opened) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle()
    {
        if (IsOpen()) {
            ::CloseHandle(handle);
        }
    }
    HANDLE Get() const { return handle; }
    bool IsOpen() const { return handle != INVALID_HANDLE_VALUE; }
    bool Close() { return ::CloseHandle(std::exchange(handle, INVALID_HANDLE_VALUE)) != 0; }

private:
    HANDLE handle;
};

constexpr DWORD LargestBlock = 1U << 20;

bool WriteAll(HANDLE file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const auto block = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), LargestBlock));
        DWORD written = 0;
        if (::WriteFile(file, bytes.data(), block, &written, nullptr) == 0) {
            return false;
        }
        if (written == 0) {
            ::SetLastError(ERROR_WRITE_FAULT);
            return false;
        }
        bytes.remove_prefix(written);
    }
    return true;
}

/// A new, empty file that vanishes unless it is moved over another.
class TemporaryFile
{
public:
    explicit TemporaryFile(const std::wstring& wanted)
        : path(wanted), file(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                           FILE_ATTRIBUTE_NORMAL, nullptr)),
          mustGo(file.IsOpen())
    {
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile()
    {
        if (mustGo) {
            if (file.IsOpen()) {
                file.Close();
            }
            ::DeleteFileW(path.c_str());
        }
    }

    bool IsOpen() const { return file.IsOpen(); }
    bool Fill(std::string_view bytes)
    {
        return WriteAll(file.Get(), bytes) && ::FlushFileBuffers(file.Get()) != 0 && file.Close();
    }
    /// Replaces the other file; returns only when the move is on the disk.
    bool MoveOver(const std::wstring& target)
    {
        const bool moved = ::MoveFileExW(path.c_str(), target.c_str(),
                                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
        mustGo = !moved;
        return moved;
    }

private:
    std::wstring path;
    Handle file;
    bool mustGo;
};

/// Texts of the system come into a buffer whose needed length only the call
/// itself tells.
constexpr std::size_t LongestPath = 32768;

/// The text with the system's own values in the place of "%SystemRoot%" and its like.
std::string Expanded(const wchar_t* text)
{
    std::wstring expanded(LongestPath, L'\0');
    const DWORD length =
        ::ExpandEnvironmentStringsW(text, expanded.data(), static_cast<DWORD>(expanded.size()));
    if (length == 0 || length > expanded.size()) {
        return Utf8(text);
    }
    expanded.resize(length - 1); // which counts the end
    return Utf8(expanded);
}

std::string HexadecimalFromLast(DWORD number)
{
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "&h%08lX", static_cast<unsigned long>(number));
    return text.data();
}

} // namespace

std::string ReadWholeFile(const std::string& path)
{
    const Handle file(::CreateFileW(Wide(path).c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    RaiseUnless(file.IsOpen(), path);
    LARGE_INTEGER size{};
    if (::GetFileType(file.Get()) != FILE_TYPE_DISK || ::GetFileSizeEx(file.Get(), &size) == 0) {
        throw RuntimeError{error::PathFileAccess, path};
    }
    std::string bytes;
    std::array<char, 16384> block;
    while (bytes.size() <= LongestFile && std::cmp_less_equal(size.QuadPart, LongestFile)) {
        DWORD count = 0;
        RaiseUnless(::ReadFile(file.Get(), block.data(), static_cast<DWORD>(block.size()), &count,
                               nullptr) != 0,
                    path);
        if (count == 0) {
            return bytes;
        }
        bytes.append(block.data(), count);
    }
    throw RuntimeError{error::BadRecordLength, path};
}

void ReplaceFile(const std::string& path, std::string_view bytes)
{
    const std::size_t nameAt = path.find_last_of("\\/:") + 1;
    TemporaryFile temporary(Wide(path.substr(0, nameAt) + std::string(StrayPrefix) +
                                 std::to_string(::GetCurrentProcessId())));
    RaiseUnless(temporary.IsOpen(), path);
    RaiseUnless(temporary.Fill(bytes), path);
    // A folder cannot be flushed here; the move itself waits for the disk.
    RaiseUnless(temporary.MoveOver(Wide(path)), path);
}

void FlushDirectory(const std::filesystem::path&)
{
    // The file system orders its own folders.
}

void WriteNewFile(const std::string& path, std::string_view bytes)
{
    ::DeleteFileW(Wide(path).c_str());
    Handle file(::CreateFileW(Wide(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                              FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    RaiseUnless(file.IsOpen(), path);
    RaiseUnless(WriteAll(file.Get(), bytes) && file.Close(), path);
}

std::shared_ptr<void> LockFile(const std::string& path)
{
    auto file = std::make_shared<Handle>(
        ::CreateFileW(Wide(path).c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                      FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
    return file->IsOpen() ? file : nullptr;
}

bool OpensForReading(const std::string& path)
{
    // Opening a folder fails by itself.
    return Handle(::CreateFileW(Wide(path).c_str(), GENERIC_READ,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
        .IsOpen();
}

std::string PlatformNameTrouble(std::string_view name)
{
    constexpr std::size_t longest = 255;
    constexpr std::string_view forbidden{"<>:\"|?*"};
    constexpr std::array<std::string_view, 6> devices{"con", "prn",    "aux",
                                                      "nul", "conin$", "conout$"};
    if (const std::size_t at = name.find_first_of(forbidden); at != std::string_view::npos) {
        return "В названии не должно быть знака «" + std::string(1, name[at]) + "».";
    }
    if (Wide(name).size() > longest) {
        return std::string(NameTooLong);
    }
    // A device keeps its meaning with any extension and with blanks before it.
    std::string stem = FoldCase(name.substr(0, name.find('.')));
    stem.erase(stem.find_last_not_of(' ') + 1);
    const bool isPort =
        (stem.starts_with("com") || stem.starts_with("lpt")) && Characters(stem).size() == 4 &&
        std::string_view{"0123456789¹²³"}.find(stem.substr(3)) != std::string_view::npos;
    const bool isDevice = isPort || std::ranges::find(devices, stem) != devices.end();
    if (isDevice || name.ends_with('.') || name.ends_with(' ')) {
        return "Такое название занято системой.";
    }
    return {};
}

void GiveMemoryBack() {} // it does by itself

std::vector<std::string> ProgramArguments(int, char**)
{
    int count = 0;
    const std::unique_ptr<wchar_t*, decltype(&::LocalFree)> given(
        ::CommandLineToArgvW(::GetCommandLineW(), &count), ::LocalFree);
    std::vector<std::string> arguments;
    for (int i = 0; given && i < count; ++i) {
        arguments.push_back(Utf8(given.get()[i]));
    }
    return arguments;
}

void SpeakToConsole()
{
    // What is told into a file or a pipe goes there as it is.
    const auto isOpen = [](DWORD stream) {
        const HANDLE handle = ::GetStdHandle(stream);
        return handle != nullptr && handle != INVALID_HANDLE_VALUE &&
               ::GetFileType(handle) != FILE_TYPE_UNKNOWN;
    };
    const bool told = isOpen(STD_OUTPUT_HANDLE), troubled = isOpen(STD_ERROR_HANDLE);
    if ((told && troubled) || ::AttachConsole(ATTACH_PARENT_PROCESS) == 0) {
        return;
    }
    ::SetConsoleOutputCP(CP_UTF8);
    if (!told) {
        std::freopen("CONOUT$", "w", stdout);
    }
    if (!troubled) {
        std::freopen("CONOUT$", "w", stderr);
    }
}

int WatchEndRequests()
{
    return -1; // the toolkit is told of a logout by itself
}

bool OnBattery()
{
    SYSTEM_POWER_STATUS status{};
    constexpr BYTE offline = 0;
    return ::GetSystemPowerStatus(&status) != 0 && status.ACLineStatus == offline;
}

std::string GetWindowsDir()
{
    std::wstring path(LongestPath, L'\0');
    const UINT length = ::GetWindowsDirectoryW(path.data(), static_cast<UINT>(path.size()));
    path.resize(length);
    return StripBackslash(Utf8(path));
}

bool GetKeyValue(const std::string& keyName, const std::string& valueName, std::string& value)
{
    constexpr DWORD longestValue = 1024;
    std::array<wchar_t, longestValue / sizeof(wchar_t) + 1> data{};
    HKEY key = nullptr;
    if (::RegOpenKeyExW(HKEY_LOCAL_MACHINE, Wide(keyName).c_str(), 0, KEY_READ, &key) !=
        ERROR_SUCCESS) {
        return false;
    }
    DWORD type = 0;
    DWORD size = longestValue;
    const LSTATUS result = ::RegQueryValueExW(key, Wide(valueName).c_str(), nullptr, &type,
                                              reinterpret_cast<BYTE*>(data.data()), &size);
    ::RegCloseKey(key);
    if (result != ERROR_SUCCESS) {
        return false;
    }
    if (type == REG_DWORD) {
        DWORD number = 0;
        std::memcpy(&number, data.data(), sizeof number);
        value = HexadecimalFromLast(number);
    } else {
        // The last element is never written, so the text always ends.
        value = type == REG_EXPAND_SZ ? Expanded(data.data()) : Utf8(data.data());
    }
    return true;
}

} // namespace torvenhall
