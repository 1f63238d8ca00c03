#include "system/basSystem.h"

#include <algorithm>
#include <filesystem>

#include "system/platform.h"

namespace torvenhall
{

namespace
{

struct Directories {
    std::string shipped, data;
};

std::string ProgramFolder()
{
    std::error_code ignored;
    const std::string file = ProgramFile();
    return Utf8Path(file.empty() ? std::filesystem::current_path(ignored)
                                 : NativePath(file).parent_path());
}

// Found on first use, for whoever neither finds nor sets them.
Directories& Found()
{
    static Directories directories;
    if (directories.shipped.empty()) {
        directories.shipped = directories.data = AddBackslash(ProgramFolder());
    }
    return directories;
}

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
    return Found().shipped;
}

const std::string& DataDirectory()
{
    return Found().data;
}

void FindDirectories(const std::string& installedShare)
{
    const std::string beside = AddBackslash(ProgramFolder());
    const std::string share =
        Utf8Path((NativePath(beside) / NativePath(installedShare)).lexically_normal());
    if (installedShare.empty() || !IsDirectory(share)) {
        SetDirectories(beside, beside);
        return;
    }
    const std::string data = UserDataDirectory();
    // A folder that cannot be made tells so when something is written to it.
    std::error_code ignored;
    std::filesystem::create_directories(NativePath(data), ignored);
    SetDirectories(share, data);
}

void SetDirectories(const std::string& shipped, const std::string& data)
{
    Found() = {AddBackslash(shipped), AddBackslash(data)};
}

} // namespace torvenhall
