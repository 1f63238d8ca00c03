#include "core/routine.h"

#include "core/remembered.h"

namespace torvenhall
{

namespace
{

Remembered<Entry> current;

} // namespace

Entry CurrentEntry()
{
    return *current;
}

Routine::Routine(Entry entry) : outer(*current)
{
    *current = entry;
}

Routine::~Routine()
{
    *current = outer;
}

Waiting::Waiting() : own(*current) {}

Waiting::~Waiting()
{
    *current = own;
}

} // namespace torvenhall
