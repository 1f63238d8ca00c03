// The network window: what it shows of the two lines on a hurried clock, its
// panels and sites, and what a closed window leaves running.

#include <QFile>
#include <QTextEdit>

#include "network/network.h"
#include "support/play.h"
#include "ui/widgets/metrics.h"

using namespace torvenhall;
using namespace torvenhall::test;

struct Net : Play {
    // Ten seconds of dialling pass in less than half a one.
    Net() : Play(25)
    {
        GameState.HardComm = GameState.SoftBrowser = 1;
        Click("frmMain", "cmdInInet");
    }
    static bool Enabled(const char* control)
    {
        return Control<QWidget>("frmNetwork", control).isEnabled();
    }
    static void ClickUntil(const char* button, const char* line, const QString& status)
    {
        Click("frmNetwork", button);
        EXPECT_TRUE(Until([&] { return TextOf("frmNetwork", line) == "Status: " + status; }))
            << TextOf("frmNetwork", line).toStdString();
    }
};

TEST_F(Net, ShowsEachLineAtWorkAndItsPanelWhileItIsUp)
{
    for (const auto& [button, hangUp, line, panel, other] :
         {std::tuple{"Command1", "Command1", "Label1", "Picture1", "Command5"},
          {"Command5", "Command8", "Label2", "Picture2", "Command1"}}) {
        Click("frmNetwork", button);
        Click("frmNetwork", "Command9"); // the call outlives its window
        Click("frmMain", "cmdInInet");
        EXPECT_FALSE(Enabled(button) || Enabled(panel));
        const auto& status = Control<QWidget>("frmNetwork", line);
        const QRect mark(status.x(), status.geometry().bottom() + 1, status.width(), Px(6));
        QList<QImage> marks;
        EXPECT_TRUE(Until([&, dial = button] {
            const QImage shown = Find("frmNetwork")->grab(mark).toImage();
            marks << (marks.contains(shown) ? QList<QImage>() : QList<QImage>{shown});
            return Enabled(dial);
        }));
        EXPECT_EQ(TextOf(status), "Status: Connected");
        EXPECT_GE(marks.size(), 3) << "the mark moves";
        EXPECT_TRUE(Enabled(panel));
        // and keeps the other one down
        Click("frmNetwork", other);
        EXPECT_NE(Enabled("Picture1"), Enabled("Picture2"));
        ClickUntil(hangUp, line, "Disconnected");
        EXPECT_FALSE(Enabled(panel));
    }
}

TEST_F(Net, ShowsOneSiteAtATimeAndTheOthersToNobody)
{
    ClickUntil("Command1", "Label1", "Connected");
    QWidget& window = *Find("frmNetwork");
    const auto shows = [](int site) {
        return Control<QWidget>("frmNetwork", QString("picLocation%1").arg(site)).isVisible();
    };
    for (int site = 0; site < 3; ++site) {
        Click("frmNetwork", QString("cmdChangeLocation%1").arg(site));
        EXPECT_TRUE(shows(site) && shows(0) + shows(1) + shows(2) == 1);
        // Tab goes round once and never into what is hidden
        for (int stop = 0; stop < 30; ++stop) {
            Press(*window.focusWidget(), Qt::Key_Tab);
            EXPECT_TRUE(window.focusWidget()->isVisible());
        }
    }
    // an anecdote stays on an error
    const auto& box = Control<QTextEdit>("frmNetwork", "txtAnecdot");
    ASSERT_TRUE(QFile::copy(TORVENHALL_ASSETS "ANECDOT.DAT", Folder() + "ANECDOT.DAT"));
    Click("frmNetwork", "cmdRnd");
    const QString told = box.toPlainText();
    ASSERT_TRUE(QFile::resize(Folder() + "ANECDOT.DAT", 0));
    Click("frmNetwork", "cmdRnd");
    EXPECT_TRUE(told.size() > 20 && box.toPlainText() == told && player.boxes.size() == 1);
    Click("frmNetwork", "Command2");
    EXPECT_FALSE(shows(0) || shows(1) || shows(2));
}

TEST_F(Net, ThousandsOfClicksOnATransferLeaveSixteenThatAllFinish)
{
    ClickUntil("Command5", "Label2", "Connected");
    dice.otherwise = 1;
    for (const char* button : {"cmdBBSUpload", "cmdBBSDownload"}) {
        for (int i = 0; i < 5000; ++i) {
            Control("frmNetwork", button).click();
        }
        EXPECT_EQ(Network().bbsWaits, 16);
        EXPECT_TRUE(Until([] { return Network().bbsWaits == 0; }));
    }
    EXPECT_EQ(GameState.SoftSize, 16 * 10);
}
