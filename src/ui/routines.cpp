#include "ui/routines.h"

#include <boost/context/fiber.hpp>
#include <boost/context/protected_fixedsize_stack.hpp>

#include <algorithm>
#include <optional>
#include <utility>

#ifdef TORVENHALL_SANITIZE
#include <sanitizer/asan_interface.h>
#include <sanitizer/common_interface_defs.h>
#endif

namespace torvenhall
{

namespace
{

namespace context = boost::context;

// A window may be made and its picture decoded on it. Only pages in use cost
// memory.
constexpr std::size_t StackBytes = 1U << 20U;

/// Keeps one stack that is free: most routines, each tick's for one, end before
/// the next begins.
class Stacks
{
public:
    context::stack_context allocate()
    {
        if (spare) {
            return *std::exchange(spare, std::nullopt);
        }
        return fresh.allocate();
    }
    void deallocate(context::stack_context& stack)
    {
        if (!spare) {
            spare = stack;
        } else {
            fresh.deallocate(stack);
        }
    }

private:
    context::protected_fixedsize_stack fresh{StackBytes};
    inline static std::optional<context::stack_context> spare;
};

/// The address sanitizer wants to know each change of stacks.
class Switch
{
public:
    /// To the stack that ends below `bottom + size`.
    Switch([[maybe_unused]] const void* bottom, [[maybe_unused]] std::size_t size)
    {
#ifdef TORVENHALL_SANITIZE
        __sanitizer_start_switch_fiber(&fakeStack, bottom, size);
#endif
    }
    /// On the stack that the last change has led to; where it came from.
    void Arrived([[maybe_unused]] const void** bottom, [[maybe_unused]] std::size_t* size) const
    {
#ifdef TORVENHALL_SANITIZE
        __sanitizer_finish_switch_fiber(fakeStack, bottom, size);
#endif
    }

private:
    [[maybe_unused]] void* fakeStack = nullptr;
};

} // namespace

struct Routines::Routine {
    context::fiber inside;  ///< the routine, while it waits
    context::fiber outside; ///< who runs it, while it runs
    const void* stack = nullptr;
    std::size_t size = 0;
    const void* outerStack = nullptr;
    std::size_t outerSize = 0;
    int waits = 0;      ///< so far
    bool asleep = true; ///< the last wait has not ended
};

Routines::Routines() = default;
Routines::~Routines() = default;

void Routines::Run(const std::function<void()>& body)
{
    const auto routine = std::make_shared<Routine>();
    Stacks allocator;
    const context::stack_context memory = allocator.allocate();
    routine->size = memory.size;
    routine->stack = static_cast<const char*>(memory.sp) - memory.size;
    // A copy of the body: the routine may outlive the call that began it.
    const auto enter = [body, self = routine.get()](context::fiber&& caller) {
        self->outside = std::move(caller);
#ifdef TORVENHALL_SANITIZE
        __sanitizer_finish_switch_fiber(nullptr, &self->outerStack, &self->outerSize);
#endif
        body();
#ifdef TORVENHALL_SANITIZE
        __sanitizer_start_switch_fiber(nullptr, self->outerStack, self->outerSize);
#endif
        return std::move(self->outside);
    };
    routine->inside =
        context::fiber(std::allocator_arg, context::preallocated(memory.sp, memory.size, memory),
                       allocator, enter);
    Continue(routine);
}

void Routines::Continue(const std::shared_ptr<Routine>& routine)
{
    std::erase(waiting, routine);
    const auto outer = std::exchange(running, routine);
    Switch change(routine->stack, routine->size);
    routine->inside = std::move(routine->inside).resume();
    change.Arrived(nullptr, nullptr);
    running = outer;
    if (routine->inside) {
        waiting.push_back(routine);
        return;
    }
#ifdef TORVENHALL_SANITIZE
    // Its first functions never return, and what marks their variables would
    // stay in whatever is mapped there next.
    __asan_unpoison_memory_region(routine->stack, routine->size);
#endif
}

void Routines::Await(const std::function<void(const Resume& resume)>& begin)
{
    const std::shared_ptr<Routine> own = running;
    Q_ASSERT(own); // the event loop itself has nothing that could be suspended
    own->asleep = true;
    begin([this, woken = std::weak_ptr(own), wait = ++own->waits] { Wake(woken, wait); });
    Switch change(own->outerStack, own->outerSize);
    own->outside = std::move(own->outside).resume();
    change.Arrived(&own->outerStack, &own->outerSize);
}

void Routines::Wake(const std::weak_ptr<Routine>& woken, int wait)
{
    const std::shared_ptr<Routine> routine = woken.lock();
    if (!routine || routine->waits != wait || !std::exchange(routine->asleep, false)) {
        return;
    }
    if (!running) {
        Continue(routine);
        return;
    }
    const auto later = [this, woken, wait] {
        // Unwinding may have been quicker.
        const auto found = woken.lock();
        if (found && found->waits == wait && found->inside) {
            Continue(found);
        }
    };
    QMetaObject::invokeMethod(&queue, later, Qt::QueuedConnection);
}

void Routines::Unwind()
{
    while (!waiting.empty()) {
        const auto last = waiting.back();
        last->asleep = false;
        Continue(last);
    }
}

} // namespace torvenhall
