#include "network/network.h"

#include "core/basGame.h"
#include "core/life.h"
#include "equipment/basEquipment.h"
#include "game/commands.h"
#include "game/entry.h"
#include "support/life.h"
#include "system/convert.h"

namespace torvenhall::test
{
namespace
{

class Lines : public BegunLife
{
protected:
    /// Both lines as the window shows them, and which buttons work.
    static std::string Shown()
    {
        const NetworkState& lines = Network();
        return lines.inetStatus.substr(8) + "/" + lines.bbsStatus.substr(8) +
               (lines.inetDialEnabled ? " 1" : "") + (lines.bbsDialEnabled ? " 5" : "") +
               (lines.downloadEnabled ? " 6" : "");
    }

    /// What the following pauses show, each with the half second of its end:
    /// rounding ends each a little more than half a second early.
    void WatchPauses(int count)
    {
        for (int i = 0; i < count; ++i) {
            player.duringWait.emplace_back([this] {
                const double halves = Round((player.seconds - began) * 2) / 2;
                pauses.push_back(DecimalOf(halves) + " " + Shown());
            });
        }
        pauses.clear();
        began = player.seconds;
    }

    /// The player enters the rules with this during the next pause.
    void InTheNextPause(void (*handler)())
    {
        player.duringWait.emplace_back([handler] { EnterRules(handler); });
    }

    Texts pauses;
    double began = 0;
};

TEST_F(Lines, DiallingTheInternetShowsEachStepForItsSeconds)
{
    WatchPauses(4);
    DialInternet();
    EXPECT_EQ(pauses,
              (Texts{"0.5 Initializing.../Disconnected 5 6", "5 Dialing 555-28-64/Disconnected 5 6",
                     "5.5 Connecting.../Disconnected 5 6", "8 Verifying.../Disconnected 5 6"}));
    EXPECT_EQ(Shown(), "Connected/Disconnected 1 5 6");
    EXPECT_EQ(Network().InetConnected, True);

    WatchPauses(1);
    DialInternet();
    EXPECT_EQ(pauses, (Texts{"0.5 Disconnecting.../Disconnected 5 6"}));
    EXPECT_EQ(Shown(), "Disconnected/Disconnected 1 5 6");
}

TEST_F(Lines, DiallingTheBoardHasNoVerifyingStepAndCostsNothing)
{
    WatchPauses(3);
    DialBoard();
    EXPECT_EQ(pauses,
              (Texts{"0.5 Disconnected/Initializing... 1 6", "5 Disconnected/Dialing 555-91-00 1 6",
                     "5.5 Disconnected/Connecting... 1 6"}));
    EXPECT_EQ(Shown(), "Disconnected/Connected 1 5 6");
    EXPECT_EQ(Network().BbsConnected, True);
    NetworkHourTick();

    WatchPauses(1);
    DialBoard();
    EXPECT_EQ(pauses, (Texts{"0.5 Disconnected/Disconnecting... 1 6"}));
    EXPECT_EQ(Shown(), "Disconnected/Disconnected 1 5 6");
    EXPECT_EQ(GameState.Money, 15);
}

TEST_F(Lines, WhileOneLineIsUpTheOthersButtonDoesNothingUnlessBothAreDialledTogether)
{
    DialBoard();
    WatchPauses(1);
    DialInternet();
    EXPECT_EQ(Shown(), "Disconnected/Connected 1 5 6");
    DialBoard();
    DialInternet();
    WatchPauses(1);
    DialBoard();
    EXPECT_EQ(Shown(), "Connected/Disconnected 1 5 6");
    EXPECT_EQ(pauses, Texts{});

    player.duringWait.clear();
    DialInternet();
    InTheNextPause(DialBoard);
    DialInternet();
    EXPECT_EQ(Shown(), "Connected/Connected 1 5 6");
}

TEST_F(Lines, SessionsOfThreeAndTwoHoursBillThreeAndThenFiveDollars)
{
    for (const auto& [hours, money] : {std::pair{3, 15 - 3}, {1, 15 - 3 - 5}}) {
        DialInternet();
        for (int i = 0; i < hours; ++i) {
            NetworkHourTick();
        }
        if (hours == 1) {
            InTheNextPause(NetworkHourTick); // one that passes while hanging up
        }
        DialInternet();
        EXPECT_EQ(GameState.Money, money);
        NetworkHourTick(); // not online: not billed
    }
}

TEST_F(Lines, AReceivedFileAddsItsMegabytesAndASentOneNothing)
{
    DialBoard();
    dice.values = {DrawOf(5, 10), DrawOf(10, 10), 0.25F, 0.75F};
    WatchPauses(4);
    ReceiveFromBoard();
    EXPECT_EQ(LabelShown(lblOther), "5 Мб");
    for (int i = 0; i < 3; ++i) {
        SendToBoard();
    }
    EXPECT_EQ(GameState.SoftSize, 5);
    // A quarter and three quarters of ten are rounded half to even.
    EXPECT_EQ(pauses, (Texts{"4.5 Disconnected/Receiving 5120 Data... 1 5 6",
                             "14 Disconnected/Sending 10240 Data... 1 5 6",
                             "15.5 Disconnected/Sending 2048 Data... 1 5 6",
                             "23 Disconnected/Sending 8192 Data... 1 5 6"}));
    EXPECT_EQ(Shown(), "Disconnected/Connected 1 5 6");

    dice.values = {DrawOf(0, 10)};
    player.open.insert(Window::frmNetwork);
    player.Forget();
    WatchPauses(1);
    ReceiveFromBoard();
    EXPECT_EQ(pauses, Texts{}) << "nothing takes no time";
    EXPECT_EQ(player.journal, (Texts{"reload frmNetwork", "reload frmNetwork", "lblOther=5 Мб"}));
}

TEST_F(Lines, ADownloadInsideAnotherAddsTooAndLeavesTheButtonsWorking)
{
    struct {
        void (*dial)();
        void (*outer)();
        void (*inner)();
    } const cases[]{{DialBoard, ReceiveFromBoard, ReceiveFromBoard},
                    {DialInternet, DownloadSoftware, DownloadAntivirus}};
    for (const auto& row : cases) {
        Begin();
        ResetNetwork();
        row.dial();
        const std::string before = Shown();
        dice.values = {DrawOf(3, 10), DrawOf(4, 10)};
        InTheNextPause(row.inner);
        row.outer();
        EXPECT_EQ(GameState.SoftSize, 7);
        EXPECT_EQ(Shown(), before);
        EXPECT_EQ(Network().inetWaits + Network().bbsWaits, 0);
    }
}

TEST_F(Lines, TheSoftwareSiteGivesOnceUntilTheAntivirusSiteGives)
{
    DialInternet();
    dice.values = {DrawOf(7, 10), DrawOf(2, 10)};
    WatchPauses(2);
    DownloadSoftware();
    EXPECT_EQ(Shown(), "Connected/Disconnected 1 5");
    DownloadAntivirus();
    EXPECT_EQ(Shown(), "Connected/Disconnected 1 5 6");
    EXPECT_EQ(pauses, (Texts{"6.5 Downloading 7 Mb.../Disconnected 1 5",
                             "8 Downloading 2 Mb.../Disconnected 1 5"}));
    EXPECT_EQ(GameState.SoftSize, 9);
    EXPECT_EQ(GameState.SoftAntivirus, 0);
}

TEST_F(Lines, HangingUpInsideADownloadIsToldByTheWindowThatOpensNext)
{
    DialInternet();
    dice.values = {DrawOf(7, 10)};
    InTheNextPause(DialInternet);
    DownloadAntivirus();
    EXPECT_EQ(Shown(), "Connected/Disconnected 1 5 6") << "a finished download says so";
    EXPECT_EQ(GameState.SoftSize, 7);
    GameState.HardComm = GameState.SoftBrowser = 1;
    GoOnline();
    EXPECT_EQ(Shown(), "Disconnected/Disconnected 1 5 6");
}

TEST_F(Lines, WhatIsBeyondItsWidthIsSwallowedAndTheButtonWorksAgain)
{
    DialInternet();
    for (int i = 0; i < 32767 + 2; ++i) {
        NetworkHourTick();
    }
    EXPECT_EQ(Network().TrafficHours, 32767);
    SetSoftSize(32767);
    dice.values = {DrawOf(1, 10)};
    DownloadSoftware();
    EXPECT_EQ(GameState.SoftSize, 32767);
    EXPECT_EQ(Told(), Texts{});
    EXPECT_EQ(Shown(), "Connected/Disconnected 1 5 6");
}

TEST_F(Lines, ADeathInAPauseAbandonsTheSequenceAndTheNextLifeFindsTheTruth)
{
    struct Case {
        void (*prepare)();
        void (*sequence)();
        const char* shown;
    };
    const Case cases[]{
        {[] {}, DialInternet, "Disconnected/Disconnected 1 5 6"},
        {[] {}, DialBoard, "Disconnected/Disconnected 1 5 6"},
        {DialInternet, DialInternet, "Connected/Disconnected 1 5 6"},
        {DialInternet, DownloadSoftware, "Connected/Disconnected 1 5 6"},
        {DialBoard, ReceiveFromBoard, "Disconnected/Connected 1 5 6"},
    };
    dice.otherwise = DrawOf(5, 10);
    for (const Case& one : cases) {
        ResetNetwork();
        one.prepare();
        NetworkHourTick();
        NextLifeIs("Пётр");
        InTheNextPause([] { SetHealth(-50); });
        EnterRules(one.sequence);
        EXPECT_EQ(Shown(), one.shown);
        EXPECT_EQ(Network().inetWaits + Network().bbsWaits, 0);
        EXPECT_EQ(GameState.Money, 15);
        EXPECT_EQ(GameState.SoftSize, 0);
    }
}

TEST_F(Lines, TheProgramsEndInAPauseIsTheEndOfTheSequence)
{
    InTheNextPause([] { EndProgram(); });
    EnterRules(DialInternet);
    EXPECT_EQ(Network().InetConnected, False);
    EXPECT_EQ(player.journal.back(), "end program");
}

} // namespace
} // namespace torvenhall::test
