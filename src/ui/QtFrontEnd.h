#pragma once

#include <QPointer>

#include <memory>

#include "core/port.h"
#include "ui/QtWallClock.h"
#include "ui/widgets/board.h"
#include "ui/widgets/windowlist.h"

namespace torvenhall
{

class GameWindow;
class frmMain;

/// The windows behind the port of the rules.
class QtFrontEnd final : public FrontEnd
{
public:
    explicit QtFrontEnd(const QtWallClock& newClock) : clock(newClock) {}
    ~QtFrontEnd() override;

    void ShowLabel(Label label, std::string_view text, TextColour colour) override;
    Answer ShowMessageBox(const MessageBox& box) override;
    std::optional<std::string> AskText(std::string_view prompt, std::string_view title) override;
    std::optional<NewPlayer> AskName(const NewPlayer& shown) override;
    std::optional<std::string> AskGameName(const GameNameQuestion& question) override;
    void OpenWindow(Window window) override;
    void CloseWindow(Window window) override;
    bool IsOpen(Window window) const override;
    void ReloadWindow(Window window) override;
    void DisableButton(Window window, std::string_view control) override;
    void CloseAllWindows() override;
    void ShowMainWindow() override;
    void SetMainTitle(std::string_view title) override;
    void MinimiseMainWindow() override;
    void EnableTimer(bool enabled) override;
    void ProcessEvents(double seconds) override;
    bool StartProgram(const std::string& program,
                      const std::vector<std::string>& arguments) override;
    std::span<const std::byte> FindPicture(std::string_view name) const override;
    void EndProgram() override;

    /// The main window, made if there is none.
    frmMain& MainWindow();
    LabelBoard& Board() { return board; }

private:
    GameWindow* Find(Window window) const;
    std::unique_ptr<GameWindow> Make(Window window);
    void AwaitEndOf(GameWindow& window);

    const QtWallClock& clock;
    LabelBoard board;
    WindowList windows;
    QPointer<frmMain> mainWindow;
    bool ended = false;
};

} // namespace torvenhall
