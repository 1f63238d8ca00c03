#include "network/network.h"

#include <array>
#include <span>

#include "core/GameState.h"
#include "core/basGame.h"
#include "core/draw.h"
#include "core/remembered.h"
#include "core/traps.h"
#include "core/waits.h"
#include "equipment/basEquipment.h"
#include "system/convert.h"
#include "system/table.h"

namespace torvenhall
{

namespace
{

Remembered<NetworkState> network;

constexpr std::string_view Connected = "Status: Connected";
constexpr std::string_view Disconnected = "Status: Disconnected";

struct Line {
    Int16& isUp;
    std::string& status;
    bool& dialEnabled;
    int& waits;
};

const Line Internet{network->InetConnected, network->inetStatus, network->inetDialEnabled,
                    network->inetWaits};
const Line Board{network->BbsConnected, network->bbsStatus, network->bbsDialEnabled,
                 network->bbsWaits};

/// A status text and the seconds that it stays.
struct Step {
    std::string_view status;
    int seconds;
};

constexpr std::array InternetCall{
    Step{"Status: Initializing...", 1},
    Step{"Status: Dialing 555-28-64", 5},
    Step{"Status: Connecting...", 1},
    Step{"Status: Verifying...", 3},
};
constexpr std::array BoardCall{
    Step{"Status: Initializing...", 1},
    Step{"Status: Dialing 555-91-00", 5},
    Step{"Status: Connecting...", 1},
};
constexpr std::array HangUp{Step{"Status: Disconnecting...", 1}};

constexpr std::array<std::string_view, 3> SiteAddresses{
    "www.virusolov.example", "www.svezhiy-soft.example", "www.anekdoty.example"};

constexpr int LargestTransfer = 10; // megabytes
constexpr int MostAtOnce = 16;

void Say(const Line& line, std::string_view status)
{
    line.status = status;
    Windows().ReloadWindow(window::frmNetwork);
}

/// What is left to say of a line when nothing runs on it.
void SayTruth(const Line& line)
{
    Say(line, line.isUp == True ? Connected : Disconnected);
}

/// Counts something for as long as it goes on.
class Counted
{
public:
    explicit Counted(int& countOfSuch) : count(countOfSuch) { ++count; }
    ~Counted() { --count; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

private:
    int& count;
};

void SayAndWait(const Line& line, std::string_view status, int seconds)
{
    const Counted wait(line.waits);
    Say(line, status);
    WaitSeconds(seconds);
}

/// One button's sequence. Where something stops it, the button that it disables
/// works again if it did before, and the status tells the truth.
class Sequence
{
public:
    Sequence(const Line& itsLine, bool* itsButton)
        : line(itsLine), button(itsButton), worked(button != nullptr && *button)
    {
    }
    ~Sequence()
    {
        if (!ended && worked) {
            *button = true;
        }
        if (!ended) {
            TrappedSilently([this] { SayTruth(line); });
        }
    }
    Sequence(const Sequence&) = delete;
    Sequence& operator=(const Sequence&) = delete;
    void End() { ended = true; }

private:
    const Line& line;
    bool* button;
    bool worked;
    bool ended = false;
};

/// Runs a sequence, unless so many of its kind go on already that a clumsy
/// finger must be at work.
template <class Body>
void RunSequence(int& running, const Line& line, bool* button, Body&& body)
{
    if (running >= MostAtOnce) {
        return;
    }
    const Counted one(running);
    TrappedSilently([&] {
        Sequence sequence(line, button);
        body();
        sequence.End();
    });
}

void Switch(const Line& line, std::span<const Step> steps, Int16 up)
{
    line.dialEnabled = false;
    for (const Step& step : steps) {
        SayAndWait(line, step.status, step.seconds);
    }
    line.isUp = up;
    line.dialEnabled = true;
    SayTruth(line);
}

bool BothLinesAreDown()
{
    return network->InetConnected != True && network->BbsConnected != True;
}

/// Runs a transfer, which is given its megabytes.
template <class Body>
void Transfer(const Line& line, bool* button, Body&& body)
{
    RunSequence(network->transfers, line, button, [&] { body(Draw(LargestTransfer)); });
}

void TransferWithBoard(std::string_view verb, bool receives)
{
    Transfer(Board, nullptr, [&](Int16 size) {
        SayAndWait(Board, "Status: " + std::string(verb) + " " + Decimal(size * 1024) + " Data...",
                   size.value());
        SayTruth(Board); // the player may have hung up meanwhile
        if (receives) {
            SetSoftSize(GameState.SoftSize + size);
        }
    });
}

/// The software can be had once; the antivirus' data enables it again.
void DownloadFromSite(bool enablesSoftware)
{
    Transfer(Internet, &network->downloadEnabled, [&](Int16 size) {
        network->downloadEnabled = false;
        SayAndWait(Internet, "Status: Downloading " + Decimal(size) + " Mb...", size.value());
        SetSoftSize(GameState.SoftSize + size);
        if (enablesSoftware) {
            network->downloadEnabled = true;
        }
        SayTruth(Internet);
    });
}

} // namespace

const NetworkState& Network()
{
    return *network;
}

void NetworkHourTick()
{
    TrappedSilently(TrafficEvent);
}

void TrafficEvent()
{
    if (network->InetConnected == True) {
        network->TrafficHours = network->TrafficHours + 1;
    }
}

void DialInternet()
{
    RunSequence(network->calls, Internet, &Internet.dialEnabled, [] {
        if (BothLinesAreDown()) {
            Switch(Internet, InternetCall, True);
        } else if (network->InetConnected == True) {
            Switch(Internet, HangUp, False);
            SetMoney(GameState.Money - network->TrafficHours);
        }
    });
}

void DialBoard()
{
    RunSequence(network->calls, Board, &Board.dialEnabled, [] {
        if (BothLinesAreDown()) {
            Switch(Board, BoardCall, True);
        } else if (network->BbsConnected == True) {
            Switch(Board, HangUp, False);
        }
    });
}

void ReceiveFromBoard()
{
    TransferWithBoard("Receiving", true);
}

void SendToBoard()
{
    TransferWithBoard("Sending", false);
}

void DownloadSoftware()
{
    DownloadFromSite(false);
}

void DownloadAntivirus()
{
    DownloadFromSite(true);
}

std::string_view SiteAddress(int location)
{
    return FindOrEmpty(SiteAddresses, location);
}

} // namespace torvenhall
