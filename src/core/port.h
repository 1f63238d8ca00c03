#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace torvenhall
{

/// The main window's displays, by their controls' names.
enum class Label : unsigned char {
    lblMoney,
    lblHappy,
    lblEat,
    lblHealth,
    lblEducation,
    lblStatus,
    lblFamily,
    lblCurrWork,
    lblGameLevel,
    lblGameSpeed,
    lblTime,
    lblMessage,
    lblhard0,
    lblhard1,
    lblhard2,
    lblhard3,
    lblhard4,
    lblhard5,
    lblhard6,
    lblhard7,
    lblhard8,
    lblOs,
    lblProg,
    lblAntiv,
    lblGraphic,
    lblInet,
    lblGames,
    lblOther,
};
inline constexpr std::size_t LabelCount = 28;

/// "lblMoney" and so on; also the control's object name.
std::string_view LabelName(Label label);

enum class TextColour : unsigned char { LightCyan, Red };

/// The windows that the rules open, refresh or close.
enum class Window : unsigned char {
    frmHard,
    frmSoft,
    frmHappy,
    frmHospital,
    frmShop,
    frmWork,
    frmEducation,
    frmNetwork,
    frmVirus,
    frmPause,
    frmAbout,
};
inline constexpr std::size_t WindowCount = 11;

std::string_view WindowName(Window window);

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
};

/// Everything that the rules ask of the windows. Calls marked "waits" return
/// when the player has answered; they handle window events meanwhile, so
/// ticks and clicks may enter the rules again before they return. After
/// `EndProgram` each of them returns at once.
class FrontEnd
{
public:
    virtual ~FrontEnd() = default;

    /// Shows a text in a main-window label; makes the main window (hidden) if
    /// there is none.
    virtual void ShowLabel(Label label, std::string_view text, TextColour colour) = 0;

    /// Waits.
    virtual Answer ShowMessageBox(const MessageBox& box) = 0;
    /// Waits. Nothing when cancelled.
    virtual std::optional<std::string> AskText(std::string_view prompt, std::string_view title) = 0;
    /// Waits: the name dialog, its name selected. Nothing when cancelled.
    virtual std::optional<NewPlayer> AskName(const NewPlayer& shown) = 0;
    /// Waits: the save and load dialog. Nothing when cancelled.
    virtual std::optional<std::string> AskGameName(const GameNameQuestion& question) = 0;
    /// Waits for the virus window to be closed; any other window opens at
    /// once, fresh, and the call returns. frmPause is brought to the front if
    /// it is open already.
    virtual void OpenWindow(Window window) = 0;
    virtual void CloseWindow(Window window) = 0;
    virtual bool IsOpen(Window window) const = 0;
    /// Runs the window's load routine again, if it is open.
    virtual void ReloadWindow(Window window) = 0;
    /// Disables a button by its control's name, if the window is open.
    virtual void DisableButton(Window window, std::string_view control) = 0;

    /// Closes every window, dialog and box, the last opened first and the
    /// main window too; whatever waits in one of them returns.
    virtual void CloseAllWindows() = 0;
    virtual void ShowMainWindow() = 0;
    virtual void SetMainTitle(std::string_view title) = 0;
    virtual void MinimiseMainWindow() = 0;
    /// tmrTime, the clock's timer of 250 ms.
    virtual void EnableTimer(bool enabled) = 0;

    /// Handles window events for at most so many seconds of the wall clock;
    /// may return sooner.
    virtual void ProcessEvents(double seconds) = 0;

    /// Starts a program and does not wait for it; false when it did not start.
    virtual bool StartProgram(const std::string& program,
                              const std::vector<std::string>& arguments) = 0;
    /// The bytes of a named picture carried in the program; empty if missing.
    virtual std::span<const std::byte> FindPicture(std::string_view name) const = 0;
    /// Makes every running wait return and the process end with exit code 0.
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
/// The connected windows. Calls that wait go through core/outside.h instead.
FrontEnd& Windows();

float Rnd();
void Randomize(double value);
void Randomize();
double WallSeconds();

} // namespace torvenhall
