#pragma once

#include <new>
#include <string>
#include <utility>

#include "system/errors.h"

namespace torvenhall
{

/// Shows the error box for a run-time error, with the file's path if there is
/// one.
void ReportError(int number, const std::string& path = {});

/// Runs a body; the run-time error that ended it, or number 0.
/// Ends of lives and of the program pass through.
template <class Body>
RuntimeError ErrorOf(Body&& body)
{
    try {
        std::forward<Body>(body)();
    } catch (const RuntimeError& caught) {
        return caught;
    } catch (const std::bad_alloc&) {
        return {error::OutOfMemory};
    }
    return {};
}

/// The trap of a rules procedure: an error abandons the body and is reported;
/// effects already applied stay and the caller goes on. True when the body ran
/// to its end.
template <class Body>
bool Trapped(Body&& body)
{
    const RuntimeError caught = ErrorOf(std::forward<Body>(body));
    if (caught.number != 0) {
        ReportError(caught.number, caught.path);
    }
    return caught.number == 0;
}

/// The trap of the clock and what it drives: an error abandons the body and
/// nobody is told. True when the body ran to its end.
template <class Body>
bool TrappedSilently(Body&& body)
{
    return ErrorOf(std::forward<Body>(body)).number == 0;
}

} // namespace torvenhall
