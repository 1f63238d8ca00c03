#pragma once

#include <QElapsedTimer>

#include "core/port.h"

namespace torvenhall
{

/// The monotonic clock. At a rate of 10 ten of its seconds pass in a real
/// one, which is how tests hurry the waits.
class QtWallClock final : public WallClock
{
public:
    explicit QtWallClock(double newRate = 1) : rate(newRate) { timer.start(); }

    double Seconds() const override
    {
        return static_cast<double>(timer.nsecsElapsed()) * 1e-9 * rate;
    }
    double RealSeconds(double seconds) const { return seconds / rate; }

private:
    QElapsedTimer timer;
    double rate;
};

} // namespace torvenhall
