#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "core/GameState.h"
#include "support/scripted.h"

namespace torvenhall::test
{

using Texts = std::vector<std::string>;
using enum Label;
/// Statistics in the order in which they change, and by how much.
using Changes = std::vector<std::pair<Label, int>>;

/// A test that plays: the scripted player, dice and clock connected to rules
/// that have just started, files in a folder of the test's own.
class Life : public ::testing::Test
{
protected:
    Life();
    ~Life() override;

    /// Begins a new game and forgets what it showed.
    void Begin(int level = 1, const std::string& name = "Иван");
    /// Sets the three vital statistics and the money, and forgets what that showed.
    void Set(int happy, int health, int eat, int money);
    /// Forgets what was shown; the next name dialog is answered with this name.
    void NextLifeIs(const std::string& name);
    /// One tick through the same door as the real timer's.
    void Tick(int times = 1);
    /// Ticks until the date changes.
    void FinishDay();
    /// Dice on which nothing but the ordinary wear happens.
    void PlainDays() { dice.otherwise = DrawOf(1, 50); }

    /// The text that the main window shows there.
    std::string LabelShown(Label label) const;
    /// What the main window shows one after another while the present money
    /// and vital statistics change so.
    static Texts ShownBy(const Changes& changes);
    /// The boxes since the last call, as "! Title: text" with the icon's sign:
    /// i, !, ? or x.
    Texts Told();
    /// The number of the error that the only box since the last call reports,
    /// 0 without a box.
    int ErrorTold();
    /// The test's own folder, with a trailing separator; the rules' files go
    /// there.
    const std::string& Folder() const { return ownFolder; }

    ScriptedFrontEnd player;
    ScriptedDice dice;
    ScriptedClock clock{player};

private:
    std::string ownFolder;
};

/// The same with a game begun.
class BegunLife : public Life
{
protected:
    BegunLife() { Begin(); }
};

} // namespace torvenhall::test
