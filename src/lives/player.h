#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "core/random.h"
#include "core/silentfrontend.h"
#include "lives/policy.h"
#include "lives/story.h"
#include "system/calendar.h"

namespace torvenhall::lives
{

/// A clock that moves only when the rules wait or a tick is due.
class StepClock : public WallClock
{
public:
    double Seconds() const override { return seconds; }
    double seconds = 0;
};

/// Dice whose system timer is such a clock: a life repeats itself.
class SteppedDice : public RandomDice
{
public:
    SteppedDice(std::uint64_t firstValue, const StepClock& timer)
        : RandomDice(firstValue), clock(timer)
    {
    }
    void Randomize() override { RandomDice::Randomize(clock.seconds); }
    using RandomDice::Randomize;

private:
    const StepClock& clock;
};

/// Somebody who plays one life by a policy, without a screen: the game's
/// windows, which show nothing, and the player before them.
class Player final : private SilentFrontEnd
{
public:
    /// The folder is for the saved games of those who save.
    Player(const Policy& policyPlayed, int difficulty, std::uint64_t seed,
           const std::string& folder);
    ~Player() override;
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    /// Plays from the first of January 2001 to the end, or for so many days.
    Story Live(int mostDays);

    /// Called with the state before each moment in which the player acted.
    std::function<void(const Game& before)> afterActing;

private:
    void Run(const std::function<void()>& routine) override { routine(); }
    Answer ShowMessageBox(const MessageBox& box) override;
    std::optional<NewPlayer> AskName(const NewPlayer& shown) override;
    std::optional<std::string> AskGameName(const GameNameQuestion& question) override;
    void Wait(double seconds) override;
    void OpenWindow(std::string_view window) override;

    void Tick();
    void Act(void (*deed)());
    void SeeTheDay();
    void RememberMonth();
    bool MayLoad() const;
    void SaveTheEvening();
    void Load();

    const Policy& policy;
    int level;
    StepClock clock;
    SteppedDice dice;
    double nextTick = 0;
    bool isDead = false; ///< but will go on with a saved game
    Story story;
    Date dateSeen = FirstDay;
    Game evening; ///< what was saved last
    bool hasSaved = false;
    int loadsThisNight = 0;
};

} // namespace torvenhall::lives
