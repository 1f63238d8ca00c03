#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "core/port.h"

namespace torvenhall::test
{

/// A player without a screen: records what the rules show, answers from its
/// queues and fails the test on a question that nobody expected. Boxes with a
/// single button are closed at once.
class ScriptedFrontEnd : public FrontEnd
{
public:
    // What was shown, in order.
    std::vector<std::string> journal; ///< "lblMoney=$15", "box Внимание", "open frmHard", ...
    std::vector<MessageBox> boxes;
    std::map<Label, std::string> labels;
    std::map<Label, TextColour> colours;
    bool sawRestarting = false;        ///< all windows were closed while Restarting was True
    std::vector<std::string> messages; ///< what the message line said, whole
    std::set<Window> open;
    std::vector<GameNameQuestion> gameQuestions;
    std::vector<NewPlayer> nameQuestions;
    std::vector<std::string> started; ///< programs with their arguments
    std::string title;
    bool timerEnabled = false;
    bool mainWindowShown = false;
    bool programEnded = false;

    // What the player answers, first come first served.
    std::deque<Answer> answers;
    std::deque<std::optional<std::string>> inputs;
    std::deque<std::optional<NewPlayer>> names;
    std::deque<std::optional<std::string>> games;
    // What happens while the next box is open, the next dialog is open, the
    // virus window is open, or during the next wait.
    std::deque<std::function<void()>> whileBoxOpen, whileDialogOpen, whileVirusOpen, duringWait;

    std::map<std::string, std::vector<std::byte>, std::less<>> pictures;

    /// "Title: text" of every box so far.
    std::vector<std::string> BoxTexts() const;
    void Forget();

    void ShowLabel(Label label, std::string_view text, TextColour colour) override;
    Answer ShowMessageBox(const MessageBox& box) override;
    std::optional<std::string> AskText(std::string_view prompt, std::string_view caption) override;
    std::optional<NewPlayer> AskName(const NewPlayer& shown) override;
    std::optional<std::string> AskGameName(const GameNameQuestion& question) override;
    void OpenWindow(Window window) override;
    void CloseWindow(Window window) override;
    bool IsOpen(Window window) const override { return open.contains(window); }
    void ReloadWindow(Window window) override;
    void DisableButton(Window window, std::string_view control) override;
    void CloseAllWindows() override;
    void ShowMainWindow() override;
    void SetMainTitle(std::string_view text) override;
    void MinimiseMainWindow() override { journal.emplace_back("minimise"); }
    void EnableTimer(bool enabled) override;
    void ProcessEvents(double seconds) override;
    bool StartProgram(const std::string& program,
                      const std::vector<std::string>& arguments) override;
    std::span<const std::byte> FindPicture(std::string_view name) const override;
    void EndProgram() override;

    /// The clock that `ProcessEvents` moves.
    double seconds = 0;
};

class ScriptedClock : public WallClock
{
public:
    explicit ScriptedClock(const ScriptedFrontEnd& player) : frontEnd(player) {}
    double Seconds() const override { return frontEnd.seconds; }

private:
    const ScriptedFrontEnd& frontEnd;
};

/// Dice that show the queued values; an empty queue gives `otherwise`, or
/// fails the test if that is not set.
class ScriptedDice : public Dice
{
public:
    std::deque<float> values;
    std::optional<float> otherwise;
    std::vector<std::optional<double>> reseeds; ///< nothing: from the system timer

    float Rnd() override;
    void Randomize(double value) override { reseeds.emplace_back(value); }
    void Randomize() override { reseeds.emplace_back(); }
};

/// The value of Rnd() that draws `wanted` of 0..sides.
constexpr float DrawOf(int wanted, int sides)
{
    return static_cast<float>(wanted) / static_cast<float>(sides);
}

} // namespace torvenhall::test
