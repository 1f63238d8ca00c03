#pragma once

#include <span>

#include "system/table.h"

namespace torvenhall
{

enum class Stat : unsigned char { None, Money, Happy, Health, EatLevel };
template <>
inline constexpr std::size_t CountOf<Stat> = 5;

/// One setter call: the statistic's present value plus an amount.
struct Change {
    Stat stat = Stat::None;
    int amount = 0;
};

/// Calls the setter; None does nothing. Error 6 when the sum overflows.
void Apply(const Change& change);
/// Calls the setters in the given order.
void ApplyAll(std::span<const Change> changes);

} // namespace torvenhall
