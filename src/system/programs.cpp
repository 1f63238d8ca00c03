#include "system/programs.h"

#include <cstdlib>
#include <filesystem>

#include "system/text.h"

namespace torvenhall
{

namespace
{

#ifdef _WIN32
constexpr std::string_view PathListSeparator = ";";
#else
constexpr std::string_view PathListSeparator = ":";
#endif

bool IsExecutable(const std::filesystem::path& path)
{
    using std::filesystem::perms;
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    const perms anyExecute = perms::owner_exec | perms::group_exec | perms::others_exec;
    return std::filesystem::is_regular_file(status) &&
           (status.permissions() & anyExecute) != perms::none;
}

} // namespace

std::string FindProgram(std::string_view name)
{
    const char* searchPath = std::getenv("PATH");
    if (searchPath == nullptr) {
        return {};
    }
    for (const std::string& folder : Split(searchPath, PathListSeparator)) {
        const std::filesystem::path candidate = std::filesystem::path(folder) / name;
        // The game changes the current directory, so a relative entry of the
        // search path would lead anywhere.
        if (candidate.is_absolute() && IsExecutable(candidate)) {
            return candidate.string();
        }
    }
    return {};
}

} // namespace torvenhall
