#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace torvenhall
{

/// UTF-8 text without regard to letter case: Latin and Cyrillic letters
/// (Ё included) become small ones, everything else stays.
std::string FoldCase(std::string_view text);

/// Whether `part` occurs in `text`, letter case ignored.
bool ContainsIgnoringCase(std::string_view text, std::string_view part);

/// The text cut into its characters (whole UTF-8 sequences; a stray byte is
/// a character of its own).
std::vector<std::string_view> Characters(std::string_view text);

/// One character of `Characters` as a code point; U+FFFD for a stray byte.
char32_t CodePoint(std::string_view character);
/// Appends a code point as UTF-8.
void AppendCodePoint(std::string& text, char32_t codePoint);
/// Whether the text is UTF-8 from its first byte to its last.
bool IsUtf8(std::string_view text);

/// The text without these characters at its beginning and end.
std::string_view Trim(std::string_view text, std::string_view blanks);

/// Every occurrence of `from` replaced by `to`.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

/// The text cut at every occurrence of `separator`; never empty.
std::vector<std::string> Split(std::string_view text, std::string_view separator);

} // namespace torvenhall
