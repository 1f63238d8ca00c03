#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace torvenhall
{

/// Full paths of the language files, the chooser's rows in order.
std::vector<std::string>& LangFiles();
/// The texts of the language selected last, UTF-8.
extern std::string LangDescription, LangCopyright;

/// One value of an INI file in windows-1251: section and key without regard
/// to case, matching quotes around the value stripped, at most 1023
/// characters, cut at the first NUL, trailing blanks removed; leading blanks
/// stay. Empty when file, section or key is missing.
std::string ReadLangString(const std::string& file, std::string_view section, std::string_view key);
/// The part before the first NUL.
std::string CutAtNul(std::string_view text);
/// Reads the texts of LangFiles' item (the first is 1). Outside the list
/// error 9 is reported and raised, and the texts stay.
void SelectLanguage(int index);

} // namespace torvenhall
