#include "app/samplelives.h"

#include "activities/work.h"
#include "core/basGame.h"
#include "core/shown.h"
#include "core/timelabel.h"
#include "equipment/basEquipment.h"
#include "equipment/catalogue.h"
#include "equipment/hardware.h"
#include "equipment/software.h"
#include "events/family.h"

namespace torvenhall
{

namespace
{

constexpr std::string_view LongMessage =
    "Сообщение от майора милиции Treivaib: Сынок, ты попал на такие налоги!!!! Ты вчера вывел свою "
    "жену под Ниогарский Водопад, т.к. она тебе изменила, но чтобы ты её не убил вооще, она тебе "
    "дала $150 (какая жена твоя богатая)!!!";

constexpr Life Lives[]{
    {"beginner", 15, 25, 75, 40, 20, 1, 0, false, 0, 0, 0, 0, 1, 1, 2001, 9, ""},
    {"programmer", 4210, 62, 48, 70, 90, 5, 8, true, 1, 1, 4, 3, 18, 1, 2002, 23,
     "Вам пришла зарплата"},
    {"danger", 38, -60, -24, -34, 45, 2, 4, false, 0, 0, 2, 2, 28, 10, 2001, 18, LongMessage},
    {"owner", 12450, 90, 95, 85, 100, 8, 12, true, 1, 2, 11, 9, 12, 7, 2004, 13, ""},
};

} // namespace

std::span<const Life> SampleLives()
{
    return Lives;
}

void Live(const Life& life)
{
    SetMoney(life.money);
    SetHappy(life.happy);
    SetEatLevel(life.eat);
    SetHealth(life.health);
    SetIntelligence(life.intelligence);
    SetEducation(life.rank);
    SetWork(life.job);
    GameState.WifeFound = GameState.Married = life.married ? True : False;
    GameState.Sons = life.sons;
    GameState.Daughters = life.daughters;
    ShowFamily();
    for (int category = 0; category < HardwareCategories; ++category) {
        int part = life.hardware;
        while (GetHardwareName(category, part).empty()) {
            --part;
        }
        InstallHardware(category, part, false);
    }
    for (int category = 0; category < SoftwareCategories; ++category) {
        int program = life.software;
        while (GetSoftwareName(category, program).empty()) {
            --program;
        }
        SoftwareField(category) = program;
        ShowSoftware(category);
    }
    GameState.GameDate = MakeDate(life.day, life.month, life.year);
    GameState.GameTime = MakeTime(life.hour, 30);
    SetSoftSize(40 * life.software);
    ShowTime();
    ShowLabel(Label::lblMessage, life.message);
}

} // namespace torvenhall
