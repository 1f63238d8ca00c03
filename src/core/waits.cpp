#include "core/waits.h"

#include "core/playclock.h"
#include "core/routine.h"
#include "core/running.h"
#include "core/unwinding.h"
#include "system/convert.h"

namespace torvenhall
{

namespace
{

/// Runs a call that waits and abandons the routine if its life is over then.
template <class Call>
auto Await(Call&& call)
{
    const int life = LifeNumber();
    auto answer = [&] {
        const Waiting waiting;
        return call();
    }();
    StillAlive(life);
    return answer;
}

/// Waits for at most so many seconds.
void AwaitTime(double seconds)
{
    Await([&] {
        Windows().Wait(seconds);
        return true;
    });
}

} // namespace

Answer MsgBox(std::string_view text, std::string_view title, Icon icon, Buttons buttons)
{
    std::optional<Running> underTick;
    if (CurrentEntry() == Entry::Tick) {
        underTick.emplace(Running::What::BoxUnderTick);
    }
    const MessageBox box{std::string(text), std::string(title), icon, buttons};
    return Await([&] { return Windows().ShowMessageBox(box); });
}

void LastBox(std::string_view text, std::string_view title, Icon icon)
{
    BeginAnotherLife();
    {
        const Running lastBox(Running::What::LastBox);
        MsgBox(text, title, icon);
    }
    EndLife();
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
    Await([] {
        Windows().OpenWindow(window::frmVirus);
        return true;
    });
}

void Pause(double seconds)
{
    // Long enough: the end of the pause ends the wait.
    constexpr double untilItGoesOn = 3600;
    const double start = PlaySeconds();
    double left = seconds;
    while (left > 0 || PlayStandsStill()) {
        AwaitTime(PlayStandsStill() ? untilItGoesOn : left);
        left = seconds - (PlaySeconds() - start);
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
        AwaitTime(n - 1 + roundsUpAfter - elapsed);
        elapsed = WallSeconds() - start;
    }
}

} // namespace torvenhall
