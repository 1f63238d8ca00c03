#include "game/commands.h"

#include <string>

#include "core/GameState.h"
#include "core/playclock.h"
#include "core/running.h"
#include "core/unwinding.h"
#include "core/waits.h"
#include "savegame/recovery.h"
#include "savegame/savegame.h"

namespace torvenhall
{

void GoOnline()
{
    if (GameState.HardComm >= 1 && GameState.SoftBrowser >= 1) {
        Windows().OpenWindow(window::frmNetwork);
    } else {
        // The message names a system that is not asked for, on purpose.
        MsgBox("Установи 9600 bps модем, Microsoft Windows 95 и Mirosoft Internet Explorer 3.0",
               "Слабая машинка", Icon::Information);
    }
}

void CloseProgram()
{
    // No tick comes any more and no day goes on: a death would answer with a
    // new life's name dialog.
    const Running closing(Running::What::Closing);
    const StandStill still;
    KeepLife(); // while it is asked, a desktop may lose its patience
    const bool mustSave =
        MsgBox("Сохранить игру сейчас???", "Вопрос", Icon::Question, Buttons::YesNo) == Answer::Yes;
    if (!mustSave || SaveGame()) {
        LetLifeGo();
    }
    EndProgram();
}

void EndFromOutside()
{
    KeepLife();
    EndProgram();
}

} // namespace torvenhall
