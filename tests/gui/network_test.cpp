// The network window: what it shows of the two lines on a hurried clock, its
// panels and sites, and what a closed window leaves running.

#include <QFile>
#include <QTextEdit>

#include <set>

#include "network/network.h"
#include "support/play.h"
#include "ui/widgets/metrics.h"

namespace torvenhall::test
{
namespace
{

class Net : public Play
{
protected:
    // Ten seconds of dialling pass in less than half a one, and its shortest
    // step is long enough to be seen.
    Net() : Play(25)
    {
        Begin();
        Open();
        // The first painting of a picture would take longer than a step.
        Find("frmNetwork")->grab();
        QTest::qWait(50);
    }

    static void Open()
    {
        GameState.HardComm = GameState.SoftBrowser = 1;
        Click("frmMain", "cmdInInet");
    }
    static bool Enabled(const char* control)
    {
        return Control<QWidget>("frmNetwork", control).isEnabled();
    }
    /// Clicks a button that waits, and does something once a line has such a
    /// status.
    static void During(const char* button, const char* status, const std::function<void()>& deed)
    {
        bool done = false;
        const Meanwhile watch([&] {
            const auto& lines = Network();
            if (!done && (lines.inetStatus + lines.bbsStatus).find(status) != std::string::npos) {
                done = true;
                deed();
            }
        });
        Click("frmNetwork", button);
        EXPECT_TRUE(done) << status;
    }
};

TEST_F(Net, ShowsEachLineAtWorkAndItsPanelWhileItIsUp)
{
    for (const auto& [button, hangUp, line, panel, other] :
         {std::tuple{"Command1", "Command1", "Label1", "Picture1", "Command5"},
          {"Command5", "Command8", "Label2", "Picture2", "Command1"}}) {
        EXPECT_FALSE(Enabled(panel));
        const auto& status = Control<QWidget>("frmNetwork", line);
        const QRect mark(status.x(), status.geometry().bottom() + 1, status.width(), Px(6));
        QStringList said;
        std::set<QByteArray> marks;
        {
            const Meanwhile watch([&, name = line, dial = button] {
                said << TextOf("frmNetwork", name).section(' ', 1, 1);
                const QImage shown = Find("frmNetwork")->grab(mark).toImage();
                marks.insert(
                    {reinterpret_cast<const char*>(shown.constBits()), shown.sizeInBytes()});
                EXPECT_EQ(Enabled(dial), said.last() == "Connected");
            });
            Click("frmNetwork", button);
        }
        said.removeDuplicates();
        EXPECT_TRUE(said.join(' ').startsWith("Initializing... Dialing Connecting..."))
            << said.join(' ').toStdString();
        EXPECT_EQ(TextOf("frmNetwork", line), "Status: Connected");
        EXPECT_GE(marks.size(), 3U) << "the mark moves";
        EXPECT_TRUE(Enabled(panel) && Enabled(button));
        // and keeps the other one down
        Click("frmNetwork", other);
        EXPECT_NE(Enabled("Picture1"), Enabled("Picture2"));
        Click("frmNetwork", hangUp);
        EXPECT_EQ(TextOf("frmNetwork", line), "Status: Disconnected");
        EXPECT_FALSE(Enabled(panel));
    }
}

TEST_F(Net, ShowsOneSiteAtATimeAndTheOthersToNobody)
{
    Click("frmNetwork", "Command1");
    const auto shown = [] {
        QString sites;
        for (const char* site : {"picLocation0", "picLocation1", "picLocation2"}) {
            sites += Control<QWidget>("frmNetwork", site).isVisible() ? site : "";
        }
        return sites;
    };
    EXPECT_EQ(shown(), "");
    for (const QString site : {"0", "1", "2"}) {
        Click("frmNetwork", "cmdChangeLocation" + site);
        EXPECT_EQ(shown(), "picLocation" + site);
        // Tab goes round once and never into what is hidden
        QWidget& window = *Find("frmNetwork");
        for (int stop = 0; stop < 30; ++stop) {
            Press(*window.focusWidget(), Qt::Key_Tab);
            EXPECT_TRUE(window.focusWidget()->isVisible());
        }
    }
    // what is downloaded on one site frees the button of another
    for (const auto& [site, button, free] :
         {std::tuple{"1", "Command6", false}, {"0", "Command7", true}}) {
        Click("frmNetwork", QString("cmdChangeLocation") + site);
        Click("frmNetwork", button);
        EXPECT_EQ(Enabled("Command6"), free);
    }
    Click("frmNetwork", "Command2");
    EXPECT_EQ(shown(), "");
}

TEST_F(Net, ASecondTransferRunsInsideTheFirstAndBothAdd)
{
    Click("frmNetwork", "Command5");
    dice.values = {DrawOf(5, 10), DrawOf(2, 10)};
    const auto second = [] { Click("frmNetwork", "cmdBBSDownload"); };
    During("cmdBBSDownload", "Receiving 5120 Data...", second);
    EXPECT_EQ(TextOf("frmMain", "lblOther"), "7 Мб");
    dice.values = {DrawOf(1, 10)};
    During("cmdBBSUpload", "Sending 1024 Data...", [] {});
    EXPECT_EQ(TextOf("frmNetwork", "Label2"), "Status: Connected");
}

TEST_F(Net, ACallOutlivesItsWindowAndIsShownByTheNext)
{
    const auto reopen = [] {
        Click("frmNetwork", "Command9");
        Open();
        EXPECT_TRUE(TextOf("frmNetwork", "Label1").startsWith("Status: Dialing"));
        EXPECT_FALSE(Enabled("Command1") || Enabled("Picture1"));
    };
    During("Command1", "Dialing", reopen);
    EXPECT_TRUE(Enabled("Command1") && Enabled("Picture1"));
}

TEST_F(Net, ADeathDuringACallAbandonsIt)
{
    player.NextLifeIs("Новый");
    During("Command1", "Dialing", [] { EnterRules([] { SetHappy(-80); }); });
    ExpectFreshLife("Новый");
    Open();
    EXPECT_EQ(TextOf("frmNetwork", "Label1"), "Status: Disconnected");
    EXPECT_TRUE(Enabled("Command1"));
}

TEST_F(Net, TellsAnecdotesAndKeepsTheLastOnAnError)
{
    Click("frmNetwork", "Command1");
    Click("frmNetwork", "cmdChangeLocation2");
    const auto& box = Control<QTextEdit>("frmNetwork", "txtAnecdot");
    ASSERT_TRUE(QFile::copy(TORVENHALL_ASSETS "ANECDOT.DAT", Folder() + "ANECDOT.DAT"));
    Click("frmNetwork", "cmdRnd");
    const QString told = box.toPlainText();
    EXPECT_GT(told.size(), 20);
    EXPECT_TRUE(player.boxes.empty());
    ASSERT_TRUE(QFile::resize(Folder() + "ANECDOT.DAT", 0));
    Click("frmNetwork", "cmdRnd");
    EXPECT_EQ(player.boxes.size(), 1U);
    EXPECT_EQ(box.toPlainText(), told);
}

} // namespace
} // namespace torvenhall::test
