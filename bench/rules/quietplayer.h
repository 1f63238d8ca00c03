#pragma once

#include <filesystem>
#include <string>

#include "core/basGame.h"
#include "core/port.h"
#include "core/random.h"
#include "core/remembered.h"
#include "game/entry.h"
#include "game/newgame.h"
#include "system/basSystem.h"

namespace torvenhall::bench
{

/// A player without a screen to whom nothing is shown. Answers at once; waiting
/// moves the clock.
class QuietPlayer final : public FrontEnd, public WallClock
{
public:
    double Seconds() const override { return seconds; }
    void Run(const std::function<void()>& routine) override { routine(); }
    void LabelChanged(Label /*label*/) override {}
    Answer ShowMessageBox(const MessageBox& box) override
    {
        return box.buttons == Buttons::YesNo ? Answer::No : Answer::Ok;
    }
    std::optional<std::string> AskText(std::string_view, std::string_view) override { return {}; }
    std::optional<NewPlayer> AskName(const NewPlayer&) override { return NewPlayer{"Newton", 2}; }
    std::optional<std::string> AskGameName(const GameNameQuestion& question) override
    {
        return question.trouble.empty() ? std::optional<std::string>("bench") : std::nullopt;
    }
    void Wait(double most) override
    {
        constexpr double late = 1e-6; // as a real clock always is
        seconds += most + late;
    }
    void EndPauses() override {}
    void OpenWindow(std::string_view /*window*/) override {}
    void CloseWindow(std::string_view /*window*/) override {}
    void ReloadWindow(std::string_view /*window*/) override {}
    void DisableButton(std::string_view /*window*/, std::string_view /*control*/) override {}
    void CloseAllWindows() override {}
    void ShowMainWindow() override {}
    void SetMainTitle(std::string_view /*title*/) override {}
    void EnableTimer(bool /*enabled*/) override {}
    std::string FindProgram(std::string_view /*name*/) override { return {}; }
    bool StartProgram(const std::string&, const std::vector<std::string>&) override
    {
        return false;
    }
    void EndProgram() override {}

private:
    double seconds = 0;
};

/// Dice that cost nothing and draw no event.
class LoadedDice final : public Dice
{
public:
    float Rnd() override { return 0.5F; }
    void Randomize(double /*value*/) override {}
    void Randomize() override {}
};

/// A life of the rules, a day old, its files in a folder of its own.
class RulesLife
{
public:
    RulesLife()
        : folder((std::filesystem::temp_directory_path() / "torvenhall-rules").string() + "/")
    {
        std::filesystem::create_directories(folder);
        ResetRules();
        Connect({&player, &dice, &player});
        SetDirectories(folder, folder);
        EnterRules(NewGame);
        Wellbeing();
    }
    ~RulesLife()
    {
        ResetRules();
        Connect({});
        std::filesystem::remove_all(folder);
    }
    RulesLife(const RulesLife&) = delete;
    RulesLife& operator=(const RulesLife&) = delete;

    /// From here on nobody dies for a month.
    static void Wellbeing()
    {
        SetHappy(100);
        SetHealth(100);
        SetEatLevel(100);
        SetMoney(1000);
    }

    const std::string folder;
    QuietPlayer player;
    RandomDice dice{2001};
    LoadedDice loaded;
};

} // namespace torvenhall::bench
