#include "ui/QtFrontEnd.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>

#include <cmath>
#include <iterator>
#include <type_traits>

#include "ui/frmAbout.h"
#include "ui/frmEducation.h"
#include "ui/frmHappy.h"
#include "ui/frmHard.h"
#include "ui/frmHospital.h"
#include "ui/frmLocGame.h"
#include "ui/frmMain.h"
#include "ui/frmNetwork.h"
#include "ui/frmPause.h"
#include "ui/frmPlayerName.h"
#include "ui/frmShop.h"
#include "ui/frmSoft.h"
#include "ui/frmVirus.h"
#include "ui/frmWork.h"
#include "ui/widgets/boxes.h"
#include "ui/widgets/pictures.h"
#include "ui/widgets/qtext.h"

namespace torvenhall
{

namespace
{

using Maker = std::unique_ptr<GameWindow> (*)(LabelBoard& board, QWidget* owner);

template <class Made>
std::unique_ptr<GameWindow> MakeWindow([[maybe_unused]] LabelBoard& board, QWidget* owner)
{
    if constexpr (std::is_constructible_v<Made, LabelBoard&, QWidget*>) {
        return std::make_unique<Made>(board, owner);
    } else {
        return std::make_unique<Made>(owner);
    }
}

/// In the order of Window.
constexpr Maker Makers[] = {
    MakeWindow<frmHard>,  MakeWindow<frmSoft>,  MakeWindow<frmHappy>,     MakeWindow<frmHospital>,
    MakeWindow<frmShop>,  MakeWindow<frmWork>,  MakeWindow<frmEducation>, MakeWindow<frmNetwork>,
    MakeWindow<frmVirus>, MakeWindow<frmPause>, MakeWindow<frmAbout>,
};
static_assert(std::size(Makers) == WindowCount);

} // namespace

QtFrontEnd::~QtFrontEnd() = default;

void QtFrontEnd::ShowLabel(Label label, std::string_view text, TextColour colour)
{
    if (!ended) {
        MainWindow();
        board.Show(label, Text(text), colour);
    }
}

frmMain& QtFrontEnd::MainWindow()
{
    if (!mainWindow) {
        mainWindow = new frmMain(board);
        windows.Opened(mainWindow);
        mainWindow->Load();
    }
    return *mainWindow;
}

Answer QtFrontEnd::ShowMessageBox(const MessageBox& box)
{
    if (ended) {
        return box.buttons == Buttons::YesNo ? Answer::No : Answer::Ok;
    }
    auto* message = new GameMessageBox(box, windows.Top());
    windows.Run(message);
    return message->PressedAnswer();
}

std::optional<std::string> QtFrontEnd::AskText(std::string_view prompt, std::string_view title)
{
    if (ended) {
        return {};
    }
    auto* input = new InputWindow(Text(prompt), Text(title), windows.Top());
    if (windows.Run(input) != QDialog::Accepted || ended) {
        return {};
    }
    return Utf8(input->EnteredText());
}

std::optional<NewPlayer> QtFrontEnd::AskName(const NewPlayer& shown)
{
    if (ended) {
        return {};
    }
    auto* dialog = new frmPlayerName(shown, windows.Top());
    if (windows.Run(dialog) != QDialog::Accepted || ended) {
        return {};
    }
    return dialog->Entered();
}

std::optional<std::string> QtFrontEnd::AskGameName(const GameNameQuestion& question)
{
    if (ended) {
        return {};
    }
    auto* dialog = new frmLocGame(question, windows.Top());
    if (windows.Run(dialog) != QDialog::Accepted || ended) {
        return {};
    }
    return dialog->EnteredName();
}

std::unique_ptr<GameWindow> QtFrontEnd::Make(Window window)
{
    return Makers[static_cast<std::size_t>(window)](board, mainWindow);
}

void QtFrontEnd::OpenWindow(Window window)
{
    if (ended) {
        return;
    }
    if (GameWindow* open = Find(window); open && window == Window::frmPause) {
        open->raise();
        open->activateWindow();
        return;
    }
    CloseWindow(window);
    std::unique_ptr<GameWindow> made = Make(window);
    made->Load();
    GameWindow* shown = made.release();
    windows.Opened(shown);
    QObject::connect(shown, &QDialog::finished, &windows, [this, shown] { windows.Bury(shown); });
    shown->show();
    if (window == Window::frmVirus) {
        AwaitEndOf(*shown);
    }
}

void QtFrontEnd::AwaitEndOf(GameWindow& window)
{
    QEventLoop loop;
    QObject::connect(&window, &QDialog::finished, &loop, &QEventLoop::quit);
    if (window.isVisible()) {
        loop.exec();
    }
}

GameWindow* QtFrontEnd::Find(Window window) const
{
    return qobject_cast<GameWindow*>(windows.Find(Text(WindowName(window))));
}

void QtFrontEnd::CloseWindow(Window window)
{
    if (GameWindow* open = Find(window)) {
        open->done(QDialog::Rejected);
    }
}

bool QtFrontEnd::IsOpen(Window window) const
{
    return !ended && Find(window);
}

void QtFrontEnd::ReloadWindow(Window window)
{
    if (GameWindow* open = Find(window); open && !ended) {
        open->Load();
    }
}

void QtFrontEnd::DisableButton(Window window, std::string_view control)
{
    if (GameWindow* open = Find(window); open && !ended) {
        if (auto* button = open->findChild<QAbstractButton*>(Text(control))) {
            button->setEnabled(false);
        }
    }
}

void QtFrontEnd::CloseAllWindows()
{
    if (ended) {
        return;
    }
    if (mainWindow) {
        mainWindow->EnableTimer(false);
    }
    windows.CloseAll();
    mainWindow = nullptr;
    board.Reset();
}

void QtFrontEnd::ShowMainWindow()
{
    if (!ended) {
        MainWindow().show();
        MainWindow().raise();
        MainWindow().activateWindow();
    }
}

void QtFrontEnd::SetMainTitle(std::string_view title)
{
    if (!ended) {
        MainWindow().setWindowTitle(Text(title));
    }
}

void QtFrontEnd::MinimiseMainWindow()
{
    if (mainWindow && !ended) {
        mainWindow->showMinimized();
    }
}

void QtFrontEnd::EnableTimer(bool enabled)
{
    if (mainWindow && !ended) {
        mainWindow->EnableTimer(enabled);
    }
}

void QtFrontEnd::ProcessEvents(double seconds)
{
    if (ended) {
        return;
    }
    QEventLoop loop;
    if (seconds <= 0) {
        loop.processEvents();
        return;
    }
    QTimer wake;
    wake.setSingleShot(true);
    wake.setTimerType(Qt::PreciseTimer);
    wake.start(static_cast<int>(std::ceil(clock.RealSeconds(seconds) * 1000)));
    loop.processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

bool QtFrontEnd::StartProgram(const std::string& program, const std::vector<std::string>& arguments)
{
    if (ended) {
        return false;
    }
    QStringList list;
    for (const std::string& argument : arguments) {
        list.append(Text(argument));
    }
    return QProcess::startDetached(Text(program), list);
}

std::span<const std::byte> QtFrontEnd::FindPicture(std::string_view name) const
{
    const QByteArray bytes = EmbeddedPicture(name);
    return {reinterpret_cast<const std::byte*>(bytes.constData()),
            static_cast<std::size_t>(bytes.size())};
}

void QtFrontEnd::EndProgram()
{
    if (ended) {
        return;
    }
    ended = true;
    if (mainWindow) {
        mainWindow->EnableTimer(false);
    }
    windows.CloseAll();
    QCoreApplication::exit(0);
}

} // namespace torvenhall
