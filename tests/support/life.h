#pragma once

#include <gtest/gtest.h>

#include <string>

#include "core/GameState.h"
#include "support/scripted.h"

namespace torvenhall::test
{

/// A test that plays: the scripted player, dice and clock connected to rules
/// that have just started, files in a folder of the test's own.
class Life : public ::testing::Test
{
protected:
    Life();
    ~Life() override;

    /// Begins a new game and forgets what it showed.
    void Begin(int level = 1, const std::string& name = "Иван");
    /// One tick through the same door as the real timer's.
    void Tick(int times = 1);
    /// Ticks until the date changes.
    void FinishDay();
    /// Dice on which nothing but the ordinary wear happens.
    void PlainDays();

    /// The text that the main window shows there.
    std::string LabelShown(Label label) const;
    /// The test's own folder, with a trailing separator; the rules' files go
    /// there.
    const std::string& Folder() const { return ownFolder; }

    ScriptedFrontEnd player;
    ScriptedDice dice;
    ScriptedClock clock{player};

private:
    std::string ownFolder;
};

} // namespace torvenhall::test
