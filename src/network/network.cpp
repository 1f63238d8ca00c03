#include "network/network.h"

#include <array>
#include <span>

#include "core/GameState.h"
#include "core/basGame.h"
#include "core/life.h"
#include "core/traps.h"
#include "core/waits.h"
#include "equipment/basEquipment.h"
#include "system/convert.h"

namespace torvenhall
{

namespace
{

NetworkState network;

constexpr std::string_view Connected = "Status: Connected";
constexpr std::string_view Disconnected = "Status: Disconnected";

struct Line {
    Int16 NetworkState::*isUp;
    std::string NetworkState::*status;
    bool NetworkState::*dialEnabled;
    int NetworkState::*waits;
};

constexpr Line Internet{&NetworkState::InetConnected, &NetworkState::inetStatus,
                        &NetworkState::inetDialEnabled, &NetworkState::inetWaits};
constexpr Line Board{&NetworkState::BbsConnected, &NetworkState::bbsStatus,
                     &NetworkState::bbsDialEnabled, &NetworkState::bbsWaits};

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

void Refresh()
{
    Windows().ReloadWindow(Window::frmNetwork);
}

void Say(const Line& line, std::string_view status)
{
    network.*line.status = status;
    Refresh();
}

/// What is left to say of a line when nothing runs on it.
void SayTruth(const Line& line)
{
    Say(line, network.*line.isUp == True ? Connected : Disconnected);
}

void SayAndWait(const Line& line, std::string_view status, int seconds)
{
    ++(network.*line.waits);
    try {
        Say(line, status);
        WaitSeconds(seconds);
    } catch (...) {
        --(network.*line.waits);
        throw;
    }
    --(network.*line.waits);
}

/// Runs one button's sequence. `button`, which the sequence disables, is
/// enabled again if something stops it.
template <class Body>
void RunSequence(const Line& line, bool NetworkState::*button, Body&& body)
{
    TrappedSilently([&] {
        try {
            body();
        } catch (...) {
            if (button != nullptr) {
                network.*button = true;
            }
            if (!ProgramHasEnded()) {
                SayTruth(line);
            }
            throw;
        }
    });
}

void Switch(const Line& line, std::span<const Step> steps, Int16 up)
{
    network.*line.dialEnabled = false;
    for (const Step& step : steps) {
        SayAndWait(line, step.status, step.seconds);
    }
    network.*line.isUp = up;
    network.*line.dialEnabled = true;
    SayTruth(line);
}

bool BothLinesAreDown()
{
    return network.InetConnected != True && network.BbsConnected != True;
}

/// The megabytes of a transfer, 0 to 10.
Int16 DrawSize()
{
    return ToInt16(double{Rnd()} * 10);
}

void TransferWithBoard(std::string_view verb, bool receives)
{
    RunSequence(Board, nullptr, [&] {
        const Int16 size = DrawSize();
        const std::string amount = Decimal(size * 1024);
        SayAndWait(Board, "Status: " + std::string(verb) + " " + amount + " Data...", size.value());
        Say(Board, Connected);
        if (receives) {
            SetSoftSize(GameState.SoftSize + size);
        }
    });
}

/// The software can be had once; the antivirus' data enables it again.
void DownloadFromSite(bool enablesSoftware)
{
    RunSequence(Internet, &NetworkState::downloadEnabled, [&] {
        const Int16 size = DrawSize();
        network.downloadEnabled = false;
        SayAndWait(Internet, "Status: Downloading " + Decimal(size) + " Mb...", size.value());
        SetSoftSize(GameState.SoftSize + size);
        if (enablesSoftware) {
            network.downloadEnabled = true;
        }
        Say(Internet, Connected);
    });
}

} // namespace

const NetworkState& Network()
{
    return network;
}

void NetworkHourTick()
{
    TrappedSilently(TrafficEvent);
}

void TrafficEvent()
{
    if (network.InetConnected == True) {
        network.TrafficHours = network.TrafficHours + 1;
    }
}

void SayTrueStatus()
{
    for (const Line& line : {Internet, Board}) {
        if (network.*line.waits == 0) {
            SayTruth(line);
        }
    }
}

void DialInternet()
{
    RunSequence(Internet, &NetworkState::inetDialEnabled, [] {
        if (BothLinesAreDown()) {
            Switch(Internet, InternetCall, True);
        } else if (network.InetConnected == True) {
            Switch(Internet, HangUp, False);
            SetMoney(GameState.Money - network.TrafficHours);
        }
    });
}

void DialBoard()
{
    RunSequence(Board, &NetworkState::bbsDialEnabled, [] {
        if (BothLinesAreDown()) {
            Switch(Board, BoardCall, True);
        } else if (network.BbsConnected == True) {
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
    const bool isSite = location >= 0 && location < static_cast<int>(SiteAddresses.size());
    return isSite ? SiteAddresses[static_cast<std::size_t>(location)] : std::string_view{};
}

void ResetNetwork()
{
    network = {};
}

} // namespace torvenhall
