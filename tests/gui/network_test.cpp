// The network window: both lines with their waits on a hurried clock, the
// panels, the sites, and what a closed window leaves running.

#include <QFile>
#include <QLabel>
#include <QRegularExpression>
#include <QTextEdit>

#include "network/network.h"
#include "resources/anecdotes.h"
#include "support/play.h"

namespace torvenhall::test
{
namespace
{

// Ten seconds of dialling pass in less than half a one, and its shortest step
// is long enough to be seen.
constexpr double Pace = 25;

class Net : public Play
{
protected:
    Net() : Play(Pace)
    {
        Begin();
        GameState.HardComm = 1;
        GameState.SoftBrowser = 1;
        Click("frmMain", "cmdInInet");
        // The first painting of a picture would take longer than a step.
        Find("frmNetwork")->grab();
        QTest::qWait(50);
    }

    /// What a status line says while something is done, each text once; the
    /// telephone number's digits as "9".
    static QStringList StatusesDuring(const char* line, const std::function<void()>& deed)
    {
        QStringList said;
        {
            const Meanwhile watch([&] {
                if (!IsShown("frmNetwork")) {
                    return;
                }
                const QString now =
                    TextOf("frmNetwork", line).replace(QRegularExpression("\\d"), "9");
                if (said.isEmpty() || said.last() != now) {
                    said << now;
                }
            });
            deed();
        }
        const QString last = TextOf("frmNetwork", line);
        return said.isEmpty() || said.last() != last ? said << last : said;
    }

    static bool Enabled(const char* control)
    {
        return Control<QWidget>("frmNetwork", control).isEnabled();
    }

    static void Dial(const char* button)
    {
        Click("frmNetwork", button);
        QTest::qWait(5);
    }
};

TEST_F(Net, DialsTheInternetStepByStepAndHangsUp)
{
    EXPECT_FALSE(Enabled("Picture1"));
    bool busy = false;
    const auto said = StatusesDuring("Label1", [&] {
        const Meanwhile watch([&] { busy = busy || !Enabled("Command1"); });
        Dial("Command1");
    });
    EXPECT_EQ(said,
              (QStringList{"Status: Initializing...", "Status: Dialing 999-99-99",
                           "Status: Connecting...", "Status: Verifying...", "Status: Connected"}));
    EXPECT_TRUE(busy);
    EXPECT_TRUE(Enabled("Command1"));
    EXPECT_TRUE(Enabled("Picture1"));
    // when three hours pass on the line
    Tick(6);
    EXPECT_EQ(StatusesDuring("Label1", [] { Dial("Command1"); }),
              (QStringList{"Status: Disconnecting...", "Status: Disconnected"}));
    EXPECT_FALSE(Enabled("Picture1"));
    EXPECT_EQ(TextOf("frmMain", "lblMoney"), "$12");
    // and two more in another session: all the hours are billed again
    Dial("Command1");
    Tick(4);
    Dial("Command1");
    EXPECT_EQ(TextOf("frmMain", "lblMoney"), "$7");
}

TEST_F(Net, DialsTheBoardFromBothItsButtons)
{
    for (const char* button : {"Command5", "Command8"}) {
        EXPECT_FALSE(Enabled("Picture2"));
        EXPECT_EQ(StatusesDuring("Label2", [button] { Dial(button); }),
                  (QStringList{"Status: Initializing...", "Status: Dialing 999-99-99",
                               "Status: Connecting...", "Status: Connected"}));
        EXPECT_TRUE(Enabled("Picture2"));
        EXPECT_EQ(StatusesDuring("Label2", [button] { Dial(button); }),
                  (QStringList{"Status: Disconnecting...", "Status: Disconnected"}));
    }
    EXPECT_EQ(GameState.Money, 15);
}

TEST_F(Net, OneLineKeepsTheOtherDown)
{
    Dial("Command5");
    EXPECT_EQ(StatusesDuring("Label1", [] { Dial("Command1"); }),
              QStringList{"Status: Disconnected"});
    EXPECT_TRUE(Enabled("Command1"));
    EXPECT_FALSE(Enabled("Picture1"));
    Dial("Command5");
    Dial("Command1");
    EXPECT_EQ(StatusesDuring("Label2", [] { Dial("Command8"); }),
              QStringList{"Status: Disconnected"});
    EXPECT_FALSE(Enabled("Picture2"));
}

TEST_F(Net, ShowsOneSiteAtATimeAndTheOthersToNobody)
{
    Dial("Command1");
    const auto shown = [] {
        QStringList sites;
        for (int i = 0; i < 3; ++i) {
            const QString name = QString("picLocation%1").arg(i);
            if (Control<QWidget>("frmNetwork", name).isVisible()) {
                sites << name;
            }
        }
        return sites;
    };
    EXPECT_TRUE(shown().isEmpty());
    for (int i = 0; i < 3; ++i) {
        Click("frmNetwork", QString("cmdChangeLocation%1").arg(i));
        EXPECT_EQ(shown(), QStringList{QString("picLocation%1").arg(i)});
        // Tab goes round once and never into what is hidden
        QWidget& window = *Find("frmNetwork");
        for (int stop = 0; stop < 30; ++stop) {
            Press(*window.focusWidget(), Qt::Key_Tab);
            EXPECT_TRUE(window.focusWidget()->isVisible());
        }
    }
    Click("frmNetwork", "Command2");
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(Net, TheSoftwareIsHadOnceUntilTheNextAntivirusData)
{
    Dial("Command1");
    dice.values = {DrawOf(7, 10), DrawOf(2, 10)};
    Click("frmNetwork", "cmdChangeLocation1");
    EXPECT_EQ(StatusesDuring("Label1", [] { Click("frmNetwork", "Command6"); }),
              (QStringList{"Status: Downloading 9 Mb...", "Status: Connected"}));
    EXPECT_EQ(GameState.SoftSize, 7);
    EXPECT_FALSE(Enabled("Command6"));
    Click("frmNetwork", "cmdChangeLocation0");
    Click("frmNetwork", "Command7");
    EXPECT_EQ(GameState.SoftSize, 9);
    EXPECT_TRUE(Enabled("Command7"));
    Click("frmNetwork", "cmdChangeLocation1");
    EXPECT_TRUE(Enabled("Command6"));
}

TEST_F(Net, ASecondTransferRunsInsideTheFirstAndBothAdd)
{
    Dial("Command5");
    dice.values = {DrawOf(5, 10), DrawOf(2, 10)};
    bool second = false;
    const Meanwhile watch([&] {
        if (!second && TextOf("frmNetwork", "Label2") == "Status: Receiving 5120 Data...") {
            second = true;
            Click("frmNetwork", "cmdBBSDownload");
        }
    });
    Click("frmNetwork", "cmdBBSDownload");
    EXPECT_TRUE(second);
    EXPECT_EQ(TextOf("frmMain", "lblOther"), "7 Мб");
    EXPECT_EQ(TextOf("frmNetwork", "Label2"), "Status: Connected");
}

TEST_F(Net, ACallOutlivesItsWindowAndIsShownByTheNext)
{
    bool reopened = false;
    const Meanwhile watch([&] {
        if (!reopened && Network().inetStatus.starts_with("Status: Dialing")) {
            reopened = true;
            Click("frmNetwork", "Command9");
            Click("frmMain", "cmdInInet");
            EXPECT_TRUE(TextOf("frmNetwork", "Label1").startsWith("Status: Dialing"));
            EXPECT_FALSE(Enabled("Command1"));
            EXPECT_FALSE(Enabled("Picture1"));
        }
    });
    Click("frmNetwork", "Command1");
    EXPECT_TRUE(reopened);
    EXPECT_TRUE(Enabled("Picture1"));
}

TEST_F(Net, ADeathDuringACallAbandonsIt)
{
    bool died = false;
    const Meanwhile watch([&] {
        if (!died && Network().inetStatus.starts_with("Status: Dialing")) {
            died = true;
            player.NextLifeIs("Новый");
            Set([] { SetHappy(-80); });
        }
    });
    Click("frmNetwork", "Command1");
    ExpectFreshLife("Новый");
    EXPECT_FALSE(IsShown("frmNetwork"));
    EXPECT_EQ(Network().InetConnected, False);
    GameState.HardComm = 1;
    GameState.SoftBrowser = 1;
    Click("frmMain", "cmdInInet");
    EXPECT_EQ(TextOf("frmNetwork", "Label1"), "Status: Disconnected");
    EXPECT_TRUE(Enabled("Command1"));
}

TEST_F(Net, TellsAnecdotesAndKeepsTheLastOnAnError)
{
    Dial("Command1");
    Click("frmNetwork", "cmdChangeLocation2");
    auto& box = Control<QTextEdit>("frmNetwork", "txtAnecdot");
    ASSERT_TRUE(QFile::copy(TORVENHALL_ASSETS "ANECDOT.DAT", Folder() + "ANECDOT.DAT"));
    Click("frmNetwork", "cmdRnd");
    const QString told = box.toPlainText();
    EXPECT_GT(told.size(), 20);
    EXPECT_TRUE(player.boxes.empty());
    // when the file is empty
    ASSERT_TRUE(QFile::resize(Folder() + "ANECDOT.DAT", 0));
    Click("frmNetwork", "cmdRnd");
    EXPECT_EQ(player.boxes.size(), 1U);
    EXPECT_EQ(box.toPlainText(), told);
    // and when it is missing
    ASSERT_TRUE(QFile::remove(Folder() + "ANECDOT.DAT"));
    Click("frmNetwork", "cmdRnd");
    EXPECT_EQ(player.boxes.back(),
              "Ошибка 541: Файл анекдотов '" + Folder() + "anecdot.dat' не найден");
    EXPECT_EQ(box.toPlainText(), "");
}

} // namespace
} // namespace torvenhall::test
