// Waits that overlap: each ends when its own time or answer has come, in
// whatever order they began.

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>

#include "core/unwinding.h"
#include "core/waits.h"
#include "events/message.h"
#include "network/network.h"
#include "savegame/savegame.h"
#include "support/play.h"
#include "system/basSystem.h"
#include "ui/widgets/quietlife.h"

using namespace torvenhall;
using namespace torvenhall::test;

struct Waits : Play {
    explicit Waits(double pace = 1) : Play(pace) {}

    /// Opens the save dialog, a name typed, and leaves it open.
    void OpenSaveDialog()
    {
        player.When("frmLocGame", [] { Type(Control<QLineEdit>("frmLocGame", "Text1"), "Вечер"); });
        Choose("mnuFileSavegame");
    }
    bool IsSaved() { return QFileInfo(Folder() + "SAVE/Вечер.QVS").size() > 100; }
};

struct HurriedWaits : Waits {
    HurriedWaits() : Waits(25) {}
};

TEST_F(Waits, TheQuietLifeRestsWhilePausedAndWhereNothingShallMove)
{
    int steps = 0;
    QuietLife quiet(&Main(), [&] { ++steps; });
    const auto stepsIn = [&](bool paused, bool still) {
        SetStillLife(still);
        quiet.SetPaused(paused);
        return steps = 0, QTest::qWait(600), steps;
    };
    EXPECT_TRUE(Until([&] { return Main().isActiveWindow(); }));
    const bool moves = !OnBattery();
    EXPECT_EQ(stepsIn(false, false) > 0, moves);
    EXPECT_EQ(stepsIn(true, false), 0);
    EXPECT_EQ(stepsIn(false, true), 0);
}

TEST_F(Waits, ASaveConfirmedWhileAMessageIsTypedIsWrittenAtOnceAndStays)
{
    for (const bool lifeEnds : {true, false}) {
        OpenSaveDialog();
        BeginQuarrel();
        Click("frmLocGame", "Command1");
        EXPECT_TRUE(!Find("frmLocGame") && Typing() && IsSaved());
        if (lifeEnds) {
            player.NextLifeIs("Новый");
            Do([] { SetHappy(-80); });
            ExpectFreshLife("Новый");
        } else {
            player.When("MessageBox", [] { Say("Нет"); });
            Choose("mnuFileExit");
            frontEnd.reset();
        }
        EXPECT_TRUE(IsSaved());
        QFile::remove(Folder() + "SAVE/Вечер.QVS");
    }
}

TEST_F(Waits, NoAtTheClosingQuestionEndsTheProgramAtOnceWhateverWaits)
{
    const std::vector<std::function<void()>> waits{
        [this] { BeginQuarrel(); },
        [] { Do(DialInternet); },
        [this] {
            player.When("frmVirus", [] {});
            Do(ShowVirusWindow);
        },
        [this] { OpenSaveDialog(); },
        [&] { std::for_each(waits.begin(), waits.end() - 1, [](auto& each) { each(); }); },
    };
    for (const auto& wait : waits) {
        Start();
        QElapsedTimer since;
        ExpectEnd([&] {
            wait();
            player.When("MessageBox", [&] {
                since.start();
                Say("Нет");
            });
            Choose("mnuFileExit");
        });
        EXPECT_LT(since.elapsed(), 200) << &wait - waits.data();
    }
}

TEST_F(Waits, TheProgramsEndUnwindsEveryRoutineThatWaits)
{
    player.reacts = false;
    std::size_t unwound = 0;
    const std::function<void()> waits[]{[] { Pause(1000); },
                                        [] { MsgBox("Текст", "Окно", Icon::Information); },
                                        SaveGame,
                                        ShowVirusWindow,
                                        DialBoard,
                                        [] { ShowMessage("Текст"); }};
    for (const auto& wait : waits) {
        Do([&unwound, wait] {
            try {
                wait();
            } catch (const Abandoned&) {
                ++unwound;
                throw;
            }
        });
    }
    EXPECT_EQ(unwound, 0U);
    frontEnd.reset();
    EXPECT_EQ(unwound, std::size(waits));
}

TEST_F(HurriedWaits, DiallingGoesOnWhileAMessageIsTypedAndABoxIsOpen)
{
    player.When("MessageBox", [] {});
    Do(DialInternet);
    Do([] { ShowMessage(std::string(500, '!')); });
    Do([] { MsgBox("Текст", "Окно", Icon::Information); });
    EXPECT_TRUE(Until([] { return Network().InetConnected == True; }));
    EXPECT_TRUE(Typing() && Find("MessageBox"));
}

TEST_F(HurriedWaits, AMessageGoesOnUnderAnOpenSaveDialogAndAfterIt)
{
    const auto grows = [] {
        const auto before = Shown(Label::lblMessage).size();
        return Until([=] { return Shown(Label::lblMessage).size() > before; });
    };
    BeginQuarrel();
    OpenSaveDialog();
    EXPECT_TRUE(grows());
    Press(*Find("frmLocGame"), Qt::Key_Escape);
    EXPECT_TRUE(grows());
    EXPECT_TRUE(Until([] { return Today() == "15.06.2001"; }));
    EXPECT_FALSE(Typing());
}

TEST_F(HurriedWaits, ARefusedLoadLetsAMessageBeFinished)
{
    player.SavesAs("Чужая");
    Choose("mnuFileSavegame");
    const std::string file = Utf8(Folder() + "SAVE/Чужая.QVS");
    ReplaceFile(file, '?' + ReadWholeFile(file));
    BeginQuarrel();
    player.When("frmLocGame", [] {
        auto& list = Control<QListWidget>("frmLocGame", "List1");
        list.setCurrentRow(0);
        Press(list, Qt::Key_Return);
    });
    Choose("mnuFileLoadgame");
    EXPECT_EQ(player.boxes, QStringList{"Загрузка игры: Некорректная версия"});
    EXPECT_TRUE(Typing());
    EXPECT_TRUE(Until([] { return Today() == "15.06.2001"; }));
}

TEST_F(Waits, ATicksBoxOverAnOpenSaveDialogIsAnsweredInEitherOrder)
{
    for (const bool boxFirst : {true, false}) {
        GameState.WifeFound = False;
        OpenSaveDialog();
        player.When("MessageBox", [] {});
        JustBeforeMidnight({0, 0, 0, DrawOf(24, 25)}); // brings a wedding
        Tick();
        for (const bool box : {boxFirst, !boxFirst}) {
            EXPECT_EQ(Today() == "15.06.2001", boxFirst && !box);
            box ? Say("OK") : Click("frmLocGame", "Command1");
            EXPECT_EQ(SavedFiles().isEmpty(), box && boxFirst);
        }
        EXPECT_TRUE(Today() == "15.06.2001" && GameState.WifeFound == True);
        EXPECT_EQ(OpenWindows(), QStringList{"frmMain"});
        QFile::remove(Folder() + "SAVE/Вечер.QVS");
    }
}

TEST_F(Waits, AWindowIsDeletedWhenItIsClosed)
{
    const QPointer<QWidget> first = &Main();
    const auto windows = [] { return QApplication::topLevelWidgets().size(); };
    const auto before = windows();
    Click("frmMain", "cmdShop");
    Click("frmShop", "Command2"); // too dear
    Click("frmShop", "Command8");
    OpenSaveDialog();
    Leave("frmLocGame", "Esc");
    EXPECT_TRUE(windows() == before && player.boxes.size() == 1);
    player.NextLifeIs("Новый");
    Choose("mnuFileNewgame");
    EXPECT_TRUE(windows() == before && !first);
}
