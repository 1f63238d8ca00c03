#pragma once

#include <chrono>
#include <deque>
#include <string>

#include "core/random.h"
#include "system/calendar.h"
#include "window.h"

namespace torvenhall::soak
{

/// Plays the game by chance, everything that its windows offer, and holds the
/// invariants after each day and each action.
class Player
{
public:
    Player(int playedLevel, std::uint64_t seed, std::string folderOfGames);

    /// Plays so many days more; throws a Violation.
    void Play(std::int64_t moreDays);
    /// The last actions, a line each.
    std::string LastActions() const;

    std::int64_t days = 0, actions = 0;
    int lives = 0, starts = 0;
    Window window;

private:
    /// Who looks after himself lives longer; who knows the code words, too, wins.
    enum class Style : unsigned char { Careless, Careful, Spoilt };

    void StartProgram();
    void Tick();
    void Act();
    void LookAfterOneself();
    void Spoil();
    void Enter(std::string_view action, const std::function<void()>& handler);
    void Check(bool whole);
    void CheckLoaded();
    void CheckTime();

    Chance chance;
    ReplayableDice dice;
    int level;
    std::string folder;
    Style style = Style::Careless; ///< of this life
    int depth = 0;                 ///< of routines within another one's waits
    int lifeSeen = 0;
    Date dateSeen{};
    std::chrono::minutes timeSeen{}; ///< on the label, since the calendar's beginning
    std::deque<std::string> last;
};

} // namespace torvenhall::soak
