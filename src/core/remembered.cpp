#include "core/remembered.h"

#include "core/GameState.h"

namespace torvenhall
{

std::vector<std::function<void()>>& Resets()
{
    static std::vector<std::function<void()>> resets;
    return resets;
}

void ResetRules()
{
    GameState = {};
    for (const std::function<void()>& reset : Resets()) {
        reset();
    }
}

} // namespace torvenhall
