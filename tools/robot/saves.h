#pragma once

#include <random>

#include "app/action.h"

namespace torvenhall::robot
{

using Chance = std::mt19937_64;

/// A number from 0 to below n.
inline int Below(Chance& chance, int n)
{
    return static_cast<int>(chance() % static_cast<unsigned>(n));
}

template <class List>
const auto& AnyOf(Chance& chance, const List& list)
{
    return list[static_cast<std::size_t>(Below(chance, static_cast<int>(std::size(list))))];
}

/// The action that puts an edited saved game into SAVE: a person near death,
/// near the win, before midnight at the end of a month or a year; or a damaged
/// file.
Action EditedGame(Chance& chance);

} // namespace torvenhall::robot
