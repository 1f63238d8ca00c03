#include "core/timelabel.h"

#include "core/GameState.h"
#include "core/shown.h"

namespace torvenhall
{

void ShowTime()
{
    ShowLabel(Label::lblTime,
              LongDateText(GameState.GameDate) + " г. - " + TimeText(GameState.GameTime));
}

} // namespace torvenhall
