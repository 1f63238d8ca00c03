#include "core/port.h"

namespace torvenhall
{

namespace
{

Ports connected;

} // namespace

void Connect(const Ports& ports)
{
    connected = ports;
}

void ConnectWindows(FrontEnd& windows)
{
    connected.frontEnd = &windows;
}

FrontEnd& Windows()
{
    return *connected.frontEnd;
}

float Rnd()
{
    return connected.dice->Rnd();
}

void Randomize(double value)
{
    connected.dice->Randomize(value);
}

void Randomize()
{
    connected.dice->Randomize();
}

double WallSeconds()
{
    return connected.clock->Seconds();
}

} // namespace torvenhall
