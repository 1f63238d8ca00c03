#include "ui/QtFrontEnd.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QProcess>
#include <QStandardPaths>

#include "game/commands.h"
#include "game/entry.h"
#include "ui/frmLocGame.h"
#include "ui/frmMain.h"
#include "ui/frmPlayerName.h"
#include "ui/widgets/gamemessagebox.h"
#include "ui/widgets/inputwindow.h"
#include "ui/widgets/qtext.h"
#include "ui/windows.h"

namespace torvenhall
{

QtFrontEnd::~QtFrontEnd()
{
    // However the event loop ended: nothing of the rules may stay on a stack.
    EnterRules(EndFromOutside);
    routines.Unwind();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void QtFrontEnd::Run(const std::function<void()>& routine)
{
    routines.Run(routine);
}

frmMain& QtFrontEnd::MainWindow()
{
    if (!mainWindow) {
        mainWindow = new frmMain;
        windows.Opened(mainWindow);
        mainWindow->Load();
    }
    return *mainWindow;
}

void QtFrontEnd::LabelChanged(Label label)
{
    MainWindow().LabelChanged(label);
    for (const QPointer<QWidget>& each : windows.All()) {
        if (auto* window = dynamic_cast<GameWindow*>(each.data())) {
            window->LabelChanged(label);
        }
    }
}

void QtFrontEnd::Close(QWidget* window)
{
    windows.Closed(window);
    if (QWidget* beneath = windows.Top()) {
        beneath->activateWindow(); // some desktops leave no window active
    }
}

/// Shows a dialog until it has ended; false if it vanished without an end.
bool QtFrontEnd::AwaitEndOf(QDialog& dialog)
{
    const QPointer<QDialog> shown = &dialog;
    windows.Opened(shown);
    shown->setWindowModality(Qt::ApplicationModal);
    routines.Await([&](const Routines::Resume& resume) {
        QObject::connect(shown, &QDialog::finished, shown, resume);
        shown->show();
    });
    if (shown) {
        Close(shown);
    }
    return shown;
}

bool QtFrontEnd::IsConfirmed(QDialog& dialog)
{
    return AwaitEndOf(dialog) && dialog.result() == QDialog::Accepted;
}

Answer QtFrontEnd::ShowMessageBox(const MessageBox& box)
{
    const Answer unanswered = box.buttons == Buttons::YesNo ? Answer::No : Answer::Ok;
    auto* message = new GameMessageBox(box, windows.Top());
    return AwaitEndOf(*message) ? message->PressedAnswer() : unanswered;
}

std::optional<std::string> QtFrontEnd::AskText(std::string_view prompt, std::string_view title)
{
    auto* input = new InputWindow(Text(prompt), Text(title), windows.Top());
    return IsConfirmed(*input) ? std::optional(Utf8(input->EnteredText())) : std::nullopt;
}

std::optional<NewPlayer> QtFrontEnd::AskName(const NewPlayer& shown)
{
    auto* dialog = new frmPlayerName(shown, windows.Top());
    return IsConfirmed(*dialog) ? std::optional(dialog->Entered()) : std::nullopt;
}

std::optional<std::string> QtFrontEnd::AskGameName(const GameNameQuestion& question)
{
    auto* dialog = new frmLocGame(question, windows.Top());
    return IsConfirmed(*dialog) ? std::optional(dialog->EnteredName()) : std::nullopt;
}

void QtFrontEnd::Wait(double seconds)
{
    auto pause = pauses.end();
    routines.Await([&](const Routines::Resume& resume) {
        pause = pauses.insert(pauses.end(), resume);
        clock.CallAfter(seconds, resume);
    });
    pauses.erase(pause);
}

void QtFrontEnd::EndPauses()
{
    const auto running = pauses;
    for (const Routines::Resume& resume : running) {
        resume();
    }
}

void QtFrontEnd::OpenWindow(std::string_view window)
{
    const WindowRow* row = FindWindow(window);
    if (row == nullptr) {
        return;
    }
    if (GameWindow* open = Find(window); open && window == window::frmPause) {
        open->raise();
        open->activateWindow();
        return;
    }
    CloseWindow(window);
    // The loading may wait, in the box about a missing picture.
    const QPointer<GameWindow> made = row->make(mainWindow).release();
    made->Load();
    if (!made) {
        return;
    }
    GameWindow* shown = made;
    if (window == window::frmVirus) {
        AwaitEndOf(*shown);
        return;
    }
    windows.Opened(shown);
    QObject::connect(shown, &QDialog::finished, shown, [this, shown] { Close(shown); });
    shown->show();
}

GameWindow* QtFrontEnd::Find(std::string_view window) const
{
    return dynamic_cast<GameWindow*>(windows.Find(Text(window)));
}

void QtFrontEnd::CloseWindow(std::string_view window)
{
    if (GameWindow* open = Find(window)) {
        open->done(QDialog::Rejected);
    }
}

void QtFrontEnd::ReloadWindow(std::string_view window)
{
    if (GameWindow* open = Find(window)) {
        open->Load();
    }
}

void QtFrontEnd::DisableButton(std::string_view window, std::string_view control)
{
    if (GameWindow* open = Find(window)) {
        if (auto* button = open->findChild<QAbstractButton*>(Text(control))) {
            open->SetUsable(*button, false);
        }
    }
}

void QtFrontEnd::CloseAllWindows()
{
    EnableTimer(false);
    windows.CloseAll();
    mainWindow = nullptr;
}

void QtFrontEnd::ShowMainWindow()
{
    MainWindow().show();
    MainWindow().raise();
    MainWindow().activateWindow();
}

void QtFrontEnd::SetMainTitle(std::string_view title)
{
    MainWindow().setWindowTitle(Text(title));
}

void QtFrontEnd::EnableTimer(bool enabled)
{
    if (mainWindow) {
        mainWindow->EnableTimer(enabled);
    }
}

std::string QtFrontEnd::FindProgram(std::string_view name)
{
    // The game changes the current directory, so a relative folder of the
    // search path would lead anywhere.
    QStringList folders = qEnvironmentVariable("PATH").split(QDir::listSeparator());
    folders.removeIf([](const QString& folder) { return QDir::isRelativePath(folder); });
    return folders.empty() ? "" : Utf8(QStandardPaths::findExecutable(Text(name), folders));
}

bool QtFrontEnd::StartProgram(const std::string& program, const std::vector<std::string>& arguments)
{
    QStringList list;
    for (const std::string& argument : arguments) {
        list.append(Text(argument));
    }
    return QProcess::startDetached(Text(program), list);
}

void QtFrontEnd::EndProgram()
{
    EnableTimer(false);
    windows.CloseAll();
    EndPauses();
    QCoreApplication::exit(0);
}

} // namespace torvenhall
