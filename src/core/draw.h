#pragma once

#include "core/port.h"
#include "system/convert.h"

namespace torvenhall
{

/// A whole number 0..sides drawn by rounding half to even: the two ends are
/// half as likely as the rest.
inline Int16 Draw(int sides)
{
    return ToInt16(double{Rnd()} * sides);
}

} // namespace torvenhall
