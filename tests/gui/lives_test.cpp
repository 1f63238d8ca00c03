// Life's end and the program's end, through the real windows.

#include <QApplication>

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

TEST_F(Lives, EndUnderAnythingThatIsOpenAndBeginAfresh)
{
    const std::pair<QStringList, std::function<void()>> deaths[]{
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
        {{Jumped}, // while paused, in a window, during a call
         [this] {
             GameState.HardComm = GameState.SoftBrowser = 1;
             Type(Main(), "p");
             Click("frmMain", "cmdInInet");
             Click("frmNetwork", "Command1");
             Jump();
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
         {std::tuple{exit, "Да", "frmLocGame", "Esc"}, // even when the save is cancelled
          {close, "Да", "frmLocGame", "Command1"},
          {die, "OK", "frmPlayerName", "Esc"},
          {die, "OK", "frmPlayerName", "close"},
          {die, "OK", "frmPlayerName", "Command2"}}) {
        Start();
        player.When("MessageBox", [said = answer] { Say(said); });
        player.When(dialog, [name = dialog, by = way] { Leave(name, by); });
        ExpectEnd(leave);
        EXPECT_EQ(
            player.boxes,
            QStringList{answer == std::string("OK") ? Jumped : "Вопрос: Сохранить игру сейчас???"});
    }
}

TEST_F(Lives, AnExceptionOutOfASlotIsReportedAndTheGameGoesOn)
{
    QTimer::singleShot(0, qApp, [] { throw std::runtime_error("a bug"); });
    EXPECT_TRUE(Until([this] { return player.boxes.size() == 1; }));
    Click("frmMain", "cmdShop");
    EXPECT_TRUE(Find("frmShop"));
}
