#include "core/timelabel.h"

#include "core/GameState.h"
#include "core/running.h"
#include "core/shown.h"

namespace torvenhall
{

void ShowTime()
{
    Date shown = GameState.GameDate;
    if (Running::Now(Running::What::Day)) {
        shown = std::chrono::sys_days{shown} + std::chrono::days{1};
    }
    ShowMoment(Label::lblTime, shown, GameState.GameTime);
}

} // namespace torvenhall
