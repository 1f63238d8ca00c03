#include "network/network.h"

#include <cmath>

#include "game/commands.h"
#include "support/life.h"

using namespace torvenhall;

class Lines : public BegunLife
{
protected:
    /// Both lines as the window shows them, which buttons work, and a star for
    /// each pause that runs.
    static std::string Shown()
    {
        const NetworkState& now = Network();
        EXPECT_TRUE(now.inetStatus.starts_with("Status: ") &&
                    now.bbsStatus.starts_with("Status: "));
        const auto stars = static_cast<std::size_t>(now.inetWaits + now.bbsWaits);
        return now.inetStatus.substr(8) + "/" + now.bbsStatus.substr(8) +
               (now.inetDialEnabled ? " 1" : "") + (now.bbsDialEnabled ? " 5" : "") +
               (now.downloadEnabled ? " 6" : "") + std::string(stars, '*');
    }

    /// Writes down what each text of a button is, for how many seconds it
    /// stays, and what comes of it.
    void Press(const std::string& what, void (*button)(), float draw = 0)
    {
        dice.values = {draw};
        lines.push_back(what + ":");
        double began = player.seconds;
        const auto show = [&] {
            if (!lines.back().ends_with(":")) {
                lines.back() += ", " + DecimalOf(std::ceil(player.seconds - began)) + " s |";
            }
            lines.back() += " " + Shown();
            began = player.seconds;
        };
        player.atEachWait = [&] {
            show();
            EXPECT_EQ(player.journal.back(), "reload frmNetwork") << "the window shows it";
        };
        const std::string outcome = Outcome([=] { EnterRules(button); });
        show();
        player.atEachWait = [] {};
        const std::size_t label = outcome.find("lbl"), money = outcome.find("Money");
        const std::size_t at = std::min({label, money, outcome.size()});
        lines.back() = Joined({lines.back(), outcome.substr(at)});
    }

    /// Both lines as in a fresh program, but for one of them up.
    static void Fresh(void (*dial)())
    {
        const Game life = GameState;
        ResetRules();
        GameState = life;
        Assign("HardComm=1 SoftBrowser=1");
        dial();
    }
};

TEST_F(Lines, EveryButtonShowsItsTextsForTheirSeconds)
{
    player.open = {"frmNetwork"};
    Press("Internet", DialInternet);
    NetworkHourTick();
    Press("board, refused", DialBoard);
    Press("software", DownloadSoftware, 0.7F);
    Press("antivirus", DownloadAntivirus, 0.2F);
    Press("software, nothing", DownloadSoftware);
    Press("Internet, after an hour", DialInternet);
    NetworkHourTick();
    Press("board", DialBoard);
    NetworkHourTick();
    Press("Internet, refused", DialInternet);
    Press("receive", ReceiveFromBoard, 0.5F);
    Press("receive, nothing", ReceiveFromBoard);
    Press("send, two and a half", SendToBoard, 0.25F);
    Press("send, seven and a half", SendToBoard, 0.75F);
    Press("board", DialBoard);
    DialInternet();
    NetworkHourTick();
    Meanwhile(NetworkHourTick); // one that passes while hanging up
    Press("Internet, after two more", DialInternet);
    for (const std::string& site :
         Grouped(-1, 3, [](int i) { return std::string(SiteAddress(i)); })) {
        lines.push_back("site " + site);
    }
    ExpectKept("network.txt", lines);
}

TEST_F(Lines, WhateverHappensInAPauseLeavesLinesAndButtonsRight)
{
    const auto nothing = [] {};
    const auto die = [] { SetHealth(-50); };
    // clang-format off
    struct {
        void (*dial)();
        void (*outer)();
        void (*inner)();
        int size;
        const char* shown;
    } const rows[]{
        {nothing, DialInternet, DialBoard, 0, "Connected/Connected 1 5 6"},
        {DialBoard, ReceiveFromBoard, ReceiveFromBoard, 7, "Disconnected/Connected 1 5 6"},
        {DialInternet, DownloadSoftware, DownloadAntivirus, 7, "Connected/Disconnected 1 5 6"},
        {DialInternet, DownloadAntivirus, DownloadSoftware, 7, "Connected/Disconnected 1 5 6"},
        {DialInternet, DownloadAntivirus, DialInternet, 3, "Disconnected/Disconnected 1 5 6"},
        {nothing, DialInternet, die, 0, "Disconnected/Disconnected 1 5 6"},
        {nothing, DialBoard, die, 0, "Disconnected/Disconnected 1 5 6"},
        {DialInternet, DialInternet, die, 0, "Connected/Disconnected 1 5 6"},
        {DialInternet, DownloadSoftware, die, 0, "Connected/Disconnected 1 5 6"},
        {DialBoard, ReceiveFromBoard, die, 0, "Disconnected/Connected 1 5 6"},
    };
    // clang-format on
    for (const auto& row : rows) {
        Begin();
        Fresh(row.dial);
        NextLifeIs("Пётр");
        dice.values = {DrawOf(3, 10), DrawOf(4, 10)};
        Meanwhile([&] {
            const std::string running = Shown();
            GoOnline(); // keeps the status of what runs
            EXPECT_EQ(Shown(), running);
            NetworkHourTick();
            EnterRules(row.inner);
        });
        EnterRules(row.outer);
        EXPECT_EQ(Shown(), row.shown);
        EXPECT_EQ(GameState.SoftSize, row.size);
        EXPECT_EQ(GameState.Money, row.inner == DialInternet ? 14 : 15);
        EXPECT_EQ(GameState.PlayerName, row.inner == +die ? "Пётр" : "Иван");
        GoOnline();
        EXPECT_EQ(Network().inetStatus.ends_with(" Connected"), Network().InetConnected == True);
    }
}

TEST_F(Lines, WhatIsBeyondItsWidthIsSwallowedAndTheButtonWorksAgain)
{
    DialInternet();
    for (int i = 0; i < 32767 + 2; ++i) {
        NetworkHourTick();
    }
    EXPECT_EQ(Network().TrafficHours, 32767);
    Assign("SoftSize=32767 Money=-2147483647");
    dice.values = {DrawOf(1, 10)};
    EXPECT_EQ(Outcome(DownloadSoftware) + Outcome(DialInternet), "");
    EXPECT_EQ(Shown(), "Disconnected/Disconnected 1 5 6");
}

TEST_F(Lines, AtMostSixteenTransfersGoOnAtOnce)
{
    player.duringWait.resize(20, [] { EnterRules(ReceiveFromBoard); });
    dice.otherwise = 0.5F;
    int most = 0;
    player.atEachWait = [&] { most = std::max(most, Network().bbsWaits); };
    EnterRules(ReceiveFromBoard);
    EXPECT_EQ(most, 16);
    EXPECT_EQ(Network().bbsWaits, 0);
}
