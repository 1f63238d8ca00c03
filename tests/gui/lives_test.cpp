// Life's end and the program's end, through the real windows.

#include <QApplication>

#include "core/traps.h"
#include "equipment/basEquipment.h"
#include "network/network.h"
#include "support/play.h"

using namespace torvenhall;
using namespace torvenhall::test;

struct Lives : Play {
    const QString Jumped =
        "Критический уровень настроения: Вы спрыгнули с 15 этажа и разбились насмерть!!!";
    const QString Starved = "Желаю тебе быть большим и тольстым: Вы умерли голодной смертью!";

    static void Jump()
    {
        Do([] { SetHappy(-80); });
    }
};

TEST_F(Lives, EndAnywhereAndBeginAfresh)
{
    const std::pair<QStringList, std::function<void()>> deaths[]{
        {{Jumped}, // a birth is paid after the mood it costs
         [] {
             SetHappy(-30);
             SetMoney(300);
             Click("frmMain", "cmdHealth");
             Click("frmHospital", "Command5");
         }},
        {{"Идиот!: Шеф-Повор: А ну убирайся отсюда!!!!!!", Starved}, // under a shop's refusal
         [this] {
             SetMoney(14);
             Click("frmMain", "cmdShop");
             player.When("MessageBox", Tick);
             Click("frmShop", "Command1");
         }},
        {{Starved}, // which cancels a save
         [this] {
             player.When("frmLocGame", Tick);
             Choose("mnuFileSavegame");
             EXPECT_TRUE(SavedFiles().isEmpty());
         }},
        {{Jumped}, // while paused, in a window
         [this] {
             Type(Main(), "p");
             Click("frmMain", "cmdHealth");
             Jump();
         }},
        {{Jumped}, // during a call
         [] {
             GameState.HardComm = GameState.SoftBrowser = 1;
             Click("frmMain", "cmdInInet");
             Click("frmNetwork", "Command1");
             Jump();
             EXPECT_EQ(Network().inetStatus, "Status: Disconnected");
             EXPECT_TRUE(Network().inetDialEnabled);
         }},
        {{Jumped}, // while a message is typed
         [this] {
             BeginQuarrel();
             Jump();
         }},
        {{"Наконец-то: Вы прошли всю игру"},
         [] {
             GameState.GameTime = {};
             SetMoney(20000);
             GameState.CurrWork = 12;
             for (int i = 0; i < 9; ++i) {
                 HardwareField(i) = 7;
             }
             Tick();
         }},
    };
    for (const auto& [boxes, die] : deaths) {
        player.boxes.clear();
        player.NextLifeIs("Новый");
        SetEatLevel(-34); // the next day starves
        JustBeforeMidnight();
        die();
        EXPECT_EQ(player.boxes, boxes);
        ExpectFreshLife("Новый");
    }
}

TEST_F(Lives, EveryWayOutEndsTheProgram)
{
    const std::function<void()> exit = [] { Choose("mnuFileExit"); }, die = Jump;
    const std::function<void()> close = [this] { Main().close(), Settle(); };
    for (const auto& [leave, answer, dialog, way] :
         {std::tuple{exit, "Нет", "", ""},
          {close, "Нет", "", ""},
          {exit, "Да", "frmLocGame", "Esc"}, // even when the save is cancelled
          {close, "Да", "frmLocGame", "Command1"},
          {die, "OK", "frmPlayerName", "Esc"},
          {die, "OK", "frmPlayerName", "close"},
          {die, "OK", "frmPlayerName", "Command2"}}) {
        Start();
        player.When("MessageBox", [said = answer] { Say(said); });
        if (*dialog) {
            player.When(dialog, [name = dialog, by = way] { Leave(name, by); });
        }
        EXPECT_EQ(RunInEventLoop(leave), 0);
        EXPECT_EQ(
            player.boxes,
            QStringList{answer == std::string("OK") ? Jumped : "Вопрос: Сохранить игру сейчас???"});
        EXPECT_TRUE(OpenWindows().isEmpty() && SavedFiles().isEmpty());
    }
}

TEST_F(Lives, AnExceptionOutOfASlotIsReportedAndTheGameGoesOn)
{
    QTimer::singleShot(0, qApp, [] { throw std::runtime_error("a bug"); });
    QTimer::singleShot(0, qApp, [] { throw RuntimeError{error::TypeMismatch}; });
    EXPECT_TRUE(Until([this] { return player.boxes.size() == 2; }));
    Click("frmMain", "cmdShop");
    EXPECT_TRUE(Find("frmShop"));
}
