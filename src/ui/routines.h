#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace torvenhall
{

/// Runs the rules' routines, each on a stack of its own: one that waits gives
/// way to the event loop and to the others, and goes on when its own wait is
/// over, in whatever order they began. No event loop is ever nested.
class Routines
{
public:
    /// Ends a wait; a second call does nothing.
    using Resume = std::function<void()>;

    Routines();
    ~Routines();
    Routines(const Routines&) = delete;
    Routines& operator=(const Routines&) = delete;

    /// Runs a routine, which must not throw. Returns when it has ended or
    /// waits.
    void Run(const std::function<void()>& body);
    /// Suspends the running routine. `begin` starts what it waits for and is
    /// given what ends the wait; resumed by a routine, it goes on after that
    /// one has given way.
    void Await(const std::function<void(const Resume& resume)>& begin);
    /// Ends every wait there is, so that nothing is left on any stack.
    void Unwind();
    /// How many wait.
    std::size_t Waiting() const { return waiting.size(); }

private:
    struct Routine;
    void Continue(const std::shared_ptr<Routine>& routine);
    void Wake(const std::weak_ptr<Routine>& woken, int wait);

    QObject queue;
    std::vector<std::shared_ptr<Routine>> waiting;
    std::shared_ptr<Routine> running;
};

} // namespace torvenhall
