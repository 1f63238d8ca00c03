#include "resources/basLangMGR.h"

#include <algorithm>
#include <optional>

#include "core/traps.h"
#include "system/codepage.h"
#include "system/files.h"
#include "system/table.h"
#include "system/text.h"

namespace torvenhall
{

std::string LangDescription, LangCopyright;

namespace
{

constexpr std::size_t LongestValue = 1023;
constexpr std::string_view Blanks = " \t\r";

std::string_view WithoutTrailingBlanks(std::string_view text)
{
    return text.substr(0, text.find_last_not_of(Blanks) + 1);
}

/// The left one is the file's.
bool IsSameName(std::string_view left, std::string_view right)
{
    left = Trim(left, Blanks);
    right = Trim(right, Blanks);
    // A byte is a letter there: a name of a damaged file may be as long as the file.
    if (left.size() != Characters(right).size()) {
        return false;
    }
    return FoldCase(FromWindows1251(left)) == FoldCase(right);
}

/// The section's name if the line begins a section.
std::optional<std::string_view> SectionOf(std::string_view line)
{
    line = Trim(line, Blanks);
    const std::size_t end = line.find(']');
    if (!line.starts_with('[') || end == std::string_view::npos) {
        return std::nullopt;
    }
    return line.substr(1, end - 1);
}

std::string_view WithoutQuotes(std::string_view value)
{
    const std::string_view quoted = Trim(value, Blanks);
    const bool isQuoted = quoted.size() >= 2 && quoted.front() == quoted.back() &&
                          (quoted.front() == '"' || quoted.front() == '\'');
    return isQuoted ? quoted.substr(1, quoted.size() - 2) : value;
}

/// The bytes of the key's value, empty if there is none.
std::string FindValue(std::string_view file, std::string_view section, std::string_view key)
{
    bool inSection = false;
    while (!file.empty()) {
        const std::string_view line = file.substr(0, file.find('\n'));
        file.remove_prefix(std::min(line.size() + 1, file.size()));
        const std::size_t equals = line.find('=');
        if (const auto begun = SectionOf(line)) {
            inSection = IsSameName(*begun, section);
        } else if (inSection && equals != std::string_view::npos &&
                   !Trim(line, Blanks).starts_with(';') &&
                   IsSameName(line.substr(0, equals), key)) {
            return std::string(WithoutQuotes(WithoutTrailingBlanks(line.substr(equals + 1))));
        }
    }
    return {};
}

} // namespace

std::vector<std::string>& LangFiles()
{
    static std::vector<std::string> files;
    return files;
}

std::string ReadLangString(const std::string& file, std::string_view section, std::string_view key)
{
    std::string value;
    TrappedSilently([&] { value = FindValue(ReadWholeFile(file), section, key); });
    const std::string kept = CutAtNul(std::string_view(value).substr(0, LongestValue));
    return FromWindows1251(WithoutTrailingBlanks(kept));
}

std::string CutAtNul(std::string_view text)
{
    return std::string(text.substr(0, text.find('\0')));
}

void SelectLanguage(int index)
{
    const std::string* file = Find(LangFiles(), Int32{index} - 1);
    if (file == nullptr) {
        ReportError(error::Subscript);
        throw RuntimeError{error::Subscript};
    }
    LangCopyright = ReadLangString(*file, "General", "Copyright");
    LangDescription = ReadLangString(*file, "General", "Description");
}

} // namespace torvenhall
