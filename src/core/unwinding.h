#pragma once

#include <functional>

namespace torvenhall
{

// A person's life can end, and the program can end, in the middle of any
// routine. Each of these unwinds to the handler or tick that started it
// (game/entry.h); error traps let them pass.

/// The life has ended: abandon the routine, then begin a new game.
struct LifeEnd {
};
/// The life that this routine belonged to is over, or the program is: abandon
/// the routine.
struct Abandoned {
};

/// Counts lives: each new game and each applied load begins another one.
int LifeNumber();
/// Whatever waits for the present life is abandoned.
void BeginAnotherLife();

/// What is to be done as soon as the present life is over, before its last box.
void WhenLifeIsOver(const std::function<void()>& deed);
void LifeIsOver();

/// Shows nothing: unwinds so that the rest of the dead person's routine
/// touches nobody.
[[noreturn]] void EndLife();

/// Ends the program at once with exit code 0: no box, setter, file write or
/// name loop runs afterwards.
[[noreturn]] void EndProgram();
bool ProgramHasEnded();

/// Throws Abandoned unless the program and the given life still go on; every
/// wait of the rules ends with this.
void StillAlive(int lifeNumber);

} // namespace torvenhall
