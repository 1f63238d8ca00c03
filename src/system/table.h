#pragma once

#include <array>
#include <cstddef>
#include <iterator>
#include <type_traits>
#include <utility>

#include "system/checked.h"

namespace torvenhall
{

/// How many enumerators an enumeration has; told beside each one that indexes
/// a table.
template <class Enum>
inline constexpr std::size_t CountOf = 0;

/// A table with an element for each enumerator.
template <class Enum, class Value>
struct EnumArray : std::array<Value, CountOf<Enum>> {
    static_assert(CountOf<Enum> > 0);
    using Elements = std::array<Value, CountOf<Enum>>;

    constexpr Value& operator[](Enum index)
    {
        return Elements::operator[](static_cast<std::size_t>(index));
    }
    constexpr const Value& operator[](Enum index) const
    {
        return Elements::operator[](static_cast<std::size_t>(index));
    }
};

/// The row of a table by its number from 0, nullptr outside.
template <class Table>
constexpr auto Find(const Table& table, Int32 index) -> decltype(std::data(table))
{
    const bool isInside = index >= 0 && std::cmp_less(index.value(), std::size(table));
    return isInside ? std::data(table) + index.value() : nullptr;
}

/// A copy of the row, an empty one outside.
template <class Table>
constexpr auto FindOrEmpty(const Table& table, Int32 index)
{
    const auto* row = Find(table, index);
    return row != nullptr ? *row : std::remove_cvref_t<decltype(*row)>{};
}

/// The row; error 9 outside.
template <class Table>
constexpr auto& At(const Table& table, Int32 index)
{
    const auto* row = Find(table, index);
    if (row == nullptr) {
        throw RuntimeError{error::Subscript};
    }
    return *row;
}

} // namespace torvenhall
