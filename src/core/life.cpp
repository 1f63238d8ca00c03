#include "core/life.h"

#include <array>
#include <cstddef>

#include "core/port.h"

namespace torvenhall
{

namespace
{

struct {
    int lifeNumber = 0;
    bool programEnded = false;
    std::array<int, 5> running{};
    Entry innermost = Entry::Handler;
    int depth = 0;
} life;

int& Count(Running::What what)
{
    return life.running[static_cast<std::size_t>(what)];
}

} // namespace

int LifeNumber()
{
    return life.lifeNumber;
}

void BeginAnotherLife()
{
    ++life.lifeNumber;
}

void EndLife()
{
    throw LifeEnd{};
}

void EndProgram()
{
    if (!life.programEnded) {
        life.programEnded = true;
        Windows().EndProgram();
    }
    throw ProgramEnd{};
}

bool ProgramHasEnded()
{
    return life.programEnded;
}

Running::Running(What something) : what(something)
{
    ++Count(what);
}

Running::~Running()
{
    --Count(what);
}

bool Running::Now(What what)
{
    return Count(what) > 0;
}

Entry InnermostEntry()
{
    return life.innermost;
}

int EntryDepth()
{
    return life.depth;
}

EntryScope::EntryScope(Entry entry) : outer(life.innermost)
{
    life.innermost = entry;
    ++life.depth;
}

EntryScope::~EntryScope()
{
    life.innermost = outer;
    --life.depth;
}

void StillAlive(int lifeNumber)
{
    if (life.programEnded) {
        throw ProgramEnd{};
    }
    if (life.lifeNumber != lifeNumber) {
        throw LifeAbandoned{};
    }
}

void ResetLife()
{
    life = {};
}

} // namespace torvenhall
