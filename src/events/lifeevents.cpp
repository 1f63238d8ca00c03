#include "events/basEvents.h"

#include <array>
#include <string>

#include "activities/work.h"
#include "core/basGame.h"
#include "core/changes.h"
#include "core/draw.h"
#include "core/traps.h"
#include "core/waits.h"
#include "events/family.h"
#include "events/message.h"

namespace torvenhall
{

namespace
{

using Changes = std::array<Change, 3>;
/// Hard, normal, easy.
using ByLevel = std::array<Changes, 3>;

constexpr ByLevel DismissalChanges{{
    {{{Stat::Health, -30}, {Stat::EatLevel, -60}}},
    {{{Stat::Health, -15}, {Stat::EatLevel, -20}}},
    {{{Stat::Health, -5}, {Stat::EatLevel, -10}}},
}};
constexpr ByLevel BurglaryChanges{{
    {{{Stat::Happy, -50}, {Stat::Health, -30}, {Stat::EatLevel, -40}}},
    {{{Stat::Happy, -20}, {Stat::Health, -15}, {Stat::EatLevel, -20}}},
    {{{Stat::Happy, -10}, {Stat::Health, -5}, {Stat::EatLevel, -10}}},
}};
// That satiety rises on the easier levels is meant.
constexpr ByLevel AssaultChanges{{
    {{{Stat::Happy, -60}, {Stat::Health, -40}, {Stat::EatLevel, -5}}},
    {{{Stat::Happy, -45}, {Stat::Health, -30}, {Stat::EatLevel, +2}}},
    {{{Stat::Happy, -25}, {Stat::Health, -15}, {Stat::EatLevel, +10}}},
}};
constexpr ByLevel WearChanges{{
    {{{Stat::Happy, -5}, {Stat::EatLevel, -10}, {Stat::Health, -5}}},
    {{{Stat::Happy, -5}, {Stat::EatLevel, -5}, {Stat::Health, -5}}},
    {{{Stat::Happy, -1}, {Stat::EatLevel, -5}, {Stat::Health, -1}}},
}};
/// The part of the money that burglars take, by level.
constexpr std::array BurglaryDivisors{4, 10, 50};

constexpr int TopJob = 12;
constexpr int TopRank = 8;
constexpr int FullIntelligence = 100;
constexpr int MostChildren = 3;

template <class Table>
const auto& OfLevel(const Table& table)
{
    return table.at(static_cast<std::size_t>(GameState.GameLevel.value()));
}

void Dismissal()
{
    if (GameState.CurrWork > 0 && GameState.CurrWork < TopJob) {
        ShowMessage("Сообщение от Вашего босса: Уважаемый " + GameState.PlayerName +
                    "! Вы уволены!!!");
        SetWork(0);
    }
    ApplyAll(OfLevel(DismissalChanges));
}

void Burglary()
{
    // The level may change while the message is typed; the event keeps its own.
    const int divisor = OfLevel(BurglaryDivisors);
    const Changes& changes = OfLevel(BurglaryChanges);
    const auto money = [] { return static_cast<double>(GameState.Money.value()); };
    // The sum named and the sum taken are rounded each on its own.
    ShowMessage("Сообщение от Майора Милиции Dutaig.: Мне очень жаль, но к вам пробрались "
                "грабители и стащили " +
                DecimalOf(Round(money() / divisor)) + " долларов.");
    SetMoney(ToInt32(Round(money() - money() / divisor)));
    ApplyAll(changes);
}

void Birth()
{
    if (GameState.Sons + GameState.Daughters < MostChildren && GameState.WifeFound == True &&
        GameState.Married == True) {
        ChildBirth();
    }
}

void Assault()
{
    ShowMessage("Сообщение от хирурга Skoska.: Кто-то напал на Вас и сломал ребро!");
    ApplyAll(OfLevel(AssaultChanges));
}

void Wife()
{
    if (GameState.WifeFound == False) {
        Marry();
    } else if (GameState.Married == True) {
        Divorce();
    }
}

struct LifeEvent {
    int draw;
    void (*routine)();
};
constexpr std::array RareEvents{
    LifeEvent{4, Dismissal}, LifeEvent{6, Burglary}, LifeEvent{8, Birth},
    LifeEvent{10, Assault},  LifeEvent{24, Wife},
};

/// A rare event, or else the ordinary day's wear.
void RunLifeEvent(Int16 draw)
{
    for (const LifeEvent& event : RareEvents) {
        if (draw == event.draw) {
            event.routine();
            return;
        }
    }
    ApplyAll(OfLevel(WearChanges));
}

void MonthOfCourses()
{
    if (GameState.AttendCourses != True || GameState.Education >= TopRank) {
        return;
    }
    Apply({Stat::Money, -75});
    SetEducation(GameState.Education + 1);
    if (GameState.Education == TopRank) {
        MsgBox("Вы прошли компьютерные курсы!", "Доцент", Icon::Information);
        GameState.AttendCourses = False;
        Windows().DisableButton(Window::frmEducation, "Command2");
    } else {
        MsgBox("Поздравляем. Теперь Вы -- " + std::string(ShowStatus(GameState.Education)),
               "Доцент", Icon::Information);
    }
}

/// The attendance stays: nothing is charged any more at full intelligence.
void MonthOfSchool()
{
    if (GameState.AttendSchool != True || GameState.Intelligence >= FullIntelligence) {
        return;
    }
    Apply({Stat::Money, -50});
    SetIntelligence(GameState.Intelligence + 10);
    if (GameState.Intelligence == FullIntelligence) {
        Windows().DisableButton(Window::frmEducation, "Command1");
        MsgBox("Поздравляем! Вы имеете два высших образования!!!", "", Icon::Information);
    }
}

void MonthsEnd()
{
    SetHappy(GameState.Happy + GameState.SoftGames);
    if (GameState.Alimony > 0) {
        SetMoney(GameState.Money - GameState.Alimony);
    }
    MonthOfCourses();
    MonthOfSchool();
}

} // namespace

void LifeEvents(Int16 monthEnd)
{
    Trapped([&] {
        Randomize(Rnd() * Rnd());
        RunLifeEvent(Draw(25));
        if (monthEnd != 0) {
            MonthsEnd();
        }
    });
}

} // namespace torvenhall
