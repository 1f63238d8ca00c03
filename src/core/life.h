#pragma once

namespace torvenhall
{

// A person's life can end, and the program can end, in the middle of any
// routine. Each of these unwinds to the handler or tick that started it
// (core/entry.h); error traps let them pass.

/// The life has ended: abandon the routine, then begin a new game.
struct LifeEnd {
};
/// The life that this routine belonged to is over: abandon the routine.
struct LifeAbandoned {
};
/// The program ends at once: abandon everything.
struct ProgramEnd {
};

/// Counts lives: each new game and each applied load begins another one.
int LifeNumber();
void BeginAnotherLife();

/// Shows nothing: unwinds so that the rest of the dead person's routine
/// touches nobody.
[[noreturn]] void EndLife();

/// Ends the program at once with exit code 0: no box, setter, file write or
/// name loop runs afterwards.
[[noreturn]] void EndProgram();
bool ProgramHasEnded();

/// What ticks and deaths must know of what is running, each for a scope:
/// LastBox is the box that ends a life, Day a day that is being processed,
/// BoxUnderTick a message box raised by a tick.
class Running
{
public:
    enum class What : unsigned char { NewGame, Load, Day, LastBox, BoxUnderTick };
    explicit Running(What what);
    ~Running();
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    static bool Now(What what);

private:
    What what;
};

/// Whether the innermost entry into the rules is a tick of the clock.
enum class Entry : unsigned char { Handler, Tick };
Entry InnermostEntry();
/// How many entries are on the stack; 0 in the resting program.
int EntryDepth();
class EntryScope
{
public:
    explicit EntryScope(Entry entry);
    ~EntryScope();
    EntryScope(const EntryScope&) = delete;
    EntryScope& operator=(const EntryScope&) = delete;

private:
    Entry outer;
};

/// Throws ProgramEnd or LifeAbandoned unless the program and the given life
/// still go on; every wait of the rules ends with this.
void StillAlive(int lifeNumber);

/// Forgets everything, for tests.
void ResetLife();

} // namespace torvenhall
