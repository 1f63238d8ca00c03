#pragma once

#include "app/action.h"
#include "screen.h"

namespace torvenhall::robot
{

/// Does what a player can do, through the events of mouse and keyboard that
/// the window system would send.
class Hands
{
public:
    Hands(const Screen& newScreen, SteppedClock& newClock) : screen(newScreen), clock(newClock) {}

    /// False if there is no such window or control, or it cannot be used.
    bool Do(const Action& action);

private:
    QWidget* UsableWindow(const Action& action) const;
    bool Wait(const Action& action);
    bool Click(const Action& action);
    bool ClickRow(const Action& action);
    bool ChooseItem(const Action& action);
    bool Dismiss(const Action& action);
    bool PressKeys(const Action& action);
    bool Type(const Action& action);
    bool Close(const Action& action);
    bool Restore(const Action& action);

    const Screen& screen;
    SteppedClock& clock;
};

/// Writes a saved game of that name, as it stands in an action.
bool WriteGameFile(const Action& action);

} // namespace torvenhall::robot
