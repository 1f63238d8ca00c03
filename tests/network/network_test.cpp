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

    /// What each text of a button is, for how many seconds it stays, and what
    /// comes of it.
    std::string Press(const std::function<void()>& button)
    {
        std::string told;
        double began = player.seconds;
        const auto show = [&] {
            const std::string stood = DecimalOf(std::ceil(player.seconds - began));
            told += (told.empty() ? "" : ", " + stood + " s | ") + Shown();
            began = player.seconds;
        };
        std::string seen = Shown(); // by the window, when it was told last
        const auto outer = std::exchange(player.atReload, [&] { seen = Shown(); });
        player.atEachWait = [&] {
            show();
            EXPECT_EQ(seen, Shown());
        };
        const std::string outcome = Outcome([=] { EnterRules(button); });
        show();
        EXPECT_TRUE(told.find(" s |") == std::string::npos || seen == Shown()) << told;
        player.atReload = outer;
        player.atEachWait = [] {};
        const std::size_t label = outcome.find("lbl"), money = outcome.find("Money");
        return Joined({told, outcome.substr(std::min({label, money, outcome.size()}))});
    }

    const std::map<std::string, std::function<void()>> buttons{
        {"Internet", DialInternet},
        {"board", DialBoard},
        {"software", DownloadSoftware},
        {"antivirus", DownloadAntivirus},
        {"receive", ReceiveFromBoard},
        {"send", SendToBoard},
        {"hour", NetworkHourTick},
        {"death", [] { SetHealth(-50); }},
        {"fresh", [this] { // both lines as in a program that has just started
             ResetRules();
             Begin();
             Assign("HardComm=1 SoftBrowser=1");
             player.open = {"frmNetwork"};
         }}};
};

TEST_F(Lines, EveryButtonShowsItsTextsForTheirSecondsWhateverHappensInItsPauses)
{
    // "software 7 death 0": draws 7 Mb, and in the first pause death comes.
    ExpectEach("network.txt", [this](const std::string& line) {
        std::istringstream words(line);
        std::string button, inPause;
        double draw = 0, drawInPause = 0;
        words >> button >> draw >> inPause >> drawInPause;
        dice.values = {static_cast<float>(draw / 10), static_cast<float>(drawInPause / 10)};
        player.names = {NewPlayer{"Пётр", 1}};
        player.duringWait.clear();
        if (!inPause.empty()) {
            Meanwhile([&] {
                const std::string running = Shown();
                GoOnline();
                EXPECT_EQ(Shown(), running) << "keeps the status of what runs";
                NetworkHourTick();
                EnterRules(buttons.at(inPause));
            });
        }
        const std::string told = Press(buttons.at(button));
        GoOnline();
        EXPECT_EQ(Network().inetStatus.ends_with(" Connected"), Network().InetConnected == True);
        if (inPause == "death") {
            ExpectFreshLife("Пётр");
        }
        return told.substr(0, told.find(", Money +0")); // the rest is the new life's
    });
    EXPECT_EQ(Grouped(-1, 3, [](int i) { return std::string(SiteAddress(i)); }),
              (Texts{"-1, 3", "0: www.virusolov.example", "1: www.svezhiy-soft.example",
                     "2: www.anekdoty.example"}));
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
