#include "app/steppedclock.h"

#include <QApplication>
#include <QTimerEvent>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <utility>

namespace torvenhall
{

namespace
{

constexpr int StepMilliseconds = 10;
// A program that was stopped, or a computer that slept, goes on where it was.
constexpr qint64 LongestStep = 1000;

/// The game's timers belong to its windows; those inside the toolkit's own
/// widgets do not.
QTimer* TimerOfWindow(QObject* object)
{
    auto* timer = qobject_cast<QTimer*>(object);
    const auto* owner = timer ? qobject_cast<QWidget*>(timer->parent()) : nullptr;
    return owner && owner->isWindow() && !timer->isSingleShot() ? timer : nullptr;
}

} // namespace

SteppedClock::SteppedClock()
{
    qApp->installEventFilter(this);
    step.setTimerType(Qt::PreciseTimer);
    connect(&step, &QTimer::timeout, this,
            [this] { MoveTo(now + std::min(sinceStep.restart(), LongestStep)); });
}

void SteppedClock::CallAfter(double seconds, const std::function<void()>& call)
{
    // At least one: who has waited must see that time has passed.
    const auto milliseconds = static_cast<qint64>(std::ceil(seconds * 1000 - 1e-6));
    calls.push_back({now + std::max<qint64>(milliseconds, 1), call});
}

void SteppedClock::MoveTo(qint64 moment)
{
    AdoptTimers();
    while (FireNext(moment)) {
        // What it has caused comes before what comes later.
        QCoreApplication::sendPostedEvents();
        AdoptTimers();
    }
    now = std::max(now, moment);
}

void SteppedClock::Follow()
{
    sinceStep.start();
    step.start(StepMilliseconds);
}

bool SteppedClock::eventFilter(QObject* watched, QEvent* event)
{
    return event->type() == QEvent::Timer && watched != firing && TimerOfWindow(watched);
}

void SteppedClock::AdoptTimers()
{
    std::erase_if(timers, [](const Adopted& each) {
        return !each.timer || !each.timer->isActive() || each.timer->timerId() != each.id;
    });
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        for (QObject* child : window->children()) {
            QTimer* timer = TimerOfWindow(child);
            if (timer && timer->isActive() &&
                std::ranges::none_of(timers, [&](auto& each) { return each.timer == timer; })) {
                timers.push_back({timer, timer->timerId(), now + timer->interval()});
            }
        }
    }
    // The toolkit names its windows in no order.
    std::ranges::stable_sort(timers, {}, [](const Adopted& each) {
        return std::pair(each.due, -each.timer->interval());
    });
}

bool SteppedClock::FireNext(qint64 until)
{
    const auto call = std::ranges::min_element(calls, {}, &Call::due);
    const bool callIsFirst =
        call != calls.end() && (timers.empty() || call->due <= timers.front().due);
    if (callIsFirst) {
        if (call->due > until) {
            return false;
        }
        now = std::max(now, call->due);
        const std::function<void()> body = std::move(call->call);
        calls.erase(call);
        body();
        return true;
    }
    if (timers.empty() || timers.front().due > until) {
        return false;
    }
    now = std::max(now, timers.front().due);
    timers.front().due += timers.front().timer->interval();
    firing = timers.front().timer;
    QTimerEvent event(timers.front().id);
    QCoreApplication::sendEvent(timers.front().timer, &event);
    firing = nullptr;
    return true;
}

} // namespace torvenhall
