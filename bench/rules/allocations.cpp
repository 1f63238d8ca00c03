// Counts what a tick asks of the memory, by the real timer's door and with its
// label looked at: nothing. Fails when it does.

#include <cstdio>
#include <cstdlib>
#include <new>

#include "bench/rules/quietplayer.h"
#include "core/GameState.h"
#include "core/shown.h"

static long long asked = 0;

void* operator new(std::size_t size)
{
    ++asked;
    if (void* const memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

int main()
{
    using namespace torvenhall;
    const bench::RulesLife life;
    constexpr int ticks = 40; // no day begins
    SetGameSpeed(30);
    EnterTick();
    static_cast<void>(ShownAt(Label::lblTime));
    const long long before = asked;
    for (int tick = 0; tick < ticks; ++tick) {
        EnterTick();
        static_cast<void>(ShownAt(Label::lblTime));
    }
    const long long made = asked - before;
    std::printf("%lld allocations in %d ticks, until \"%s\"\n", made, ticks,
                ShownAt(Label::lblTime).text.c_str());
    return made == 0 ? 0 : 1;
}
