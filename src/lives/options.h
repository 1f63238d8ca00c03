#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "lives/policy.h"

namespace torvenhall::lives
{

/// What is to be played, and where it is told.
struct Options {
    std::vector<const Policy*> policies;
    std::vector<int> levels; ///< 0 hard, 1 normal, 2 easy
    int lives = 1000;        ///< for each policy on each level
    std::uint64_t seed = 1;
    int years = 10; ///< the most for a life
    int jobs = 1;   ///< processes
    bool csv = false;
    std::string html, svg; ///< files to write, or empty
    bool help = false, version = false;
};

/// An option that there is not, or a value that it does not take.
struct BadOption {
    std::string what;
};

/// Throws a BadOption.
Options ReadOptions(std::span<char* const> words);
std::string Help();

/// "hard", "normal", "easy".
std::string_view LevelName(int level);

} // namespace torvenhall::lives
