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

void BeginRoutine(Entry entry)
{
    *current = entry;
}

Waiting::Waiting() : own(*current) {}

Waiting::~Waiting()
{
    *current = own;
}

} // namespace torvenhall
