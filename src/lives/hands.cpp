#include "lives/hands.h"

#include <chrono>

#include "activities/education.h"
#include "activities/work.h"
#include "core/basGame.h"
#include "equipment/basEquipment.h"
#include "equipment/catalogue.h"
#include "equipment/shops.h"

namespace torvenhall::lives
{

namespace
{

/// Presses a button that begins or ends an attendance, unless it is disabled.
void Attend(Int16 Game::*attendance, bool wanted, bool isDone, void (*toggle)())
{
    if (((GameState.*attendance) != False) != wanted && !isDone) {
        toggle();
    }
}

} // namespace

int PriceOf(const ServiceWindow& window, std::size_t service)
{
    return window.services[service].price;
}

bool Buy(const ServiceWindow& window, std::size_t service)
{
    if (!CanAfford(window, window.services[service])) {
        return false;
    }
    BuyService(window, service);
    return true;
}

void TakeBestJob()
{
    for (int job = TopJob; GameState.CurrWork < job; --job) {
        if (AreMet(At(Jobs, job).demands)) {
            ApplyForJob(job - 1);
        }
    }
}

void AttendSchool()
{
    Attend(&Game::AttendSchool, true, LoadEducation().schoolDone, ToggleSchool);
}

void AttendCourses()
{
    Attend(&Game::AttendCourses, true, LoadEducation().coursesDone, ToggleCourses);
}

void LeaveSchool()
{
    Attend(&Game::AttendSchool, false, LoadEducation().schoolDone, ToggleSchool);
}

void LeaveCourses()
{
    Attend(&Game::AttendCourses, false, LoadEducation().coursesDone, ToggleCourses);
}

int PriceOfNext(int category)
{
    return GetHardwarePrice(category, HardwareField(category) + 1).value();
}

bool BuyNext(int category, int leaving)
{
    const int price = PriceOfNext(category);
    if (price == 0 || GameState.Money < price + leaving) {
        return false;
    }
    BuyNextHardware(category);
    return true;
}

void ChooseLevel(int level)
{
    if (GameState.GameLevel != level) {
        Int16 chosen = level;
        SetGameLevel(chosen);
    }
}

bool MonthEnds()
{
    const std::chrono::sys_days tomorrow =
        std::chrono::sys_days{GameState.GameDate} + std::chrono::days{1};
    return Date{tomorrow}.month() != GameState.GameDate.month();
}

} // namespace torvenhall::lives
