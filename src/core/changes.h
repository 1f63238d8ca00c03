#pragma once

namespace torvenhall
{

enum class Stat : unsigned char { None, Money, Happy, Health, EatLevel };

/// One setter call: the statistic's present value plus an amount.
struct Change {
    Stat stat = Stat::None;
    int amount = 0;
};

/// Calls the setter; None does nothing. Error 6 when the sum overflows.
void Apply(const Change& change);

/// Calls the setters in the given order.
template <class Changes>
void ApplyAll(const Changes& changes)
{
    for (const Change& change : changes) {
        Apply(change);
    }
}

} // namespace torvenhall
