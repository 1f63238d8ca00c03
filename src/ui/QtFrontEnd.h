#pragma once

#include <QPointer>

#include <list>

#include "core/port.h"
#include "ui/QtWallClock.h"
#include "ui/routines.h"
#include "ui/widgets/windowlist.h"

class QDialog;

namespace torvenhall
{

class GameWindow;
class frmMain;

/// The windows behind the port of the rules. Its end is the program's.
class QtFrontEnd final : public FrontEnd
{
public:
    explicit QtFrontEnd(GameClock& newClock) : clock(newClock) {}
    ~QtFrontEnd() override;

    void Run(const std::function<void()>& routine) override;
    void LabelChanged(Label label) override;
    Answer ShowMessageBox(const MessageBox& box) override;
    std::optional<std::string> AskText(std::string_view prompt, std::string_view title) override;
    std::optional<NewPlayer> AskName(const NewPlayer& shown) override;
    std::optional<std::string> AskGameName(const GameNameQuestion& question) override;
    void Wait(double seconds) override;
    void EndPauses() override;
    void OpenWindow(std::string_view window) override;
    void CloseWindow(std::string_view window) override;
    void ReloadWindow(std::string_view window) override;
    void DisableButton(std::string_view window, std::string_view control) override;
    void CloseAllWindows() override;
    void ShowMainWindow() override;
    void SetMainTitle(std::string_view title) override;
    void EnableTimer(bool enabled) override;
    std::string FindProgram(std::string_view name) override;
    bool StartProgram(const std::string& program,
                      const std::vector<std::string>& arguments) override;
    void EndProgram() override;

    /// The main window, made if there is none.
    frmMain& MainWindow();

    /// The routines that wait, and those of them that wait for a time.
    std::size_t Waiting() const { return routines.Waiting(); }
    std::size_t WaitingForTime() const { return pauses.size(); }

private:
    GameWindow* Find(std::string_view window) const;
    void Close(QWidget* window);
    bool AwaitEndOf(QDialog& dialog);
    bool IsConfirmed(QDialog& dialog);

    GameClock& clock;
    Routines routines;
    std::list<Routines::Resume> pauses;
    WindowList windows;
    QPointer<frmMain> mainWindow;
};

} // namespace torvenhall
