#pragma once

namespace torvenhall
{

/// Asks for a code word and applies it; anything else does nothing.
void EnterCheat();

} // namespace torvenhall
