#include "game/entry.h"

#include <exception>

#include "core/port.h"
#include "core/routine.h"
#include "core/traps.h"
#include "core/unwinding.h"
#include "game/clock.h"
#include "game/newgame.h"

namespace torvenhall
{

namespace
{

/// Runs a body and lets nothing out of it; true when a life ended in it.
bool LifeEndsIn(const std::function<void()>& body)
{
    try {
        body();
    } catch (const LifeEnd&) {
        return true;
    } catch (const Abandoned&) {
    } catch (const RuntimeError&) {
        // A window's handler skips what fails.
    } catch (const std::exception&) {
        // The same for what the language's own library throws.
    }
    return false;
}

void Live(Entry entry, const std::function<void()>& body)
{
    BeginRoutine(entry);
    if (LifeEndsIn(body)) {
        LifeEndsIn(NewGame);
    }
}

void Enter(const std::function<void()>& routine)
{
    if (ProgramHasEnded()) {
        return;
    }
    const Waiting outer; // a routine that causes another one goes on as itself
    Windows().Run(routine);
}

} // namespace

void EnterRules(const std::function<void()>& handler)
{
    Enter([handler] { Live(Entry::Handler, handler); });
}

void EnterTick()
{
    Enter([] { Live(Entry::Tick, ClockTick); });
}

} // namespace torvenhall
