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

// Long enough: the end of the pause ends the wait.
constexpr double UntilItGoesOn = 3600;

/// Waits until a body says that enough seconds of play have passed; it tells
/// how many are left of the present wait.
template <class Left>
void AwaitPlay(Left&& left)
{
    const double start = PlaySeconds();
    double seconds = left(0);
    while (seconds > 0 || PlayStandsStill()) {
        AwaitTime(PlayStandsStill() ? UntilItGoesOn : seconds);
        seconds = left(PlaySeconds() - start);
    }
}

} // namespace

void AwaitTime(double seconds)
{
    Await([&] {
        Windows().Wait(seconds);
        return true;
    });
}

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
    LifeIsOver();
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
    AwaitPlay([&](double elapsed) { return seconds - elapsed; });
}

void WaitSeconds(int n)
{
    // The rounding is reached half a second early; a tie may round down, so a
    // little after it.
    constexpr double roundsUpAfter = 0.501;
    AwaitPlay(
        [&](double elapsed) { return Round(elapsed) < n ? n - 1 + roundsUpAfter - elapsed : 0; });
}

} // namespace torvenhall
