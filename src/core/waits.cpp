#include "core/waits.h"

#include <array>

#include "core/life.h"
#include "system/convert.h"

namespace torvenhall
{

namespace
{

std::array<std::string, LabelCount> shownTexts;

/// Runs a call that waits and abandons the routine if its life is over then.
template <class Call>
auto Await(Call&& call)
{
    const int life = LifeNumber();
    auto answer = call();
    StillAlive(life);
    return answer;
}

void AwaitEvents(double seconds)
{
    const int life = LifeNumber();
    Windows().ProcessEvents(seconds);
    StillAlive(life);
}

std::string_view DesignText(Label label)
{
    return label == Label::lblFamily ? "NO WIFE" : "";
}

} // namespace

Answer MsgBox(std::string_view text, std::string_view title, Icon icon, Buttons buttons)
{
    std::optional<Running> underTick;
    if (InnermostEntry() == Entry::Tick) {
        underTick.emplace(Running::What::BoxUnderTick);
    }
    const MessageBox box{std::string(text), std::string(title), icon, buttons};
    return Await([&] { return Windows().ShowMessageBox(box); });
}

std::optional<std::string> InputBox(std::string_view prompt, std::string_view title)
{
    return Await([&] { return Windows().AskText(prompt, title); });
}

std::optional<NewPlayer> AskName(const NewPlayer& shown)
{
    return Await([&] { return Windows().AskName(shown); });
}

std::optional<std::string> AskGameName(const GameNameQuestion& question)
{
    return Await([&] { return Windows().AskGameName(question); });
}

void ShowVirusWindow()
{
    const int life = LifeNumber();
    Windows().OpenWindow(Window::frmVirus);
    StillAlive(life);
}

void Pause(double seconds)
{
    const double start = WallSeconds();
    double left = seconds;
    while (left > 0) {
        AwaitEvents(left);
        left = seconds - (WallSeconds() - start);
    }
}

void WaitSeconds(int n)
{
    // The rounding is reached half a second early; a tie may round down, so a
    // little after it.
    constexpr double roundsUpAfter = 0.501;
    const double start = WallSeconds();
    double elapsed = 0;
    while (Round(elapsed) < n) {
        AwaitEvents(n - 1 + roundsUpAfter - elapsed);
        elapsed = WallSeconds() - start;
    }
}

void ShowLabel(Label label, std::string_view text, TextColour colour)
{
    std::string& shown = shownTexts[static_cast<std::size_t>(label)];
    shown = text;
    Windows().ShowLabel(label, shown, colour);
}

const std::string& LabelText(Label label)
{
    return shownTexts[static_cast<std::size_t>(label)];
}

void ResetLabels()
{
    for (std::size_t i = 0; i < LabelCount; ++i) {
        shownTexts[i] = DesignText(static_cast<Label>(i));
    }
}

} // namespace torvenhall
