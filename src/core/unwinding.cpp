#include "core/unwinding.h"

#include "core/port.h"
#include "core/remembered.h"

namespace torvenhall
{

namespace
{

Remembered<int> lifeNumber;
Remembered<bool> programEnded;

} // namespace

int LifeNumber()
{
    return *lifeNumber;
}

void BeginAnotherLife()
{
    ++*lifeNumber;
    Windows().EndPauses();
}

void EndLife()
{
    throw LifeEnd{};
}

void EndProgram()
{
    if (!*programEnded) {
        *programEnded = true;
        Windows().EndProgram();
    }
    throw Abandoned{};
}

bool ProgramHasEnded()
{
    return *programEnded;
}

void StillAlive(int life)
{
    if (*programEnded || life != *lifeNumber) {
        throw Abandoned{};
    }
}

} // namespace torvenhall
