#include "resources/basLangMGR.h"

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

bool IsSameName(std::string_view left, std::string_view right)
{
    return FoldCase(FromWindows1251(Trim(left, Blanks))) == FoldCase(Trim(right, Blanks));
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
    for (const std::string& line : Split(file, "\n")) {
        const std::size_t equals = line.find('=');
        if (const auto begun = SectionOf(line)) {
            inSection = IsSameName(*begun, section);
        } else if (inSection && equals != std::string::npos &&
                   !Trim(line, Blanks).starts_with(';') &&
                   IsSameName(std::string_view(line).substr(0, equals), key)) {
            const std::string_view value = std::string_view(line).substr(equals + 1);
            return std::string(WithoutQuotes(WithoutTrailingBlanks(value)));
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
