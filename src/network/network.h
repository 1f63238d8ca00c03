#pragma once

#include <string>
#include <string_view>

#include "system/checked.h"

namespace torvenhall
{

/// What the network window shows of the lines. It outlives the window and a
/// new game; the windows only read it, and are told to reload after each
/// change.
struct NetworkState {
    Int16 InetConnected, BbsConnected;               ///< Booleans: the line is up
    Int16 TrafficHours;                              ///< billed hours, never reset
    std::string inetStatus = "Status: Disconnected"; ///< Label1
    std::string bbsStatus = "Status: Disconnected";  ///< Label2
    bool inetDialEnabled = true;                     ///< Command1
    bool bbsDialEnabled = true;                      ///< Command5
    bool downloadEnabled = true;                     ///< Command6
    /// The pauses running on each line; a mark beside the status line moves
    /// while there is one.
    int inetWaits = 0, bbsWaits = 0;
    int transfers = 0; ///< going on, of Command6, Command7 and the board's two
    int calls = 0;     ///< going on, diallings and hang-ups
};
const NetworkState& Network();

/// One billed hour, if the Internet line is up. Errors are swallowed.
void NetworkHourTick();
/// The same; error 6 when the hours overflow.
void TrafficEvent();

// The window's buttons. Each runs its status texts and pauses to the end,
// whether the window stays open or not, and returns then. A line that is
// busy with the other kind of call is refused silently, and errors are
// swallowed. When an error, another life or the program's end stops a
// sequence, its button is enabled again and the status tells the truth. Of the
// four transfers at most 16 go on at once; a further one does nothing.

/// Command1: dials the Internet, or hangs up and takes $1 for each hour
/// online since the program began, the ones paid before included.
void DialInternet();
/// Command5 and Command8: dials the bulletin board, or hangs up.
void DialBoard();
/// cmdBBSDownload: adds 0 to 10 megabytes of other software.
void ReceiveFromBoard();
/// cmdBBSUpload: changes nothing.
void SendToBoard();
/// Command6: adds 0 to 10 megabytes; works again only after Command7.
void DownloadSoftware();
/// Command7: the same, and lets Command6 work again.
void DownloadAntivirus();

/// The site panels' captions: 0 antivirus, 1 software, 2 anecdotes; empty
/// outside.
std::string_view SiteAddress(int location);

} // namespace torvenhall
