#pragma once

#include <span>
#include <string_view>

namespace torvenhall
{

/// A life to be photographed in the main window.
struct Life {
    const char* name;
    int money, happy, eat, health, intelligence, rank, job;
    bool married;
    int sons, daughters;
    int hardware, software; ///< how many of each list are there, at most
    int day, month, year, hour;
    std::string_view message;
};

/// A beginner's morning, a programmer's winter night, danger, everything owned.
std::span<const Life> SampleLives();
/// Makes the present life like that one.
void Live(const Life& life);

} // namespace torvenhall
