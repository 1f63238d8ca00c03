#pragma once

#include <compare>
#include <cstdint>
#include <utility>

#include "system/errors.h"

namespace torvenhall
{

/// A whole number of fixed width whose arithmetic raises error 6 (overflow)
/// instead of wrapping. Every intermediate sum is checked, since each
/// operator returns a checked number of its operands' width; mixing widths
/// computes in the wider one.
template <class Rep>
class Checked
{
public:
    constexpr Checked() = default;
    /// A number written in the code; error 6 when it does not fit.
    constexpr Checked(int number) : rep(Narrow(number)) {}

    template <class Narrower>
    requires(sizeof(Narrower) < sizeof(Rep)) constexpr Checked(Checked<Narrower> narrower)
        : rep(narrower.value())
    {
    }

    /// The only way from a wider sum to this width: error 6 when out of range.
    static constexpr Checked From(std::int64_t number)
    {
        Checked result;
        result.rep = Narrow(number);
        return result;
    }

    constexpr Rep value() const { return rep; }

    friend constexpr Checked operator+(Checked left, Checked right)
    {
        return From(std::int64_t{left.rep} + right.rep);
    }
    friend constexpr Checked operator-(Checked left, Checked right)
    {
        return From(std::int64_t{left.rep} - right.rep);
    }
    friend constexpr Checked operator*(Checked left, Checked right)
    {
        return From(std::int64_t{left.rep} * right.rep);
    }
    friend constexpr bool operator==(Checked, Checked) = default;
    friend constexpr auto operator<=>(Checked, Checked) = default;

private:
    static constexpr Rep Narrow(std::int64_t number)
    {
        if (!std::in_range<Rep>(number)) {
            throw RuntimeError{error::Overflow};
        }
        return static_cast<Rep>(number);
    }

    Rep rep = 0;
};

using Int16 = Checked<std::int16_t>;
using Int32 = Checked<std::int32_t>;

/// Booleans live in 16-bit fields; a test "is True" compares with -1, so any
/// other non-zero value is neither True nor False.
inline constexpr Int16 True{-1};
inline constexpr Int16 False{0};

} // namespace torvenhall
