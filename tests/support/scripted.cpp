#include "support/scripted.h"

#include <gtest/gtest.h>

#include "core/GameState.h"

namespace torvenhall::test
{

namespace
{

void RunNext(std::deque<std::function<void()>>& queue)
{
    if (queue.empty()) {
        return;
    }
    const std::function<void()> next = std::move(queue.front());
    queue.pop_front();
    if (next) {
        next();
    }
}

template <class Value>
Value NextAnswer(std::deque<Value>& queue, const std::string& question)
{
    if (queue.empty()) {
        ADD_FAILURE() << "unexpected question: " << question;
        return {};
    }
    Value answer = std::move(queue.front());
    queue.pop_front();
    return answer;
}

} // namespace

std::vector<std::string> ScriptedFrontEnd::BoxTexts() const
{
    std::vector<std::string> texts;
    for (const MessageBox& box : boxes) {
        texts.push_back(box.title + ": " + box.text);
    }
    return texts;
}

void ScriptedFrontEnd::Forget()
{
    journal.clear();
    boxes.clear();
    messages.clear();
    started.clear();
    gameQuestions.clear();
    nameQuestions.clear();
}

void ScriptedFrontEnd::ShowLabel(Label label, std::string_view text, TextColour colour)
{
    if (label != Label::lblMessage) {
        journal.push_back(std::string(LabelName(label)) + "=" + std::string(text));
    } else if (!text.empty()) {
        // Each character typed makes the last message longer.
        if (labels[label].empty() || !text.starts_with(labels[label])) {
            messages.emplace_back();
            journal.emplace_back("message");
        }
        messages.back() = std::string(text);
    }
    labels[label] = std::string(text);
    colours[label] = colour;
}

Answer ScriptedFrontEnd::ShowMessageBox(const MessageBox& box)
{
    if (programEnded) {
        return Answer::No;
    }
    boxes.push_back(box);
    journal.push_back("box " + box.title);
    Answer answer = Answer::Ok;
    if (box.buttons == Buttons::YesNo) {
        answer = NextAnswer(answers, box.text);
    }
    RunNext(whileBoxOpen);
    return answer;
}

std::optional<std::string> ScriptedFrontEnd::AskText(std::string_view prompt,
                                                     std::string_view caption)
{
    journal.push_back("input " + std::string(caption) + ": " + std::string(prompt));
    RunNext(whileDialogOpen);
    return NextAnswer(inputs, std::string(prompt));
}

std::optional<NewPlayer> ScriptedFrontEnd::AskName(const NewPlayer& shown)
{
    journal.emplace_back("name dialog");
    nameQuestions.push_back(shown);
    RunNext(whileDialogOpen);
    return NextAnswer(names, "the player's name");
}

std::optional<std::string> ScriptedFrontEnd::AskGameName(const GameNameQuestion& question)
{
    journal.push_back("game dialog " + question.caption);
    gameQuestions.push_back(question);
    RunNext(whileDialogOpen);
    return NextAnswer(games, question.caption);
}

void ScriptedFrontEnd::OpenWindow(Window window)
{
    journal.push_back("open " + std::string(WindowName(window)));
    if (window == Window::frmVirus) {
        RunNext(whileVirusOpen);
    } else {
        open.insert(window);
    }
}

void ScriptedFrontEnd::CloseWindow(Window window)
{
    journal.push_back("close " + std::string(WindowName(window)));
    open.erase(window);
}

void ScriptedFrontEnd::ReloadWindow(Window window)
{
    if (IsOpen(window)) {
        journal.push_back("reload " + std::string(WindowName(window)));
    }
}

void ScriptedFrontEnd::DisableButton(Window window, std::string_view control)
{
    if (IsOpen(window)) {
        journal.push_back("disable " + std::string(WindowName(window)) + "." +
                          std::string(control));
    }
}

void ScriptedFrontEnd::CloseAllWindows()
{
    journal.emplace_back("close all");
    sawRestarting = GameState.Restarting == True;
    open.clear();
    labels.clear();
    mainWindowShown = false;
    timerEnabled = true; // a newly made main window's timer runs
}

void ScriptedFrontEnd::ShowMainWindow()
{
    journal.emplace_back("show main window");
    mainWindowShown = true;
}

void ScriptedFrontEnd::SetMainTitle(std::string_view text)
{
    title = text;
    journal.push_back("title " + title);
}

void ScriptedFrontEnd::EnableTimer(bool enabled)
{
    journal.emplace_back(enabled ? "timer on" : "timer off");
    timerEnabled = enabled;
}

void ScriptedFrontEnd::ProcessEvents(double most)
{
    // A real clock never stands still, whatever rounding has left to wait.
    constexpr double tick = 1e-6;
    seconds += most > tick ? most : tick;
    RunNext(duringWait);
}

bool ScriptedFrontEnd::StartProgram(const std::string& program,
                                    const std::vector<std::string>& arguments)
{
    std::string line = program;
    for (const std::string& argument : arguments) {
        line += " " + argument;
    }
    started.push_back(line);
    return true;
}

std::span<const std::byte> ScriptedFrontEnd::FindPicture(std::string_view name) const
{
    const auto found = pictures.find(name);
    return found == pictures.end() ? std::span<const std::byte>{} : found->second;
}

void ScriptedFrontEnd::EndProgram()
{
    journal.emplace_back("end program");
    programEnded = true;
}

float ScriptedDice::Rnd()
{
    if (values.empty()) {
        if (!otherwise) {
            ADD_FAILURE() << "an unexpected draw";
        }
        return otherwise.value_or(0);
    }
    const float value = values.front();
    values.pop_front();
    return value;
}

} // namespace torvenhall::test
