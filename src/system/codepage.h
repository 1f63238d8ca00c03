#pragma once

#include <string>
#include <string_view>

namespace torvenhall
{

/// UTF-8 to windows-1251, "?" for what has no letter there.
std::string ToWindows1251(std::string_view utf8);

/// windows-1251 to UTF-8; all 256 bytes convert and convert back (the one
/// unassigned byte, 0x98, is U+0098).
std::string FromWindows1251(std::string_view bytes);

} // namespace torvenhall
