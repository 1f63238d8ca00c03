#pragma once

#include <string_view>

namespace torvenhall
{

/// Types a message into lblMessage, 0.1 s a character, holds it for 2 s and
/// clears it. Returns only then.
void ShowMessage(std::string_view text);

} // namespace torvenhall
