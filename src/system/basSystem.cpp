#include "system/basSystem.h"

#include <algorithm>
#include <filesystem>

#include "system/platform.h"

namespace torvenhall
{

namespace
{

struct {
    std::string shipped, data;
} directories;

} // namespace

std::string AddBackslash(std::string path, char separator)
{
    if (!path.ends_with(separator)) {
        path += separator;
    }
    return path;
}

std::string StripBackslash(std::string path, char separator)
{
    if (path.ends_with(separator)) {
        path.pop_back();
    }
    return path;
}

bool FileExists(const std::string& path)
{
    return OpensForReading(path);
}

std::string StripExtension(std::string_view name)
{
    return std::string(name.substr(0, name.rfind('.')));
}

std::string ShiftCharsDown(std::string bytes)
{
    std::ranges::transform(bytes, bytes.begin(), [](char c) { return static_cast<char>(c - 1); });
    return bytes;
}

std::string ShiftCharsUp(std::string bytes)
{
    std::ranges::transform(bytes, bytes.begin(), [](char c) { return static_cast<char>(c + 1); });
    return bytes;
}

const std::string& ProgramDirectory()
{
    return directories.shipped;
}

const std::string& DataDirectory()
{
    return directories.data;
}

void FindDirectories(const std::string& programFolder, const std::string& installedShare,
                     const std::string& userData)
{
    const std::string share = Utf8Path(
        (NativePath(AddBackslash(programFolder)) / NativePath(installedShare)).lexically_normal());
    if (!IsDirectory(share)) {
        SetDirectories(programFolder, programFolder);
        return;
    }
    // A folder that cannot be made tells so when something is written to it.
    std::error_code ignored;
    std::filesystem::create_directories(NativePath(userData), ignored);
    SetDirectories(share, userData);
}

void SetDirectories(const std::string& shipped, const std::string& data)
{
    directories = {AddBackslash(shipped), AddBackslash(data)};
}

} // namespace torvenhall
