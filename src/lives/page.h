#pragma once

#include <span>
#include <string>

#include "lives/figures.h"

namespace torvenhall::lives
{

/// The curves of all runs as one SVG picture: a column for each level; who is
/// alive, who has won, and the money of those who still play, over the months.
std::string CurvesOf(const Options& options, std::span<const Figures> all);

/// The tables and the curves as one page that needs no other file.
std::string PageOf(const Options& options, std::span<const Figures> all);

} // namespace torvenhall::lives
