// Life's end, the program's end and the clock, through the real windows.

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>

#include "core/traps.h"
#include "core/waits.h"
#include "support/play.h"

namespace torvenhall::test
{
namespace
{

const QString Jumped =
    "Критический уровень настроения: Вы спрыгнули с 15 этажа и разбились насмерть!!!";
const QString Starved = "Желаю тебе быть большим и тольстым: Вы умерли голодной смертью!";

class Ends : public Play
{
protected:
    Ends() { Begin(); }

    /// The next midnight starves.
    void StarveAtMidnight()
    {
        EnterRules([] { SetEatLevel(-34); });
        JustBeforeMidnight();
        player.NextLifeIs("Новый");
    }
};

TEST_F(Ends, AFatalPurchaseTakesNothingFromTheNextLife)
{
    EnterRules([] {
        SetHappy(-30);
        SetMoney(300);
    });
    Click("frmMain", "cmdHealth");
    player.NextLifeIs("Новый");
    Click("frmHospital", "Command5");
    EXPECT_EQ(player.boxes, std::vector<QString>{Jumped});
    EXPECT_EQ(player.dialogs, (std::vector<QString>{"MessageBox", "frmPlayerName"}));
    ExpectFreshLife("Новый");
}

TEST_F(Ends, ADeathClosesAShopsRefusal)
{
    StarveAtMidnight();
    EnterRules([] { SetMoney(14); });
    Click("frmMain", "cmdShop");
    player.When("MessageBox", [](QWidget&) { EnterTick(); });
    Click("frmShop", "Command1");
    EXPECT_EQ(player.boxes,
              (std::vector<QString>{"Идиот!: Шеф-Повор: А ну убирайся отсюда!!!!!!", Starved}));
    ExpectFreshLife("Новый");
}

TEST_F(Ends, ADeathCancelsASave)
{
    StarveAtMidnight();
    player.When("frmLocGame", [](QWidget& dialog) {
        EnterTick();
        EXPECT_FALSE(dialog.isVisible());
    });
    Choose("mnuFileSavegame");
    EXPECT_TRUE(SavedFiles().isEmpty());
    ExpectFreshLife("Новый");
}

TEST_F(Ends, ADeathWhilePausedBeginsAnUnpausedLife)
{
    Type(Main(), "p");
    player.NextLifeIs("Новый");
    Click("frmMain", "cmdHealth");
    EnterRules([] { SetHappy(-80); });
    ExpectFreshLife("Новый");
    EXPECT_TRUE(ClockTicks() && !Main().isMinimized());
}

/// Nothing has begun yet: the test begins it inside the event loop.
class Loop : public Play
{
protected:
    Loop() : Play(50) {}
};

TEST_F(Loop, CancellingTheNameAfterADeathInAShopEndsTheProgramPromptly)
{
    QElapsedTimer since;
    const int code = RunInEventLoop([&] {
        Begin();
        EnterRules([] {
            SetHappy(-60);
            SetMoney(100);
        });
        Click("frmMain", "cmdShop");
        player.When("frmPlayerName", [&](QWidget& dialog) {
            since.start();
            Click(Control(&dialog, "Command2"));
        });
        Click("frmShop", "Command4"); // the eggs with garlic are too much
    });
    EXPECT_EQ(code, 0);
    EXPECT_LT(since.elapsed(), 1000);
    EXPECT_EQ(player.boxes, std::vector<QString>{Jumped});
    EXPECT_TRUE(OpenWindows().isEmpty());
}

TEST_F(Loop, TheTimeGoesOnBehindTheTypewriterButNoDayBegins)
{
    // given a quarrel at midnight, a fast clock, and the real timer hurried
    std::vector<int> hours;
    const int code = RunInEventLoop([&] {
        Begin();
        GameState.Married = GameState.WifeFound = True;
        JustBeforeMidnight();
        GameState.GameSpeed = 60;
        dice.values = {DrawOf(25, 50)};
        Control<QTimer>("frmMain", "tmrTime").setInterval(4);
        player.clockRuns = true;
        const Meanwhile watch([&] {
            if (!TextOf("frmMain", "lblMessage").isEmpty()) {
                hours.push_back(GameState.GameTime.hour);
                EXPECT_EQ(DateText(GameState.GameDate), "14.06.2001");
            } else if (!hours.empty()) {
                player.clockRuns = false;
                QCoreApplication::exit(0);
            }
        });
        QEventLoop().exec();
    });
    // then every hour of that day passed and the next one waited
    EXPECT_EQ(code, 0);
    ASSERT_GT(hours.size(), 20U);
    EXPECT_LT(hours.front(), 12);
    EXPECT_EQ(hours.back(), 23);
    EXPECT_TRUE(std::is_sorted(hours.begin(), hours.end()));
}

TEST_F(Loop, AnExceptionOutOfASlotIsReportedAndTheGameGoesOn)
{
    const int code = RunInEventLoop([&] {
        Begin();
        // from the top level, and from the loop of an open box
        const auto fail = [](const std::function<void()>& thrower) {
            QTimer::singleShot(0, qApp, thrower);
            QCoreApplication::processEvents();
        };
        fail([] { throw RuntimeError{error::TypeMismatch, {}}; });
        player.When("MessageBox", [&](QWidget& box) {
            fail([] { throw std::runtime_error("a bug"); });
            Click(*box.findChild<QAbstractButton*>());
        });
        EnterRules([] { MsgBox("Текст", "Окно", Icon::Information); });
        Click("frmMain", "cmdShop");
        EXPECT_TRUE(Find("frmShop"));
        QCoreApplication::exit(0);
    });
    EXPECT_EQ(code, 0);
    EXPECT_EQ(player.boxes.size(), 3U);
}

} // namespace
} // namespace torvenhall::test
