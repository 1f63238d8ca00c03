#include "core/running.h"

#include "core/remembered.h"
#include "core/unwinding.h"

namespace torvenhall
{

namespace
{

struct OfLife {
    int life = 0;
    EnumArray<Running::What, int> count{};
};
Remembered<OfLife> running;

} // namespace

Running::Running(What something) : what(something), life(LifeNumber())
{
    if (running->life != life) {
        *running = {life, {}};
    }
    ++running->count[what];
}

Running::~Running()
{
    if (running->life == life) {
        --running->count[what];
    }
}

bool Running::Now(What what)
{
    return running->count[what] > 0 && running->life == LifeNumber();
}

} // namespace torvenhall
