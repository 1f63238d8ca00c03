#include "game/clock.h"

#include <cstdint>
#include <utility>

#include "activities/work.h"
#include "core/playclock.h"
#include "core/running.h"
#include "core/timelabel.h"
#include "core/traps.h"
#include "core/unwinding.h"
#include "core/waits.h"
#include "equipment/basEquipment.h"
#include "equipment/hardware.h"
#include "events/basEvents.h"
#include "network/network.h"

namespace torvenhall
{

namespace
{

/// The time of day after a tick; there need not be such a time.
struct Reading {
    TimeOfDay time;
    bool hourPassed = false;
};

/// Adds the speed to the time of day. One hour at most is carried, whatever
/// the speed; a speed beyond all sense leaves the time as it is.
Reading NextReading()
{
    const auto [hour, minute] = GameState.GameTime;
    const int sum = minute + GameState.GameSpeed.value();
    if (!std::in_range<std::int16_t>(sum)) {
        return {GameState.GameTime};
    }
    return sum < 60 ? Reading{{hour, sum}} : Reading{{hour + 1, sum - 60}, true};
}

/// The date moves on only after the day's events, and a life that ends in
/// them keeps its last date.
void BeginDay()
{
    const Running day(Running::What::Day);
    const Date today = GameState.GameDate;
    const Date tomorrow{std::chrono::sys_days{today} + std::chrono::days{1}};
    // Minutes carried past midnight are dropped on purpose.
    GameState.GameTime = {};
    ShowTime(); // the first event may be a box, under which nothing ticks
    DailyEvents();
    if (tomorrow.month() != today.month()) {
        LifeEvents(True);
    }
    if (tomorrow.year() != today.year()) {
        PayTaxes();
    }
    if (today < LastDay) {
        GameState.GameDate = tomorrow;
    } else {
        // Looking for a month that begins, the clock ends this one again.
        LifeEvents(True);
    }
}

/// An overflowing score, from an edited file, is no win and, as anything that
/// fails in a tick, nobody's box.
bool HasWon()
{
    bool won = false;
    TrappedSilently([&] {
        won = GameState.Money > GameState.WinMoney && GameState.CurrWork == TopJob &&
              HardwareScore() >= CompleteComputer;
    });
    return won;
}

bool MustNotTick()
{
    return Running::Now(Running::What::LastBox) || Running::Now(Running::What::Load) ||
           Running::Now(Running::What::BoxUnderTick) || Running::Now(Running::What::Closing);
}

} // namespace

void ClockTick()
{
    if (MustNotTick()) {
        return;
    }
    if (Running::Now(Running::What::NewGame)) {
        ShowTime();
        return;
    }
    Randomize();
    const auto [time, hourPassed] = NextReading();
    if (!time.ok() && Running::Now(Running::What::Day)) {
        return; // a day is never processed inside another
    }
    if (hourPassed) {
        NetworkHourTick();
    }
    if (time.ok()) {
        GameState.GameTime = time;
    } else {
        BeginDay();
    }
    if (HasWon()) {
        LastBox("Вы прошли всю игру", "Наконец-то", Icon::Exclamation);
    }
    ShowTime();
}

void PauseGame()
{
    SetPaused(true);
    Windows().EnableTimer(false);
    Windows().OpenWindow(window::frmPause);
}

void ResumeGame()
{
    Windows().CloseWindow(window::frmPause);
    Windows().EnableTimer(true);
    SetPaused(false);
}

} // namespace torvenhall
