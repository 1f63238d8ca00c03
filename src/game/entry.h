#pragma once

#include <functional>

namespace torvenhall
{

// The only doors from the windows into the rules. A life that ends inside is
// followed by a new game here; an end of the program is noticed here; nothing
// is ever thrown out of them. Each returns when what it began has ended or
// waits.

/// Runs a window's event handler. A run-time error skips the rest of it. It may
/// wait and outlive the window, so it must not hold on to it.
void EnterRules(const std::function<void()>& handler);
/// Runs one tick of the clock.
void EnterTick();

} // namespace torvenhall
