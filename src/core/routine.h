#pragma once

namespace torvenhall
{

/// The doors by which a routine enters the rules: a window's handler or a
/// tick of the clock (game/entry.h).
enum class Entry : unsigned char { Handler, Tick };

/// The door of the routine that runs now.
Entry CurrentEntry();

/// A routine begins that came in by this door.
void BeginRoutine(Entry entry);

/// The time that a routine waits. Others run meanwhile, and need not end
/// before it goes on.
class Waiting
{
public:
    Waiting();
    ~Waiting();
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;

private:
    Entry own;
};

} // namespace torvenhall
