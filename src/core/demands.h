#pragma once

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/GameState.h"
#include "core/port.h"

namespace torvenhall
{

/// One thing that a job or a program asks of the person and the computer: a
/// field that has reached a value, or that has this one and no other.
struct Demand {
    Int16 Game::*field = nullptr; ///< without one nothing is asked
    int value = 0;
    bool exactly = false;
};

inline bool AreMet(std::span<const Demand> demands)
{
    return std::ranges::all_of(demands, [](const Demand& demand) {
        return demand.field == nullptr ||
               (demand.exactly ? GameState.*demand.field == demand.value
                               : GameState.*demand.field >= demand.value);
    });
}

/// The box that refuses what asks for this, or nothing where it is met.
inline std::optional<MessageBox> RefusalOf(std::span<const Demand> demands, std::string_view text,
                                           std::string_view title)
{
    if (AreMet(demands)) {
        return std::nullopt;
    }
    return MessageBox{std::string(text), std::string(title)};
}

/// Whether there is anything that a new player lacks.
constexpr bool AskSomething(std::span<const Demand> demands)
{
    return std::ranges::any_of(
        demands, [](const Demand& demand) { return demand.field != nullptr && demand.value > 0; });
}

} // namespace torvenhall
