#include "core/timelabel.h"

#include "core/GameState.h"
#include "core/outside.h"

namespace torvenhall
{

void ShowTime()
{
    ShowLabel(Label::lblTime,
              LongDateText(GameState.GameDate) + " г. - " + TimeText(GameState.GameTime));
}

} // namespace torvenhall
