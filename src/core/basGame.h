#pragma once

#include <array>
#include <string_view>

#include "core/GameState.h"
#include "core/labels.h"
#include "system/table.h"

namespace torvenhall
{

// The statistics' setters: each stores the value and shows it in the main
// window. Nothing is clamped. A vital statistic at or below its fatal bound
// shows the death box and ends the life (LifeEnd).

void SetMoney(Int32 value);
void SetHealth(Int16 value);
void SetEatLevel(Int16 value);
void SetHappy(Int16 value);
/// The status rank; the label shows ShowStatus(value).
void SetEducation(Int16 value);
/// Percent.
void SetIntelligence(Int16 value);

/// What becomes of a vital statistic: its label is red below the warning, and
/// at or below the fatal bound the life ends.
struct VitalBounds {
    int warning;
    int fatal;
};
/// Those of lblHappy, lblEat and lblHealth.
VitalBounds BoundsOf(Label vital);

/// The words of the status ranks, the first is rank 1.
inline constexpr std::array<std::string_view, 8> RankWords{"BEGIN",   "USER",  "GAMER",  "LAMER",
                                                           "PROG-ER", "ADMIN", "HACKER", "PROF"};
inline constexpr int TopRank{RankWords.size()};
static_assert(TopRank == 8, "jobs and saved games count on it");
inline constexpr int FullIntelligence = 100; ///< percent

/// The rank's word, empty outside 1..TopRank.
std::string_view ShowStatus(Int16 rank);

/// Something for each difficulty: hard, normal, easy.
template <class Value>
using ByLevel = std::array<Value, 3>;
/// What the present difficulty has of it.
template <class Value>
const Value& OfLevel(const ByLevel<Value>& values)
{
    return At(values, GameState.GameLevel);
}

/// Difficulty 0 hard, 1 normal, 2 easy: sets WinMoney, GameLevel and the
/// caption; other values change nothing. -1 (nothing selected) tells the
/// player and becomes 1, for the caller too.
void SetGameLevel(Int16& level);
/// Game minutes per tick; always stored, the caption knows 15, 30 and 60.
void SetGameSpeed(Int16 speed);

} // namespace torvenhall
