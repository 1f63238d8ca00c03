#include "events/basEvents.h"

#include <string>

#include "activities/education.h"
#include "core/basGame.h"
#include "core/changes.h"
#include "core/draw.h"
#include "core/shown.h"
#include "core/traps.h"
#include "core/waits.h"
#include "events/events.h"

namespace torvenhall
{

namespace
{

/// A level's yearly taxes: percent of the money, loss of mood.
struct TaxRate {
    int percent, mood;
};
constexpr ByLevel<TaxRate> TaxRates{{{50, 20}, {25, 10}, {10, 5}}};

void MonthOfCourses()
{
    if (GameState.AttendCourses != True || GameState.Education >= TopRank) {
        return;
    }
    Apply({Stat::Money, -CoursesProgramme.price});
    SetEducation(GameState.Education + CoursesProgramme.gain);
    if (GameState.Education == TopRank) {
        MsgBox("Вы прошли компьютерные курсы!", "Доцент", Icon::Information);
        GameState.AttendCourses = False;
        Windows().DisableButton(window::frmEducation, "Command2");
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
    Apply({Stat::Money, -SchoolProgramme.price});
    SetIntelligence(GameState.Intelligence + SchoolProgramme.gain);
    if (GameState.Intelligence == FullIntelligence) {
        Windows().DisableButton(window::frmEducation, "Command1");
        MsgBox("Поздравляем! Вы имеете два высших образования!!!", "", Icon::Information);
    }
}

void EndMonth()
{
    SetHappy(GameState.Happy + GameState.SoftGames);
    if (GameState.Alimony > 0) {
        SetMoney(GameState.Money - GameState.Alimony);
    }
    MonthOfCourses();
    MonthOfSchool();
}

} // namespace

void DailyEvents()
{
    TrappedSilently([] {
        Randomize();
        const Int16 draw = Draw(HighestDailyDraw);
        Happen(When::Daily, draw);
        if (GameState.Married == True) {
            Happen(When::Married, draw);
        }
        SetMoney(GameState.Money + GameState.WorkPay);
        LifeEvents(False);
    });
}

void LifeEvents(Int16 monthEnd)
{
    Trapped([&] {
        Randomize(Rnd() * Rnd());
        Happen(When::Rare, Draw(HighestRareDraw));
        if (monthEnd != 0) {
            EndMonth();
        }
    });
}

void PayTaxes()
{
    TrappedSilently([] {
        const TaxRate& rate = OfLevel(TaxRates);
        const double money = GameState.Money.value();
        const double tax = Round(money / 100 * rate.percent);
        // Written at once and left standing, unlike every other message.
        ShowLabel(Label::lblMessage,
                  "Сообщение от Налогового Инспектора: Пора платить налоги!!! Вы заплатили " +
                      DecimalOf(tax) + " долларов");
        Apply({Stat::Happy, -rate.mood});
        SetMoney(ToInt32(money - tax));
    });
}

} // namespace torvenhall
