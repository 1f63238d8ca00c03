// Life's end, the program's end and the clock, through the real windows.

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>

#include "core/errors.h"
#include "core/newgame.h"
#include "core/outside.h"
#include "support/play.h"

namespace torvenhall::test
{
namespace
{

const QString Jumped =
    "Критический уровень настроения: Вы спрыгнули с 15 этажа и разбились насмерть!!!";
const QString Starved = "Желаю тебе быть большим и тольстым: Вы умерли голодной смертью!";

QStringList OpenWindows()
{
    QStringList names;
    for (const QWidget* each : QApplication::topLevelWidgets()) {
        if (each->isVisible()) {
            names << each->objectName();
        }
    }
    return names;
}

class Ends : public Play
{
protected:
    Ends() { Begin(); }

    /// The next midnight starves.
    static void StarveAtMidnight()
    {
        Set([] { SetEatLevel(-34); });
        JustBeforeMidnight();
    }
};

TEST_F(Ends, AFatalPurchaseTakesNothingFromTheNextLife)
{
    Set([] {
        SetHappy(-30);
        SetMoney(300);
    });
    Click("frmMain", "cmdHealth");
    player.NextLifeIs("Новый");
    Click("frmHospital", "Command5");
    EXPECT_EQ(player.boxes, std::vector<QString>{Jumped});
    EXPECT_EQ(player.dialogs, (std::vector<QString>{"MessageBox", "frmPlayerName"}));
    EXPECT_EQ(OpenWindows(), QStringList{"frmMain"});
    ExpectFreshLife("Новый");
}

TEST_F(Ends, StarvationAtMidnightBeginsOnTheFirstDay)
{
    StarveAtMidnight();
    player.NextLifeIs("Новый");
    Tick();
    EXPECT_EQ(player.boxes, std::vector<QString>{Starved});
    ExpectFreshLife("Новый");
    Tick();
    EXPECT_EQ(TextOf("frmMain", "lblTime"), "1 января 2001 г. - 00:30");
}

TEST_F(Ends, ADeathClosesAShopsRefusal)
{
    StarveAtMidnight();
    Set([] { SetMoney(14); });
    Click("frmMain", "cmdShop");
    QPointer<QWidget> refusal;
    player.When("MessageBox", [&](QWidget& box) {
        refusal = &box;
        player.NextLifeIs("Новый");
        Tick();
    });
    Click("frmShop", "Command1");
    EXPECT_EQ(player.boxes,
              (std::vector<QString>{"Идиот!: Шеф-Повор: А ну убирайся отсюда!!!!!!", Starved}));
    EXPECT_FALSE(refusal && refusal->isVisible());
    EXPECT_EQ(OpenWindows(), QStringList{"frmMain"});
    ExpectFreshLife("Новый");
}

TEST_F(Ends, ADeathCancelsASave)
{
    StarveAtMidnight();
    player.When("frmLocGame", [&](QWidget& dialog) {
        Type(*dialog.findChild<QLineEdit*>("Text1"), "Поздно");
        player.NextLifeIs("Новый");
        Tick();
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
    Set([] { SetHappy(-80); });
    EXPECT_EQ(OpenWindows(), QStringList{"frmMain"});
    EXPECT_TRUE(Main().findChild<QTimer*>("tmrTime")->isActive());
    EXPECT_FALSE(Main().isMinimized());
    EXPECT_EQ(TextOf("frmMain", "lblMessage"), "");
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
        Set([] {
            SetHappy(-60);
            SetMoney(100);
        });
        Click("frmMain", "cmdShop");
        player.When("frmPlayerName", [&](QWidget& dialog) {
            since.start();
            Click(*dialog.findChild<QAbstractButton*>("Command2"));
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
    int ticks = 0;
    bool typed = false;
    QStringList dates;
    std::vector<int> hours;
    const int code = RunInEventLoop([&] {
        Begin();
        GameState.Married = GameState.WifeFound = True;
        JustBeforeMidnight();
        GameState.GameSpeed = 60;
        dice.values = {DrawOf(25, 50)};
        auto* clockTimer = Main().findChild<QTimer*>("tmrTime");
        clockTimer->setInterval(4);
        player.clockRuns = true;
        const Meanwhile watch([&] {
            const QString line = TextOf("frmMain", "lblMessage");
            if (!line.isEmpty()) {
                typed = true;
                ++ticks;
                dates << QString::fromStdString(DateText(GameState.GameDate));
                hours.push_back(GameState.GameTime.hour);
            } else if (typed) {
                player.clockRuns = false;
                QCoreApplication::exit(0);
            }
        });
        QEventLoop().exec();
    });
    // then every hour of that day passed and the next one waited
    EXPECT_EQ(code, 0);
    ASSERT_GT(ticks, 20);
    EXPECT_LT(hours.front(), 12);
    EXPECT_EQ(hours.back(), 23);
    EXPECT_TRUE(std::is_sorted(hours.begin(), hours.end()));
    dates.removeDuplicates();
    EXPECT_EQ(dates, QStringList{"14.06.2001"});
}

TEST_F(Loop, AnExceptionOutOfASlotIsReportedAndTheGameGoesOn)
{
    bool later = false;
    const int code = RunInEventLoop([&] {
        Begin();
        // from the top level, and from the loop of an open box
        QObject thrower;
        QObject::connect(&thrower, &QObject::objectNameChanged, [](const QString& name) {
            if (name == "rules") {
                throw RuntimeError{error::TypeMismatch, {}};
            }
            throw std::runtime_error("a bug");
        });
        const auto throwFrom = [&](const char* name) {
            QMetaObject::invokeMethod(
                &thrower, [&thrower, name] { thrower.setObjectName(name); }, Qt::QueuedConnection);
            QCoreApplication::processEvents();
        };
        throwFrom("rules");
        player.When("MessageBox", [&](QWidget& box) {
            throwFrom("other");
            Click(*box.findChild<QAbstractButton*>());
        });
        Set([] { MsgBox("Текст", "Окно", Icon::Information); });
        later = true;
        Click("frmMain", "cmdShop");
        EXPECT_TRUE(IsShown("frmShop"));
        QCoreApplication::exit(0);
    });
    EXPECT_EQ(code, 0);
    EXPECT_TRUE(later);
    EXPECT_EQ(player.boxes.size(), 3U);
}

} // namespace
} // namespace torvenhall::test
