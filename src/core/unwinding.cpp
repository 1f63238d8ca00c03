#include "core/unwinding.h"

#include "core/port.h"
#include "core/remembered.h"
#include "core/silentfrontend.h"

namespace torvenhall
{

namespace
{

Remembered<int> lifeNumber;
Remembered<bool> programEnded;
Remembered<std::function<void()>> whenOver;

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

void WhenLifeIsOver(const std::function<void()>& deed)
{
    *whenOver = deed;
}

void LifeIsOver()
{
    if (*whenOver) {
        (*whenOver)();
    }
}

void EndLife()
{
    throw LifeEnd{};
}

void EndProgram()
{
    if (!*programEnded) {
        static SilentFrontEnd silence;
        FrontEnd& windows = Windows();
        *programEnded = true;
        ConnectWindows(silence);
        windows.EndProgram();
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
