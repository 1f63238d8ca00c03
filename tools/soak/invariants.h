#pragma once

#include "window.h"

namespace torvenhall::soak
{

// What must hold in every game; each throws a Violation that names what does
// not.

/// The values keep to their types and rules, and every label shows its own.
/// `honest` is a life without code words, which can leave the ranks.
void CheckState(const Window& window, int level, bool honest);
/// A life has just begun.
void CheckFreshLife(const Window& window);
/// Nothing runs any more: no day, box or load, no call and no transfer.
void CheckIdle(const Window& window);

} // namespace torvenhall::soak
