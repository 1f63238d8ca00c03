#include "ui/frmNetwork.h"

#include <QPointer>
#include <QTextEdit>
#include <QTimer>

#include "core/traps.h"
#include "game/entry.h"
#include "network/network.h"
#include "resources/anecdotes.h"
#include "ui/linelights.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/theme.h"
#include "ui/widgets/waitmark.h"

namespace torvenhall
{

namespace
{

constexpr double Width = 640;
constexpr double Height = 440;
constexpr double PanelTop = 58;
constexpr double InternetWidth = 378;
constexpr double InternetHeight = 176;
constexpr double BoardLeft = 450;
constexpr double BoardWidth = Width - 14 - BoardLeft;
constexpr double BoardHeight = 198;
constexpr double LinksTop = 62; // of the Internet's own buttons, in its panel
constexpr double SitesTop = InternetHeight + 8;
constexpr double SitesHeight = 140; // of the largest site

constexpr int RefreshMilliseconds = 100;

constexpr double SiteShown = 120 / 15.0;     // where a site panel stands when it is shown,
constexpr double SiteHidden = -10000 / 15.0; // and where it is put away

} // namespace

frmNetwork::frmNetwork(QWidget* parent)
    : ActivityWindow({"frmNetwork", "Выход в свет", "NET", Width, Height}, parent)
{
    AddSlogan("Label6", "Label7", "Всемирная паутина и один паук", Sign::Neon);
    lights = new LineLights(&Surface()); // beneath all panels
    BuildInternet();
    BuildSites();
    BuildBoard();
    AddBack("Command9");
    ShowSite(-1);
    auto* refresh = new QTimer(this);
    connect(refresh, &QTimer::timeout, this, &frmNetwork::ShowLines);
    refresh->start(RefreshMilliseconds);
}

GameButton* frmNetwork::AddCommand(const char* name, const QString& caption, const QRectF& place,
                                   QWidget* panel, void (*command)())
{
    GameButton* button = AddButton(name, caption, place);
    button->setParent(panel);
    Place(*button, place);
    if (command) {
        connect(button, &QAbstractButton::clicked, this, [command] { EnterRules(command); });
    }
    return button;
}

GameLabel* frmNetwork::AddText(const char* name, const QString& text, const QRectF& place,
                               QWidget* panel, double height)
{
    GameLabel* label = AddLabel(name, text, place, TextType(height));
    label->setParent(panel);
    Place(*label, place);
    return label;
}

void frmNetwork::BuildInternet()
{
    Surface().AddPanel({14, PanelTop, InternetWidth, InternetHeight});
    AddLabel("Label9", "Dial-Up Networking", {26, PanelTop + 6, 220, 20}, TextType(14, true))
        ->SetColour(colour::Warm);
    inetDial = AddCommand("Command1", "Звонить ($1/час)", {26, PanelTop + 29, 150, 27}, &Surface(),
                          DialInternet);
    inetDial->SetGlyph(Glyph::Phone);
    inetDial->SetEnterPresses(false);
    inetStatus =
        AddLabel("Label1", {}, {186, PanelTop + 29, InternetWidth - 184, 20}, TerminalType(11.5));
    inetStatus->SetColour(colour::LightCyan);
    inetMark = new WaitMark(&Surface());
    Place(*inetMark, {186, PanelTop + 51, InternetWidth - 184, 3});

    internet = new QWidget(&Surface());
    internet->setObjectName("Picture1");
    Place(*internet, {14 - SiteShown, PanelTop + LinksTop, InternetWidth + SiteShown,
                      SitesTop + SitesHeight - LinksTop});
    GameButton* home = AddCommand("Command2", "<<< HomePage >>>",
                                  {12 + SiteShown, 4, InternetWidth - 24, 24}, internet, nullptr);
    connect(home, &QAbstractButton::clicked, this, [this] { ShowSite(-1); });
    for (int i = 0; i < Sites; ++i) {
        const double top = 31.0 + 27 * i;
        GameButton* place =
            AddCommand("cmdChangeLocation", Text(SiteAddress(i)),
                       {12 + SiteShown, top, InternetWidth - 24, 24}, internet, nullptr);
        place->setObjectName(QString("cmdChangeLocation%1").arg(i));
        place->SetGlyph(Glyph::Globe);
        place->SetAlignment(Qt::AlignLeft);
        connect(place, &QAbstractButton::clicked, this, [this, i] { ShowSite(i); });
    }
}

QWidget* frmNetwork::AddSite(int location, const QRectF& place)
{
    auto* panel = new Card(internet);
    panel->setObjectName(QString("picLocation%1").arg(location));
    Place(*panel, place);
    sites[static_cast<std::size_t>(location)] = panel;
    return panel;
}

void frmNetwork::BuildSites()
{
    const double left = SiteShown, top = SitesTop - LinksTop, width = InternetWidth;
    const double inner = width - 20;

    QWidget* antivirus = AddSite(0, {left, top, width, 76});
    AddText("Label5", Text(SiteAddress(0)), {10, 8, inner, 20}, antivirus, 13)
        ->SetColour(colour::LightCyan);
    AddCommand("Command7", "Get Last Antivirus Database", {10, 38, inner, 28}, antivirus,
               DownloadAntivirus)
        ->SetGlyph(Glyph::Download);

    QWidget* software = AddSite(1, {left, top, width, 76});
    AddText("Label3", Text(SiteAddress(1)) + " -- Самый свежий софт!", {10, 8, inner, 20}, software,
            13)
        ->SetColour(colour::LightCyan);
    download = AddCommand("Command6",
                          "Download Cool, Necessary and Freeware Programs and Utilites for FREE!!!",
                          {10, 38, inner, 28}, software, DownloadSoftware);

    QWidget* anecdotes = AddSite(2, {left, top, width, SitesHeight});
    AddText("Label4", Text(SiteAddress(2)), {10, 5, inner - 170, 24}, anecdotes, 13)
        ->SetColour(colour::LightCyan);
    GameButton* next =
        AddCommand("cmdRnd", "Next Random Anecdot", {inner - 156, 5, 166, 24}, anecdotes, nullptr);
    connect(next, &QAbstractButton::clicked, this, &frmNetwork::ShowAnecdote);
    anecdote = new QTextEdit(anecdotes);
    anecdote->setObjectName("txtAnecdot");
    anecdote->setAccessibleName("Anecdot");
    anecdote->setAcceptRichText(false);
    anecdote->setTabChangesFocus(true);
    Dress(*anecdote, TextType(13));
    Place(*anecdote, {10, 34, inner, SitesHeight - 42});
}

void frmNetwork::BuildBoard()
{
    Surface().AddPanel({BoardLeft, PanelTop, BoardWidth, BoardHeight});
    const double left = BoardLeft + 12;
    const double inner = BoardWidth - 24;
    AddLabel("Label10", "Microsoft HyperTerminal", {left, PanelTop + 6, inner, 20},
             TextType(14, true))
        ->SetColour(colour::Warm);
    bbsDial =
        AddCommand("Command5", "Звонить", {left, PanelTop + 29, inner, 27}, &Surface(), DialBoard);
    bbsDial->SetGlyph(Glyph::Phone);
    bbsStatus = AddLabel("Label2", {}, {left, PanelTop + 59, inner, 28}, TerminalType(11));
    bbsStatus->setWordWrap(true);
    bbsStatus->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    bbsStatus->SetColour(colour::LightCyan);
    bbsMark = new WaitMark(&Surface());
    Place(*bbsMark, {left, PanelTop + 87, inner, 3});

    bulletin = new QWidget(&Surface());
    bulletin->setObjectName("Picture2");
    Place(*bulletin, {BoardLeft, PanelTop + 91, BoardWidth, 68});
    AddCommand("cmdBBSDownload", "Download Soft", {12, 4, inner, 28}, bulletin, ReceiveFromBoard)
        ->SetGlyph(Glyph::Download);
    AddCommand("cmdBBSUpload", "Upload Soft", {12, 36, inner, 28}, bulletin, SendToBoard)
        ->SetGlyph(Glyph::Upload);
    AddCommand("Command8", "Hang-Up", {left, PanelTop + 159, inner, 28}, &Surface(), DialBoard)
        ->SetGlyph(Glyph::HangUp);
}

void frmNetwork::Load()
{
    // The rules ask for a refresh at every step of a line; the picture stays.
    if (!pictureLoaded) {
        pictureLoaded = true;
        ActivityWindow::Load();
    }
    ShowLines();
}

void frmNetwork::ShowLine(GameLabel* status, const std::string& text, WaitMark* mark, bool waits)
{
    status->ShowText(Text(text));
    status->SetColour(text == "Status: Disconnected" ? colour::Caption : colour::LightCyan);
    mark->Step(waits);
}

void frmNetwork::ShowLines()
{
    const NetworkState& network = Network();
    ShowLine(inetStatus, network.inetStatus, inetMark, network.inetWaits != 0);
    ShowLine(bbsStatus, network.bbsStatus, bbsMark, network.bbsWaits != 0);
    lights->Step();
    SetUsable(*inetDial, network.inetDialEnabled);
    SetUsable(*bbsDial, network.bbsDialEnabled);
    SetUsable(*download, network.downloadEnabled);
    internet->setEnabled(network.InetConnected == True);
    bulletin->setEnabled(network.BbsConnected == True);
}

void frmNetwork::ShowSite(int location)
{
    for (int i = 0; i < Sites; ++i) {
        QWidget* site = sites[static_cast<std::size_t>(i)];
        // Hidden too: a panel out of sight must not take the focus.
        QRectF place = PlaceOf(*site);
        place.moveLeft(i == location ? SiteShown : SiteHidden);
        Place(*site, place);
        site->setVisible(i == location);
    }
}

void frmNetwork::ShowAnecdote()
{
    // Any error leaves the previous text.
    EnterRules([box = QPointer(anecdote)] {
        TrappedSilently([box] {
            const QString told = Text(GetAnecdote());
            if (box) {
                box->setPlainText(told);
            }
        });
    });
}

} // namespace torvenhall
