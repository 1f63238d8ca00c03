#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "lives/options.h"
#include "lives/story.h"

namespace torvenhall::lives
{

/// What became of all who played by one policy on one level.
struct Figures {
    std::string policy;
    int level = 0;
    std::vector<Story> stories; ///< in the order of their lives

    /// The share of an end, 0..1.
    double ShareOf(End end) const;
    /// The share that was alive, or had won, after so many days.
    double AliveAfter(int days) const;
    double WonBy(int days) const;
    /// Days; a part of those who came to such an end was not older.
    std::optional<int> AgeAt(End end, double part) const;
    std::optional<int> AgeAtDeath(double part) const;
    /// The share that ever had a job or a better one, and the middle day of it.
    double ShareOfJob(int job) const;
    std::optional<int> DayOfJob(int job) const;
    /// How often a saved game was loaded in a life, in the middle.
    int Loads() const;
    /// The money that a part of the living did not exceed at a month's end, 0
    /// for the first; nothing where nobody plays any more.
    std::optional<int> MoneyAfter(int months, double part) const;
};

/// The stories of all runs, each policy on each level in turn.
std::vector<Figures> FiguresOf(const Options& options, std::span<const Story> stories);

} // namespace torvenhall::lives
