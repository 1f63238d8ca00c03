// The clock: a tick at each speed, a day's events, and years of them.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <ctime>

#include "bench/rules/floors.h"
#include "bench/rules/quietplayer.h"
#include "core/GameState.h"
#include "core/shown.h"
#include "events/basEvents.h"
#include "events/family.h"
#include "game/clock.h"

namespace torvenhall::bench
{

namespace
{

constexpr int LastHour = 22; // the next one could begin a day

void StayInTheDay()
{
    if (GameState.GameTime.hour >= LastHour) {
        GameState.GameTime.hour = 0;
    }
}

void Tick(benchmark::State& state)
{
    const RulesLife life;
    SetGameSpeed(static_cast<std::int16_t>(state.range(0)));
    for (auto _ : state) {
        ClockTick();
        benchmark::DoNotOptimize(ShownAt(Label::lblTime).text.data());
        StayInTheDay();
    }
}
BENCHMARK(Tick)->Arg(15)->Arg(30)->Arg(60);

void TickFloor(benchmark::State& state)
{
    FloorClock clock(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        clock.Tick();
        benchmark::DoNotOptimize(clock);
    }
}
BENCHMARK(TickFloor)->Arg(15)->Arg(30)->Arg(60);

/// Dice that cost nothing, and nobody who looks at the label.
void TickAlone(benchmark::State& state)
{
    RulesLife life;
    Connect({&life.player, &life.loaded, &life.player});
    for (auto _ : state) {
        ClockTick();
        StayInTheDay();
    }
}
BENCHMARK(TickAlone);

void TickAloneFloor(benchmark::State& state)
{
    FloorClock clock(30);
    for (auto _ : state) {
        clock.Advance();
        benchmark::DoNotOptimize(clock);
    }
}
BENCHMARK(TickAloneFloor);

void Day(benchmark::State& state)
{
    const RulesLife life;
    for (auto _ : state) {
        DailyEvents();
        RulesLife::Wellbeing();
    }
}
BENCHMARK(Day);

/// Four draws, the wage and the wear, each shown.
void DayFloor(benchmark::State& state)
{
    FloorClock clock(30);
    FloorLabel label;
    for (auto _ : state) {
        clock.Tick();
        for (int i = 0; i < 4; ++i) {
            benchmark::DoNotOptimize(clock.Draw() % 51);
        }
        for (int* statistic : {&clock.money, &clock.happy, &clock.health, &clock.food}) {
            for (int i = 0; i < 2; ++i) { // the wear, and being well again
                *statistic += i == 0 ? -1 : 1;
                label.Clear();
                label.AddNumber(static_cast<unsigned>(*statistic), 4);
                benchmark::DoNotOptimize(label);
            }
        }
    }
}
BENCHMARK(DayFloor);

void BeginWorkingMarriedLife()
{
    GameState.WifeFound = GameState.Married = True;
    GameState.Sons = 1;
    GameState.Daughters = 0; // nobody has hundreds of children
    GameState.CurrWork = 5;
    GameState.WorkPay = 10;
    ShowFamily();
    SetGameSpeed(30);
}

/// From one New Year to the next; nobody dies of it.
void LiveAYear()
{
    const auto year = GameState.GameDate.year();
    while (GameState.GameDate.year() == year) {
        if (GameState.GameTime == TimeOfDay{}) {
            RulesLife::Wellbeing();
            BeginWorkingMarriedLife();
        }
        EnterTick();
    }
}

void Year(benchmark::State& state)
{
    const RulesLife life;
    BeginWorkingMarriedLife();
    for (auto _ : state) {
        GameState.GameDate = FirstDay;
        LiveAYear();
    }
}
BENCHMARK(Year)->Unit(benchmark::kMicrosecond);

void YearFloor(benchmark::State& state)
{
    FloorClock clock(30);
    for (auto _ : state) {
        for (int tick = 0; tick < 365 * 48; ++tick) {
            clock.Tick();
            benchmark::DoNotOptimize(clock);
        }
    }
}
BENCHMARK(YearFloor)->Unit(benchmark::kMicrosecond);

/// The processor's seconds so far: others at work do not count.
double ProcessorSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

/// The first and the last years of five thousand that are lived in a row, in
/// the counters, seconds a year.
void FiveThousandYears(benchmark::State& state)
{
    constexpr int years = 5000, sample = 100;
    for (auto _ : state) {
        const RulesLife life;
        BeginWorkingMarriedLife();
        std::array<double, years> took{};
        for (double& year : took) {
            const double began = ProcessorSeconds();
            LiveAYear();
            year = ProcessorSeconds() - began;
        }
        const auto middle = [](auto first) {
            std::nth_element(first, first + sample / 2, first + sample);
            return *(first + sample / 2);
        };
        state.counters["first"] = middle(took.begin());
        state.counters["last"] = middle(took.end() - sample);
    }
}
BENCHMARK(FiveThousandYears)->Iterations(1)->Unit(benchmark::kSecond);

void Family(benchmark::State& state)
{
    const RulesLife life;
    BeginWorkingMarriedLife();
    for (auto _ : state) {
        ShowFamily();
    }
}
BENCHMARK(Family);

void FamilyFloor(benchmark::State& state)
{
    FloorLabel label;
    int sons = 1, daughters = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(sons);
        benchmark::DoNotOptimize(daughters);
        label.Clear();
        label.Add("PRST:");
        label.AddNumber(static_cast<unsigned>(sons), 1);
        label.Add(":");
        label.AddNumber(static_cast<unsigned>(daughters), 1);
        benchmark::DoNotOptimize(label);
    }
}
BENCHMARK(FamilyFloor);

} // namespace

} // namespace torvenhall::bench
