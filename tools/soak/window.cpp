#include "window.h"

#include <algorithm>
#include <array>
#include <utility>

#include "activities/virus.h"
#include "core/unwinding.h"
#include "game/clock.h"
#include "game/entry.h"

namespace torvenhall::soak
{

namespace
{

constexpr double TickSeconds = 0.25;

/// Counts something for a scope, whatever ends it.
class Open
{
public:
    explicit Open(int& countOfSuch) : count(countOfSuch) { ++count; }
    ~Open() { --count; }
    Open(const Open&) = delete;
    Open& operator=(const Open&) = delete;

private:
    int& count;
};

constexpr std::array<std::string_view, 8> CodeWords{"QUOKKAFOX", "QUOKKAFOX", "ZEPHR",   "MARLIN",
                                                    "WOMBAT",    "TANGERINE", "PELICAN", "quokka"};
constexpr std::array<std::string_view, 4> PlayerNames{"Иван", "Newton", "<b>Жук</b>", " "};
constexpr std::array<std::string_view, 2> NoNames{"", "Введите Ваше имя, пожалуйста"};
constexpr std::array<std::string_view, 3> NoGameNames{"a/b", "a\nb", "\u202Egame"};
/// The games in which code words were entered keep apart.
constexpr std::array<std::string_view, 3> HonestGames{"вечер", "Утро", "game"};
constexpr std::array<std::string_view, 2> CheatedGames{"cheat 1", "cheat 2"};

} // namespace

void Window::MustNotHaveEnded(std::string_view call) const
{
    if (ended) {
        throw Violation{std::string(call) + " after the end of the program"};
    }
}

void Window::Reset()
{
    told = {};
    isThere = isShown = timerRuns = ended = paused = false;
    begun.reset();
    loaded.reset();
}

void Window::Pass(double duration)
{
    constexpr double least = 1e-6; // a real clock never stands still
    const double until = seconds + std::max(duration, least);
    const int before = endings;
    while (!ended && endings == before && seconds < until) {
        seconds = std::max(std::min(until, nextTick), seconds + least);
        if (seconds < nextTick) {
            continue;
        }
        nextTick = seconds + TickSeconds;
        if (timerRuns) {
            tick();
        }
        if (modal == 0 && !ended) {
            act();
        }
    }
}

void Window::StayOpen()
{
    const Open box(modal);
    if (chance.Once(3)) {
        Pass(TickSeconds * chance.Of(4));
    }
}

void Window::Run(const std::function<void()>& routine)
{
    MustNotHaveEnded("Run");
    try {
        routine();
    } catch (const LifeEnd&) {
        throw Violation{"the end of a life left the rules"};
    } catch (const Abandoned&) {
        throw Violation{"an abandoned routine left the rules"};
    }
}

void Window::MakeMainWindow()
{
    if (isThere) {
        return;
    }
    isThere = true;
    for (std::size_t i = 0; i < CountOf<Label>; ++i) {
        told[static_cast<Label>(i)] = ShownAt(static_cast<Label>(i));
    }
    ClockTick(); // as the real one does when it is loaded
    timerRuns = true;
}

void Window::LabelChanged(Label label)
{
    MustNotHaveEnded("LabelChanged");
    MakeMainWindow();
    told[label] = ShownAt(label);
}

Answer Window::ShowMessageBox(const MessageBox& box)
{
    MustNotHaveEnded("ShowMessageBox");
    // The only error that chance can bring about is a number that grows too large.
    if (box.title == "Torvenhall" && box.icon == Icon::Critical) {
        if (box.text.find("№ 6 ") == std::string::npos) {
            throw Violation{"reported: " + box.text};
        }
        ++overflows;
    }
    wins += box.title == "Наконец-то" && box.icon == Icon::Exclamation ? 1 : 0;
    for (const std::string_view words : {"Вы скончались", "Вы умерли", "Вы спрыгнули"}) {
        deaths += box.text.starts_with(words) ? 1 : 0;
    }
    StayOpen();
    return box.buttons == Buttons::Ok ? Answer::Ok : chance.Once(2) ? Answer::Yes : Answer::No;
}

std::optional<std::string> Window::AskText(std::string_view /*prompt*/,
                                           std::string_view /*heading*/)
{
    MustNotHaveEnded("AskText");
    const std::string_view wanted = std::exchange(word, {});
    StayOpen();
    if (ended || (wanted.empty() && chance.Once(4))) {
        return std::nullopt;
    }
    cheats = true;
    return std::string(wanted.empty() ? chance.In(CodeWords) : wanted);
}

std::optional<NewPlayer> Window::AskName(const NewPlayer& /*shown*/)
{
    MustNotHaveEnded("AskName");
    if (isThere || isShown) {
        throw Violation{"the name dialog over a main window"};
    }
    StayOpen();
    if (chance.Once(40)) {
        return std::nullopt; // ends the program
    }
    if (chance.Once(10)) {
        return NewPlayer{std::string(chance.In(NoNames)), level};
    }
    cheats = false;
    // Not to choose a level at all is as good as the normal one.
    begun =
        NewPlayer{std::string(chance.In(PlayerNames)), level == 1 && chance.Once(4) ? -1 : level};
    return begun;
}

std::optional<std::string> Window::AskGameName(const GameNameQuestion& question)
{
    MustNotHaveEnded("AskGameName");
    if (!question.trouble.empty() && question.name.find("game") == 0) {
        throw Violation{"a good name was refused: " + question.trouble};
    }
    const int life = LifeNumber();
    StayOpen();
    if (ended || life != LifeNumber() || chance.Once(6) ||
        (!question.saving && question.games.empty())) {
        return std::nullopt;
    }
    if (question.saving && chance.Once(5)) {
        return std::string(chance.In(NoGameNames));
    }
    if (question.saving) {
        return std::string(cheats ? chance.In(CheatedGames) : chance.In(HonestGames));
    }
    loaded = chance.In(question.games);
    cheats = cheats || loaded->starts_with("cheat");
    return loaded;
}

void Window::Wait(double duration)
{
    MustNotHaveEnded("Wait");
    Pass(duration);
}

void Window::OpenWindow(std::string_view window)
{
    MustNotHaveEnded("OpenWindow");
    if (window == window::frmPause) {
        paused = true;
    }
    if (window == window::frmVirus) {
        StayOpen();
        const Open box(modal);
        if (!ended) {
            EnterRules(chance.Once(2) ? FightVirus : ReleaseVirus);
        }
    }
}

void Window::CloseWindow(std::string_view window)
{
    MustNotHaveEnded("CloseWindow");
    paused = paused && window != window::frmPause;
}

void Window::ReloadWindow(std::string_view /*window*/)
{
    MustNotHaveEnded("ReloadWindow");
}

void Window::DisableButton(std::string_view /*window*/, std::string_view /*control*/)
{
    MustNotHaveEnded("DisableButton");
}

void Window::CloseAllWindows()
{
    MustNotHaveEnded("CloseAllWindows");
    isThere = isShown = timerRuns = paused = false;
    told = {};
}

void Window::ShowMainWindow()
{
    MustNotHaveEnded("ShowMainWindow");
    MakeMainWindow();
    isShown = true;
}

void Window::SetMainTitle(std::string_view text)
{
    title = text;
}

void Window::EnableTimer(bool enabled)
{
    timerRuns = enabled;
}

std::string Window::FindProgram(std::string_view name)
{
    return chance.Once(3) ? "/usr/bin/" + std::string(name) : std::string{};
}

bool Window::StartProgram(const std::string& /*program*/, const std::vector<std::string>& /*list*/)
{
    MustNotHaveEnded("StartProgram");
    return true;
}

void Window::EndProgram()
{
    MustNotHaveEnded("EndProgram");
    ended = true;
    timerRuns = false;
    ++endings;
}

} // namespace torvenhall::soak
