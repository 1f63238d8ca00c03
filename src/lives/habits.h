#pragma once

namespace torvenhall::lives
{

// What several ways of playing have in common.

/// What one does not let a statistic fall below, percent.
struct Limits {
    int eat, health, mood;
};

/// Meals, spirit and short rests, the most for a dollar, until nothing is below
/// its limit or the money is gone.
void LookAfter(const Limits& limits);

/// What the worst single night of the present difficulty takes leaves one
/// alive; a month's last night, which casts the dice twice, too.
Limits SafeLimits();

/// Buys parts while so much money is left: the modem, which the best jobs ask
/// for, and then the cheapest first.
void BuyParts(int leaving);

/// Whether one is paid enough to live on, and something over.
bool EarnsWell();

} // namespace torvenhall::lives
