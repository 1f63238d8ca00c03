#include "core/title.h"

#include <string>

#include "core/GameState.h"
#include "core/port.h"

namespace torvenhall
{

void ShowTitle()
{
    Windows().SetMainTitle(std::string(ApplicationTitle) + " - " + GameState.PlayerName);
}

} // namespace torvenhall
