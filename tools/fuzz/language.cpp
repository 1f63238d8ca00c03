// The input is a language file.

#include "resources/basLangMGR.h"
#include "system/codepage.h"
#include "system/text.h"
#include "target.h"

namespace torvenhall::fuzz
{

std::size_t LongestInput()
{
    return LongestFile + 1;
}

void Check(std::string_view input)
{
    constexpr std::size_t longest = 1023;
    const std::string path = TheRules().folder + "language.LNG";
    WriteBytes(path, input);
    LangFiles() = {path};
    Limited([] { SelectLanguage(1); });
    Require(BytesOf(path) == input, "the file stays as it was");
    for (const std::string& text : {LangDescription, LangCopyright}) {
        Require(IsUtf8(text) && Characters(text).size() <= longest, "a text is short");
        Require(text.find_first_of(std::string_view("\0\n", 2)) == std::string::npos &&
                    !text.ends_with(' ') && !text.ends_with('\t') && !text.ends_with('\r'),
                "a text is one line without blanks behind it");
        Require(input.find(ToWindows1251(text)) != std::string_view::npos,
                "a text is part of the file");
        Count(text.empty() ? "missing" : "read");
    }
}

} // namespace torvenhall::fuzz
