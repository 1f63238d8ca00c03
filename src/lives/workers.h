#pragma once

#include <functional>
#include <stdexcept>
#include <vector>

#include "lives/options.h"
#include "lives/story.h"

namespace torvenhall::lives
{

/// A process that plays did not come to its end.
struct WorkerLost : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// How many lives the options ask for: each policy on each level in turn.
int TaskCount(const Options& options);

/// Plays one of them.
Story PlayTask(const Options& options, int task, const std::string& folder);

/// Plays all, in several processes, since the game's state is one in each.
/// `progress` is told how many are done. Throws a WorkerLost.
std::vector<Story> PlayAll(const Options& options, const std::function<void(int)>& progress);

} // namespace torvenhall::lives
