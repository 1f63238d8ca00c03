#pragma once

#include "core/port.h"

namespace torvenhall
{

/// What the rules talk to once the program has ended: nothing is shown, and
/// every question is as good as cancelled. Who plays without a screen begins
/// with it.
class SilentFrontEnd : public FrontEnd
{
public:
    void Run(const std::function<void()>& /*routine*/) override {}
    void LabelChanged(Label /*label*/) override {}
    Answer ShowMessageBox(const MessageBox& /*box*/) override { return Answer::No; }
    std::optional<std::string> AskText(std::string_view, std::string_view) override { return {}; }
    std::optional<NewPlayer> AskName(const NewPlayer&) override { return {}; }
    std::optional<std::string> AskGameName(const GameNameQuestion&) override { return {}; }
    void Wait(double /*seconds*/) override {}
    void EndPauses() override {}
    void OpenWindow(std::string_view /*window*/) override {}
    void CloseWindow(std::string_view /*window*/) override {}
    void ReloadWindow(std::string_view /*window*/) override {}
    void DisableButton(std::string_view /*window*/, std::string_view /*control*/) override {}
    void CloseAllWindows() override {}
    void ShowMainWindow() override {}
    void SetMainTitle(std::string_view /*title*/) override {}
    void EnableTimer(bool /*enabled*/) override {}
    std::string FindProgram(std::string_view /*name*/) override { return {}; }
    bool StartProgram(const std::string&, const std::vector<std::string>&) override
    {
        return false;
    }
    void EndProgram() override {}
};

} // namespace torvenhall
