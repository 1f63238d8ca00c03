#pragma once

namespace torvenhall
{

/// The doors by which a routine enters the rules: a window's handler or a
/// tick of the clock (game/entry.h).
enum class Entry : unsigned char { Handler, Tick };

/// The door of the routine that runs now.
Entry CurrentEntry();

/// A routine from its door to its end.
class Routine
{
public:
    explicit Routine(Entry entry);
    ~Routine();
    Routine(const Routine&) = delete;
    Routine& operator=(const Routine&) = delete;

private:
    Entry outer;
};

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
