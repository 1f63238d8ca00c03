#pragma once

#include <string>
#include <string_view>

namespace torvenhall
{

/// The full path of an executable of that name on the system's search path;
/// empty when there is none.
std::string FindProgram(std::string_view name);

} // namespace torvenhall
