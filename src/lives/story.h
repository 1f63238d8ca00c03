#pragma once

#include <array>
#include <cstdint>

#include "activities/work.h"

namespace torvenhall::lives
{

/// How a life that was told about ended, or that it goes on.
enum class End : std::uint8_t { Alive, Won, Hunger, Illness, Leap };
inline constexpr int Ends = 5;

/// The money is remembered at each month's end, for so many months.
inline constexpr int MonthsRemembered = 120;
inline constexpr int Never = -1;

/// What became of a person. It is sent from process to process as it is.
struct Story {
    std::int32_t task = 0; ///< which of all lives it is
    End end = End::Alive;
    std::int32_t days = 0;       ///< how old the life became
    std::int64_t daysPlayed = 0; ///< the same and the days that a load undid
    std::int32_t loads = 0;      ///< of saved games
    std::int32_t money = 0;      ///< at the end, dollars
    std::int32_t months = 0;     ///< how many of the following are known
    std::array<std::int32_t, MonthsRemembered> moneyByMonth{};
    /// The first day on which one had the job, or a better one.
    std::array<std::int32_t, TopJob + 1> dayOfJob{};
};

} // namespace torvenhall::lives
