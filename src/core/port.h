#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/labels.h"

namespace torvenhall
{

/// The names of the windows that the rules themselves open, refresh or close;
/// the table of all is the windows' own (ui/windows.h).
namespace window
{
inline constexpr std::string_view frmHard = "frmHard";
inline constexpr std::string_view frmSoft = "frmSoft";
inline constexpr std::string_view frmEducation = "frmEducation";
inline constexpr std::string_view frmNetwork = "frmNetwork";
inline constexpr std::string_view frmVirus = "frmVirus";
inline constexpr std::string_view frmPause = "frmPause";
} // namespace window

enum class Icon : unsigned char { Information, Exclamation, Question, Critical };
enum class Buttons : unsigned char { Ok, YesNo };
enum class Answer : unsigned char { Ok, Yes, No };

struct MessageBox {
    std::string text;
    std::string title;
    Icon icon = Icon::Information;
    Buttons buttons = Buttons::Ok;
};

/// What the name dialog shows when it opens, and what it holds on "OK".
struct NewPlayer {
    std::string name;
    int level = 1; ///< selected difficulty, -1 for none
};

/// What the save and load dialog shows when it opens.
struct GameNameQuestion {
    bool saving = true; ///< the name may be typed; else only picked
    std::string caption;
    std::string heading;
    std::string confirm; ///< caption of the confirming button
    std::string name;    ///< the name field's content
    std::vector<std::string> games;
    std::string trouble = {}; ///< what is wrong with the name, or nothing
};

/// Everything that the rules ask of the windows. A call marked "waits" suspends
/// the routine that made it, and nothing else, until its own answer or time is
/// there; ticks and clicks may enter the rules meanwhile.
class FrontEnd
{
public:
    virtual ~FrontEnd() = default;

    /// Runs a routine of the rules, which lets nothing be thrown out of it.
    /// Returns when it has ended or waits.
    virtual void Run(const std::function<void()>& routine) = 0;

    /// A main-window label shows something new (core/shown.h); makes the main
    /// window (hidden) if there is none.
    virtual void LabelChanged(Label label) = 0;

    /// Waits.
    virtual Answer ShowMessageBox(const MessageBox& box) = 0;
    /// Waits. Nothing when cancelled.
    virtual std::optional<std::string> AskText(std::string_view prompt, std::string_view title) = 0;
    /// Waits: the name dialog, its name selected. Nothing when cancelled.
    virtual std::optional<NewPlayer> AskName(const NewPlayer& shown) = 0;
    /// Waits: the save and load dialog. Nothing when cancelled.
    virtual std::optional<std::string> AskGameName(const GameNameQuestion& question) = 0;
    /// Waits so many seconds of the wall clock; may return sooner.
    virtual void Wait(double seconds) = 0;
    /// Makes every running `Wait` return soon.
    virtual void EndPauses() = 0;

    /// Waits for the virus window to be closed; any other window opens at
    /// once, fresh, and the call returns. frmPause is brought to the front if
    /// it is open already.
    virtual void OpenWindow(std::string_view window) = 0;
    virtual void CloseWindow(std::string_view window) = 0;
    /// Runs the window's load routine again, if it is open.
    virtual void ReloadWindow(std::string_view window) = 0;
    /// Disables a button by its control's name, if the window is open.
    virtual void DisableButton(std::string_view window, std::string_view control) = 0;

    /// Closes every window, dialog and box, the last opened first and the
    /// main window too; whatever waits in one of them goes on.
    virtual void CloseAllWindows() = 0;
    virtual void ShowMainWindow() = 0;
    virtual void SetMainTitle(std::string_view title) = 0;
    /// tmrTime, the clock's timer of 250 ms.
    virtual void EnableTimer(bool enabled) = 0;

    /// The full path of a program of that name; empty when there is none.
    virtual std::string FindProgram(std::string_view name) = 0;
    /// Starts a program and does not wait for it; false when it did not start.
    virtual bool StartProgram(const std::string& program,
                              const std::vector<std::string>& arguments) = 0;
    /// Makes everything that waits go on and the process end with exit code 0.
    /// The last call.
    virtual void EndProgram() = 0;
};

/// The uniform generator that the whole game shares.
class Dice
{
public:
    virtual ~Dice() = default;
    /// The next value x, 0 <= x < 1, of single precision.
    virtual float Rnd() = 0;
    /// Mixes all bits of the value into the generator's present state.
    virtual void Randomize(double value) = 0;
    /// The same with the system timer's reading.
    virtual void Randomize() = 0;
};

/// A monotonic clock; a test runs it as fast as it likes.
class WallClock
{
public:
    virtual ~WallClock() = default;
    virtual double Seconds() const = 0;
};

struct Ports {
    FrontEnd* frontEnd = nullptr;
    Dice* dice = nullptr;
    WallClock* clock = nullptr;
};

/// Connects the rules to their surroundings; the objects must outlive every
/// other call.
void Connect(const Ports& ports);
/// Changes the windows alone.
void ConnectWindows(FrontEnd& windows);
/// The connected windows. Calls that wait go through core/waits.h instead.
FrontEnd& Windows();

float Rnd();
void Randomize(double value);
void Randomize();
double WallSeconds();

} // namespace torvenhall
