#include "events/family.h"

#include <string>

#include "core/GameState.h"
#include "core/draw.h"
#include "core/shown.h"
#include "core/traps.h"
#include "core/waits.h"
#include "system/convert.h"

namespace torvenhall
{

namespace
{

constexpr int AlimonyPerChild = 50;

} // namespace

void Marry()
{
    Trapped([] {
        // The stop icon on a happy message is meant.
        MsgBox("Поздравляю! Вчера ты нашел свою жену! А сегодня ты женился! Поздравляем!!!!!",
               "Жениться или не жениться... Поздно!!!", Icon::Critical);
        GameState.Married = True;
        GameState.WifeFound = True;
        ShowFamily();
    });
}

void Divorce()
{
    Trapped([] {
        MsgBox("От тебя ушла жена!!! Поздравляю!", "Наконец-то", Icon::Information);
        if (GameState.Sons + GameState.Daughters > 0) {
            const Int16 alimony = AlimonyFor();
            MsgBox(
                "Но не тут-то было! Она забрала детей и ты каждый месяц должен выплачивать ей $" +
                    Decimal(alimony) + " !!!",
                "ARMAGEDDON", Icon::Critical);
            GameState.Alimony = AlimonyFor();
        }
        GameState.Married = False;
        ShowFamily();
    });
}

void ChildBirth()
{
    Trapped([] {
        Randomize(Rnd() * 2.0F);
        // 0, 1 or 2; the middle one has the half of all chances.
        if (Draw(2) == 1) {
            MsgBox("Поздравляем! У тебя родился сын!", "Медсестра", Icon::Information);
            GameState.Sons = GameState.Sons + 1;
        } else {
            MsgBox("Поздравляем! У тебя родилась дочка!", "Медбрат", Icon::Information);
            GameState.Daughters = GameState.Daughters + 1;
        }
        ShowFamily();
    });
}

Int16 AlimonyFor()
{
    Int16 alimony = 0;
    Trapped([&] {
        alimony = (GameState.Sons + GameState.Daughters) * AlimonyPerChild;
        ShowFamily();
    });
    return alimony;
}

void ShowFamily()
{
    std::string caption = ShownAt(Label::lblFamily).text;
    if (GameState.WifeFound == True && GameState.Married == True) {
        caption = "PRST";
    } else if (GameState.WifeFound == True && GameState.Married == False) {
        caption = "LEFT";
    } else if (GameState.WifeFound == False) {
        ShowLabel(Label::lblFamily, "NO WIFE");
        return;
    }
    // Any other combination, from an edited file, adds to what the label shows.
    ShowLabel(Label::lblFamily,
              caption + ":" + Decimal(GameState.Sons) + ":" + Decimal(GameState.Daughters));
}

} // namespace torvenhall
