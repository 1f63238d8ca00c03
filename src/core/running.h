#pragma once

#include <cstddef>

#include "system/table.h"

namespace torvenhall
{

/// What ticks and deaths must know of what is running, each for a scope.
/// Several routines may run the same; it is over when the last one is. What
/// runs for a life ends with that life, however long its routine still waits.
class Running
{
public:
    enum class What : unsigned char {
        NewGame,
        Load,
        Day,          ///< a day that is being processed
        LastBox,      ///< the box that ends a life
        BoxUnderTick, ///< a message box raised by a tick
        Closing       ///< from the closing question to the end of the program
    };

    explicit Running(What what);
    ~Running();
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    static bool Now(What what);

private:
    What what;
    int life;
};

template <>
inline constexpr std::size_t CountOf<Running::What> = 6;

} // namespace torvenhall
