#pragma once

#include <functional>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/port.h"
#include "core/shown.h"

namespace torvenhall::soak
{

/// Something does not hold; the text says what.
struct Violation {
    std::string what;
};

/// Chance from one seed.
class Chance
{
public:
    explicit Chance(std::uint64_t seed) : engine(seed) {}
    /// A number 0..count-1.
    int Of(int count) { return std::uniform_int_distribution<int>(0, count - 1)(engine); }
    /// True once in so many times.
    bool Once(int in) { return Of(in) == 0; }
    template <class List>
    const auto& In(const List& list)
    {
        return list[static_cast<std::size_t>(Of(static_cast<int>(std::size(list))))];
    }

private:
    std::mt19937_64 engine;
};

/// The game's windows without a screen, and a hand that answers by chance. Time
/// is its own: whenever the rules wait, ticks come each quarter of a second as
/// long as the main window's timer runs, and the player may act.
class Window : public FrontEnd, public WallClock
{
public:
    Window(Chance& chanceOfAll, int playedLevel) : chance(chanceOfAll), level(playedLevel) {}

    // What the driver does when time passes, and while nothing is modal.
    std::function<void()> tick, act;

    /// Lets time pass until it is over or the pauses are ended.
    void Pass(double duration);
    /// A program that has been started anew.
    void Reset();

    // What can be seen.
    EnumArray<Label, ShownText> told{}; ///< what the labels were last told to show
    bool isThere = false, isShown = false, timerRuns = false, ended = false, paused = false;
    std::string title;
    // What the hand has done since the driver last looked.
    std::optional<NewPlayer> begun;    ///< the name dialog was answered with a name
    std::optional<std::string> loaded; ///< a game was chosen to be loaded
    bool cheats = false;   ///< since the life began, which may go on in the next program
    std::string_view word; ///< a code word to be entered next
    // Counted since the beginning.
    int overflows = 0, wins = 0, deaths = 0;

    double Seconds() const override { return seconds; }
    void Run(const std::function<void()>& routine) override;
    void EndPauses() override { ++endings; }
    void LabelChanged(Label label) override;
    Answer ShowMessageBox(const MessageBox& box) override;
    std::optional<std::string> AskText(std::string_view prompt, std::string_view heading) override;
    std::optional<NewPlayer> AskName(const NewPlayer& shown) override;
    std::optional<std::string> AskGameName(const GameNameQuestion& question) override;
    void Wait(double duration) override;
    void OpenWindow(std::string_view window) override;
    void CloseWindow(std::string_view window) override;
    void ReloadWindow(std::string_view window) override;
    void DisableButton(std::string_view window, std::string_view control) override;
    void CloseAllWindows() override;
    void ShowMainWindow() override;
    void SetMainTitle(std::string_view text) override;
    void EnableTimer(bool enabled) override;
    std::string FindProgram(std::string_view name) override;
    bool StartProgram(const std::string& program, const std::vector<std::string>& list) override;
    void EndProgram() override;

private:
    void MakeMainWindow();
    void MustNotHaveEnded(std::string_view call) const;
    void StayOpen();

    Chance& chance;
    int level;
    double seconds = 0, nextTick = 0;
    int endings = 0; ///< of pauses
    int modal = 0;   ///< open boxes and dialogs
};

} // namespace torvenhall::soak
