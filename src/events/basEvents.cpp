#include "events/basEvents.h"

#include <array>
#include <string>

#include "core/basGame.h"
#include "core/changes.h"
#include "core/draw.h"
#include "core/traps.h"
#include "core/waits.h"
#include "equipment/basEquipment.h"
#include "equipment/catalogue.h"
#include "events/message.h"

namespace torvenhall
{

namespace
{

constexpr int VirusDay = 21;

double MoneyAsReal()
{
    return GameState.Money.value();
}

void StealWallet()
{
    // The message names a hundredth of the money, the charge is its root and
    // the theft does the health good: the game's own rules.
    const double hundredth = Round(MoneyAsReal() / 100);
    ShowMessage("Сообщение от твоей жены: Ты напился, милый, у тебя украли кошелёк с " +
                DecimalOf(SquareRoot(hundredth * hundredth)) + " баксами!!!");
    Apply({Stat::Happy, -15});
    SetMoney(ToInt32(MoneyAsReal() - SquareRoot(hundredth)));
    Apply({Stat::Health, +20});
}

void ThankForAlms()
{
    if (GameState.Happy <= -15) {
        ShowMessage("Сообщение от твоего любимого бомжа: Спасибо, что дал мне $15, я вижу ты "
                    "несчастен и неконтролируешь свои поступки!!!");
        Apply({Stat::Money, -15});
    }
}

void SpillMilk()
{
    if (GameState.Sons + GameState.Daughters > 0) {
        const Int16 category = Draw(HardwareCategories - 1);
        ShowMessage("Сообщение от Вашего ребёнка: Папа, я тут на твой открытый компьютер уранила "
                    "кружку парного молока!!! И искры посыпались с " +
                    std::string(GetHardwareCategoryName(category)) + "!!!");
        InstallHardware(category, 0, false);
        Windows().ReloadWindow(Window::frmHard);
    }
}

/// What a family brings on a day: a message and its changes in order, or a
/// routine of its own.
struct FamilyEvent {
    int draw = 0;
    std::string_view message;
    std::array<Change, 3> changes{};
    void (*routine)() = nullptr;
};

constexpr std::array FamilyEvents{
    FamilyEvent{10,
                "Сообщение от бомжа в мусорке: Твоя жена тебя выгнала на улицу!!!",
                {{{Stat::Happy, -15}, {Stat::EatLevel, -15}, {Stat::Health, -15}}}},
    FamilyEvent{.draw = 15, .message = {}, .routine = StealWallet},
    FamilyEvent{25,
                "Сообщение от твоей жены: Сволочь!!! Где все деньги, всё на своё барахло от интел "
                "копишь!!!",
                {{{Stat::Happy, -10}, {Stat::Health, -10}, {Stat::EatLevel, -5}}}},
    FamilyEvent{29,
                "Сообщение от уборщицы: Старый дурак, ты посмотри что ты на полу сделал, "
                "пьяница!!! С тебя $10!!!",
                {{{Stat::Money, -10}}}},
    FamilyEvent{30,
                "Сообщение от контролёра в трамвае: Ну что браток, помнишь заветную фразу: ''за "
                "безбилетный проезд штраф $15!!!''!!! Плати, сынок!!!",
                {{{Stat::Money, -15}}}},
    FamilyEvent{.draw = 31, .message = {}, .routine = ThankForAlms},
    FamilyEvent{
        32,
        "Сообщение от твоей жены: Сволочь!!!! Подонок!!!!! Кусок безобразный!!!! Ты изменил "
        "мне с этой.... с этой.... с этой нехорошей женщиной!!!! Плати мне $50, а если "
        "нету, то я тебя убью!!!",
        {{{Stat::Money, -50}}}},
    FamilyEvent{
        33,
        "Сообщение от майора милиции Treivaib: Сынок, ты попал на такие налоги!!!! Ты вчера "
        "вывел свою жену под Ниогарский Водопад, т.к. она тебе изменила, но чтобы ты её не "
        "убил вооще, она тебе дала $150 (какая жена твоя богатая)!!!",
        {{{Stat::Money, +150}}}},
    FamilyEvent{.draw = 35, .message = {}, .routine = SpillMilk},
};

void RunFamilyEvent(Int16 draw)
{
    for (const FamilyEvent& event : FamilyEvents) {
        if (draw != event.draw) {
            continue;
        }
        if (event.routine != nullptr) {
            event.routine();
        } else {
            ShowMessage(event.message);
            ApplyAll(event.changes);
        }
    }
}

/// A level's yearly taxes: percent of the money, loss of mood.
struct TaxRate {
    int percent, mood;
};
constexpr std::array TaxRates{TaxRate{50, 20}, TaxRate{25, 10}, TaxRate{10, 5}};

} // namespace

void DailyEvents()
{
    TrappedSilently([] {
        Randomize();
        const Int16 draw = Draw(50);
        if (draw == VirusDay && GameState.SoftOS > 0) {
            ShowVirusWindow();
        }
        if (GameState.Married == True) {
            RunFamilyEvent(draw);
        }
        SetMoney(GameState.Money + GameState.WorkPay);
        LifeEvents(False);
    });
}

void PayTaxes()
{
    TrappedSilently([] {
        const TaxRate& rate = TaxRates.at(static_cast<std::size_t>(GameState.GameLevel.value()));
        const double tax = Round(MoneyAsReal() / 100 * rate.percent);
        // Written at once and left standing, unlike every other message.
        ShowLabel(Label::lblMessage,
                  "Сообщение от Налогового Инспектора: Пора платить налоги!!! Вы заплатили " +
                      DecimalOf(tax) + " долларов");
        Apply({Stat::Happy, -rate.mood});
        SetMoney(ToInt32(MoneyAsReal() - tax));
    });
}

} // namespace torvenhall
