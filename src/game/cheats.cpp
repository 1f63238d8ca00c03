#include "game/cheats.h"

#include <array>
#include <string>

#include "core/basGame.h"
#include "core/traps.h"
#include "core/waits.h"

namespace torvenhall
{

namespace
{

struct Cheat {
    std::string_view code;
    void (*effect)();
};

constexpr std::array Cheats{
    Cheat{"QUOKKAFOX", [] { SetMoney(GameState.Money + 5000); }},
    Cheat{"ZEPHR", [] { SetHappy(GameState.Happy + 50); }},
    Cheat{"MARLIN", [] { SetEatLevel(GameState.EatLevel + 50); }},
    Cheat{"WOMBAT", [] { SetHealth(GameState.Health + 50); }},
    Cheat{"TANGERINE", [] { SetIntelligence(GameState.Intelligence + 10); }},
    // The rank is set from the intelligence on purpose.
    Cheat{"PELICAN", [] { SetEducation(GameState.Intelligence + 1); }},
};

} // namespace

void EnterCheat()
{
    Trapped([] {
        const std::optional<std::string> code = InputBox("Введите чит:", "Torvenhall 1.5");
        for (const Cheat& cheat : Cheats) {
            if (code == cheat.code) {
                cheat.effect();
                return;
            }
        }
    });
}

} // namespace torvenhall
