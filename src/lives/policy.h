#pragma once

#include <span>
#include <string_view>

#include "core/GameState.h"

namespace torvenhall::lives
{

/// A way of playing. The player pauses the game whenever one of these moments
/// comes, does what the policy says by the calls that the windows make
/// (lives/hands.h), and lets the time go on. It knows what the windows show.
struct Policy {
    std::string_view name;
    std::string_view says; ///< one line about it
    void (*begin)();       ///< on the first of January, before anything happens
    void (*morning)();     ///< after each midnight's events
    /// A message has been typed and can be read; what it tells is yet to come.
    void (*warned)() = [] {};
    /// How often the game of the evening before is loaded when the night was
    /// the last, or was bad; 0 for a player who never saves.
    int loadsPerNight = 0;
    /// What a bad night is, seen from the morning.
    bool (*wasBad)(const Game& evening, int loads) = nullptr;
};

/// One file of lives/policies/ each, or a few that have most in common.
extern const Policy Manual, Saver, Student, Gambler, Careful, Reloader, Patient, Climber;

/// All ways of playing.
std::span<const Policy* const> Policies();
/// The policy of that name, or nullptr.
const Policy* PolicyOf(std::string_view name);

} // namespace torvenhall::lives
