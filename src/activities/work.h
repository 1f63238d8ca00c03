#pragma once

#include <array>
#include <string_view>

#include "system/checked.h"

namespace torvenhall
{

inline constexpr int JobButtons = 12;
/// The captions of cmdWork0 to cmdWork11; button i applies for job i + 1.
extern const std::array<std::string_view, JobButtons> JobCaptions;

/// Takes job 0..12 with its title and pay; any other index keeps the job.
/// Shows the job either way.
void SetWork(Int16 index);

/// Applies for the job of a button: taken, or refused with a box.
void ApplyForJob(int button);

} // namespace torvenhall
