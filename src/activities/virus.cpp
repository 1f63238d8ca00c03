#include "activities/virus.h"

#include <string>

#include "core/basGame.h"
#include "core/draw.h"
#include "core/traps.h"
#include "core/waits.h"
#include "system/convert.h"

namespace torvenhall
{

namespace
{

void Tell(const std::string& text)
{
    MsgBox(text, "Сообщение", Icon::Exclamation);
}

/// The charge is computed again: the money may have changed while the box
/// was open.
void LoseMoney(const std::string& beforeSum)
{
    Tell(beforeSum + DecimalOf(VirusLoss()) + " баксов!");
    SetMoney(ToInt32(GameState.Money.value() - VirusLoss()));
}

} // namespace

double VirusLoss()
{
    return Round(GameState.Money.value() / 20.0);
}

void FightVirus()
{
    // The value to reseed from is drawn from the generator itself, on purpose.
    Randomize(Rnd() * 10.0F);
    const Int16 luck = Draw(10);
    if (GameState.SoftAntivirus <= 0) {
        LoseMoney("Нет у вас антивируса! Вирус сожрал ");
    } else if (luck > 5) {
        Tell("Поздравляю! Вирус убит!");
    } else {
        LoseMoney("Не повезло! Он сожрал ");
    }
}

void ReleaseVirus()
{
    LoseMoney("Вирус сожрал ");
}

} // namespace torvenhall
