#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <vector>

#include "ui/QtWallClock.h"

namespace torvenhall
{

/// A clock that moves in whole milliseconds and only when it is told to, and
/// with it all that the game does by time: the pauses of the rules and the
/// windows' own timers, each at its exact moment and in a fixed order. So what
/// happens depends on nothing but when the player does what.
class SteppedClock final : public QObject, public GameClock
{
public:
    SteppedClock();

    double Seconds() const override { return static_cast<double>(now) / 1000; }
    qint64 Milliseconds() const { return now; }
    void CallAfter(double seconds, const std::function<void()>& call) override;

    /// Lets the time pass to that moment, not before the present one.
    void MoveTo(qint64 moment);
    /// From now on it goes with the real time.
    void Follow();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Call {
        qint64 due;
        std::function<void()> call;
    };
    struct Adopted {
        QPointer<QTimer> timer;
        int id;
        qint64 due;
    };

    void AdoptTimers();
    bool FireNext(qint64 until);

    qint64 now = 0;
    std::vector<Call> calls;
    std::vector<Adopted> timers;
    const QTimer* firing = nullptr;
    QTimer step;
    QElapsedTimer sinceStep;
};

} // namespace torvenhall
