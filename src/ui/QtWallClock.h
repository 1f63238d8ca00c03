#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <functional>

#include "core/port.h"

namespace torvenhall
{

/// A clock that the windows can wait by.
class GameClock : public WallClock
{
public:
    /// Calls once, from the event loop, when so many of its seconds have passed.
    virtual void CallAfter(double seconds, const std::function<void()>& call) = 0;
};

/// The monotonic clock. At a rate of 10 ten of its seconds pass in a real
/// one, which is how tests hurry the waits.
class QtWallClock final : public GameClock
{
public:
    explicit QtWallClock(double newRate = 1) : rate(newRate) { timer.start(); }

    double Seconds() const override
    {
        return static_cast<double>(timer.nsecsElapsed()) * 1e-9 * rate;
    }
    void CallAfter(double seconds, const std::function<void()>& call) override
    {
        const int milliseconds = static_cast<int>(std::ceil(seconds / rate * 1000));
        QTimer::singleShot(std::max(milliseconds, 0), Qt::PreciseTimer, qApp, call);
    }

private:
    QElapsedTimer timer;
    double rate;
};

} // namespace torvenhall
