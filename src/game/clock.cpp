#include "game/clock.h"

#include <optional>

#include "core/GameState.h"
#include "core/life.h"
#include "core/timelabel.h"
#include "core/traps.h"
#include "core/waits.h"
#include "equipment/basEquipment.h"
#include "events/basEvents.h"
#include "network/network.h"

namespace torvenhall
{

namespace
{

constexpr int TopJob = 12;
constexpr int CompleteComputer = 59;

/// The clock's reading after a tick.
struct Reading {
    Int16 hour, minute;
    bool hourPassed = false;
};

/// Adds the speed to the time of day. One hour at most is carried, whatever
/// the speed; an overflowing sum leaves the time as it is.
Reading NextReading()
{
    const Int16 step = GameState.GameSpeed;
    Reading next{GameState.GameTime.hour, GameState.GameTime.minute};
    TrappedSilently([&] {
        if (next.minute + step < 60) {
            next.minute = next.minute + step;
        } else {
            next.minute = next.minute - 60 + step;
            next.hour = next.hour + 1;
            next.hourPassed = true;
        }
    });
    return next;
}

/// The time of day, or nothing when there is no such time: the next day.
std::optional<TimeOfDay> TimeOf(const Reading& reading)
{
    std::optional<TimeOfDay> time;
    TrappedSilently([&] { time = MakeTime(reading.hour.value(), reading.minute.value()); });
    return time;
}

/// Day, month and year as the clock counts them; they need not be a real day.
struct CountedDay {
    int day, month, year;
};

bool StoreDate(const CountedDay& counted)
{
    return TrappedSilently(
        [&] { GameState.GameDate = MakeDate(counted.day, counted.month, counted.year); });
}

/// Goes to the next month's first day; December ends the year. The month's
/// charges of a December are due only where its 31st ends it.
void NextMonth(CountedDay& counted)
{
    counted.day = 1;
    if (counted.month != 12) {
        ++counted.month;
    } else {
        counted.month = 1;
        ++counted.year;
        PayTaxes();
    }
}

/// The date moves on only after the day's events, and a life that ends in
/// them keeps its last date.
void BeginDay()
{
    const Running day(Running::What::Day);
    const Date today = GameState.GameDate;
    CountedDay counted{static_cast<int>(static_cast<unsigned>(today.day())),
                       static_cast<int>(static_cast<unsigned>(today.month())),
                       static_cast<int>(today.year())};
    // Minutes carried past midnight are dropped on purpose.
    GameState.GameTime = {};
    DailyEvents();
    if (counted.day < 31) {
        ++counted.day;
    } else {
        LifeEvents(True);
        NextMonth(counted);
    }
    if (!StoreDate(counted)) {
        const bool december = counted.month == 12;
        NextMonth(counted);
        if (!december) {
            LifeEvents(True);
        }
        StoreDate(counted);
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

void Win()
{
    {
        const Running lastBox(Running::What::LastBox);
        MsgBox("Вы прошли всю игру", "Наконец-то", Icon::Exclamation);
    }
    EndLife();
}

bool MustNotTick()
{
    return Running::Now(Running::What::LastBox) || Running::Now(Running::What::Load) ||
           Running::Now(Running::What::BoxUnderTick);
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
    const Reading next = NextReading();
    const std::optional<TimeOfDay> time = TimeOf(next);
    if (!time && Running::Now(Running::What::Day)) {
        return; // a day is never processed inside another
    }
    if (next.hourPassed) {
        NetworkHourTick();
    }
    if (time) {
        GameState.GameTime = *time;
    } else {
        BeginDay();
    }
    if (HasWon()) {
        Win();
    }
    ShowTime();
}

void PauseGame()
{
    Windows().EnableTimer(false);
    Windows().OpenWindow(Window::frmPause);
}

void ResumeGame()
{
    Windows().CloseWindow(Window::frmPause);
    Windows().EnableTimer(true);
}

} // namespace torvenhall
