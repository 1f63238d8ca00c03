#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "core/GameState.h"
#include "core/port.h"
#include "core/remembered.h"
#include "core/shown.h"
#include "system/basSystem.h"
#include "system/convert.h"

namespace torvenhall::test
{

using Texts = std::vector<std::string>;

/// The parts that are not empty, in one line.
inline std::string Joined(const Texts& parts, const std::string& separator = ", ")
{
    std::string joined;
    for (const std::string& part : parts) {
        joined += (joined.empty() || part.empty() ? "" : separator) + part;
    }
    return joined;
}

/// "! Title: text", with the icon's sign: i, !, ? or x.
inline std::string BoxLine(const MessageBox& box)
{
    return std::string{"i!?x"[static_cast<int>(box.icon)]} + " " + box.title + ": " + box.text;
}

/// Connects rules that know nothing yet, as in a program that has just
/// started; the shipped and the player's files lie in the folder.
inline void StartRules(const Ports& ports, const std::string& folder)
{
    ResetRules();
    Connect(ports);
    SetDirectories(folder, folder);
}

/// A life to which nothing has happened yet, in the state and in the labels.
inline void ExpectFreshLife(const std::string& name)
{
    std::string shown = GameState.PlayerName;
    for (const Label label : {Label::lblMoney, Label::lblHappy, Label::lblHealth, Label::lblEat,
                              Label::lblOther, Label::lblMessage, Label::lblTime}) {
        shown += " " + ShownAt(label).text;
    }
    EXPECT_EQ(shown, name + " $15 25% 40% 75% 0 Мб  1 января 2001 г. - 00:00");
}

/// The first of a queue; fails the test, unless nothing is missing, without one.
template <class Value>
Value Next(std::deque<Value>& queue, const std::string& missing)
{
    if (queue.empty()) {
        EXPECT_EQ(missing, "");
        return {};
    }
    Value next = std::move(queue.front());
    queue.pop_front();
    return next;
}

/// A player without a screen: records what the rules show, answers from its
/// queues and fails the test on a question that nobody expected. Boxes with a
/// single button are closed at once. Waiting moves its clock.
class ScriptedFrontEnd : public FrontEnd, public WallClock
{
public:
    /// Every call in order: "lblMoney=$15", "message Сообщение ...", "open
    /// frmHard", a box as its line, ...
    Texts journal;
    Texts boxes; ///< the boxes alone
    bool programEnded = false;
    double seconds = 0;
    std::set<std::string, std::less<>> open, programs; ///< windows; what FindProgram finds

    // What the player answers, first come first served.
    std::deque<Answer> answers;
    std::deque<std::optional<std::string>> inputs, games;
    std::deque<std::optional<NewPlayer>> names;
    // What happens while the next box, dialog or virus window is open, during
    // the next wait, and at the beginning of each wait.
    std::deque<std::function<void()>> whileOpen, duringWait;
    std::function<void()> atEachWait = [] {}, atReload = [] {};

    double Seconds() const override { return seconds; }
    void Run(const std::function<void()>& routine) override { routine(); }
    void EndPauses() override {}
    void CloseWindow(std::string_view window) override { Note("close", window); }
    void ReloadWindow(std::string_view window) override
    {
        NoteIfOpen("reload", window);
        atReload();
    }
    void ShowMainWindow() override { Note("show main window"); }
    void SetMainTitle(std::string_view text) override { Note("title", text); }
    void EnableTimer(bool enabled) override { Note(enabled ? "timer on" : "timer off"); }

    void LabelChanged(Label label) override
    {
        const auto& [text, colour] = ShownAt(label);
        if (label != Label::lblMessage) {
            const std::string_view red = colour == TextColour::Red ? "red" : "";
            return Note(std::string(LabelNames[label]) + "=" + text, red);
        }
        // Each character typed makes the last message longer.
        if (lastMessage.empty() || !text.starts_with(lastMessage) || messageAt >= journal.size()) {
            messageAt = journal.size();
        }
        if (!text.empty()) {
            journal.resize(std::max(journal.size(), messageAt + 1));
            journal[messageAt] = "message " + text;
        }
        lastMessage = text;
    }
    Answer ShowMessageBox(const MessageBox& box) override
    {
        boxes.push_back(BoxLine(box));
        std::deque<Answer> ok{Answer::Ok};
        return Ask(box.buttons == Buttons::YesNo ? answers : ok, boxes.back());
    }
    std::optional<std::string> AskText(std::string_view prompt, std::string_view title) override
    {
        return Ask(inputs, "input " + std::string(title) + ": " + std::string(prompt));
    }
    std::optional<NewPlayer> AskName(const NewPlayer& shown) override
    {
        return Ask(names, "name dialog " + shown.name + ", " + std::to_string(shown.level));
    }
    std::optional<std::string> AskGameName(const GameNameQuestion& question) override
    {
        return Ask(games, Joined({question.caption, question.heading, Joined(question.games),
                                  question.name + (question.saving ? "_" : ""), question.confirm,
                                  question.trouble},
                                 " | "));
    }
    void OpenWindow(std::string_view window) override
    {
        Note("open", window);
        if (window == torvenhall::window::frmVirus) {
            Do(whileOpen);
        }
    }
    void DisableButton(std::string_view window, std::string_view control) override
    {
        NoteIfOpen("disable " + std::string(control) + " of", window);
    }
    void CloseAllWindows() override
    {
        Note(GameState.Restarting == True ? "close all, restarting" : "close all");
        open.clear();
        lastMessage.clear();
    }
    void Wait(double most) override
    {
        atEachWait();
        constexpr double tick = 1e-6; // a real clock never stands still
        seconds += std::max(most, tick);
        Do(duringWait);
    }
    std::string FindProgram(std::string_view name) override
    {
        Note("find", name);
        return programs.contains(name) ? "/bin/" + std::string(name) : std::string{};
    }
    bool StartProgram(const std::string& program, const Texts& arguments) override
    {
        Note("start " + program, arguments.empty() ? "" : arguments.front());
        return true;
    }
    void EndProgram() override
    {
        Note("end program");
        programEnded = true;
    }

private:
    void Note(const std::string& what, std::string_view of = {})
    {
        journal.push_back(of.empty() ? what : what + " " + std::string(of));
    }
    void NoteIfOpen(const std::string& what, std::string_view window)
    {
        if (open.contains(window)) {
            Note(what, window);
        }
    }
    static void Do(std::deque<std::function<void()>>& queue)
    {
        if (const auto next = Next(queue, "")) {
            next();
        }
    }
    template <class Value>
    Value Ask(std::deque<Value>& queue, const std::string& question)
    {
        Note(question);
        Do(whileOpen);
        return Next(queue, question);
    }

    std::string lastMessage;
    std::size_t messageAt = 0;
};

/// Dice that show the queued values; an empty queue gives `otherwise`, or
/// fails the test if that is not set.
class ScriptedDice : public Dice
{
public:
    std::deque<float> values;
    std::optional<float> otherwise;
    std::string calls; ///< " draw", " seed 4" or, from the system timer, " seed"

    float Rnd() override
    {
        calls += " draw";
        return values.empty() && otherwise ? *otherwise : Next(values, "an unexpected draw");
    }
    void Randomize(double value) override { calls += " seed " + DecimalOf(value); }
    void Randomize() override { calls += " seed"; }
};

/// The value of Rnd() that draws `wanted` of 0..sides.
constexpr float DrawOf(int wanted, int sides)
{
    return static_cast<float>(wanted) / static_cast<float>(sides);
}

} // namespace torvenhall::test

namespace torvenhall
{
using namespace test; // one directive serves a test
}
