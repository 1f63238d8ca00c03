#include "events/events.h"

#include <algorithm>
#include <string>

#include "activities/work.h"
#include "core/basGame.h"
#include "core/changes.h"
#include "core/draw.h"
#include "core/waits.h"
#include "equipment/basEquipment.h"
#include "equipment/catalogue.h"
#include "events/family.h"
#include "events/message.h"
#include "system/text.h"

namespace torvenhall
{

namespace
{

using enum Stat;
using Changes = std::array<Change, 3>;

constexpr ByLevel<Changes> OnEachLevel(const Changes& changes)
{
    return {changes, changes, changes};
}

/// The draw of what happens when no other event does.
constexpr int AnyOther = -1;

/// One event: what it tells and changes, in order, by a routine of its own
/// unless that is all.
struct Event {
    When when;
    int draw;
    void (*routine)(const Event& event);
    std::string_view message = {}; ///< % stands for what the routine tells
    ByLevel<Changes> changes = {};
    ByLevel<int> divisors = {}; ///< of the money, for the part that is lost
};

void ApplyChanges(const Event& event)
{
    ApplyAll(OfLevel(event.changes));
}

void Tell(const Event& event)
{
    ShowMessage(event.message);
    ApplyChanges(event);
}

void TellOf(const Event& event, std::string_view something)
{
    ShowMessage(ReplaceAll(std::string(event.message), "%", something));
}

double MoneyAsReal()
{
    return GameState.Money.value();
}

void MeetVirus(const Event&)
{
    if (GameState.SoftOS > 0) {
        ShowVirusWindow();
    }
}

void StealWallet(const Event& event)
{
    // The message names a hundredth of the money, the charge is its root and
    // the theft does the health good: the game's own rules.
    const double hundredth = Round(MoneyAsReal() / 100);
    TellOf(event, DecimalOf(SquareRoot(hundredth * hundredth)));
    Apply({Happy, -15});
    SetMoney(ToInt32(MoneyAsReal() - SquareRoot(hundredth)));
    Apply({Health, +20});
}

void ThankForAlms(const Event& event)
{
    if (GameState.Happy <= -15) {
        Tell(event);
    }
}

void SpillMilk(const Event& event)
{
    if (GameState.Sons + GameState.Daughters > 0) {
        const Int16 category = Draw(HardwareCategories - 1);
        TellOf(event, GetHardwareCategoryName(category));
        InstallHardware(category, 0, false);
        Windows().ReloadWindow(window::frmHard);
    }
}

void Dismiss(const Event& event)
{
    if (GameState.CurrWork > 0 && GameState.CurrWork < TopJob) {
        TellOf(event, GameState.PlayerName);
        SetWork(0);
    }
    ApplyChanges(event);
}

void Burgle(const Event& event)
{
    // The level may change while the message is typed; the event keeps its own.
    const int divisor = OfLevel(event.divisors);
    const Changes& changes = OfLevel(event.changes);
    // The sum named and the sum taken are rounded each on its own.
    TellOf(event, DecimalOf(Round(MoneyAsReal() / divisor)));
    SetMoney(ToInt32(Round(MoneyAsReal() - MoneyAsReal() / divisor)));
    ApplyAll(changes);
}

void BearChild(const Event&)
{
    constexpr int mostChildren = 3;
    if (GameState.Sons + GameState.Daughters < mostChildren && GameState.WifeFound == True &&
        GameState.Married == True) {
        ChildBirth();
    }
}

void MarryOrDivorce(const Event&)
{
    if (GameState.WifeFound == False) {
        Marry();
    } else if (GameState.Married == True) {
        Divorce();
    }
}

constexpr std::array Events{
    Event{When::Daily, 21, MeetVirus},
    Event{When::Married, 10, Tell,
          "Сообщение от бомжа в мусорке: Твоя жена тебя выгнала на улицу!!!",
          OnEachLevel({{{Happy, -15}, {EatLevel, -15}, {Health, -15}}})},
    Event{When::Married, 15, StealWallet,
          "Сообщение от твоей жены: Ты напился, милый, у тебя украли кошелёк с % баксами!!!"},
    Event{When::Married, 25, Tell,
          "Сообщение от твоей жены: Сволочь!!! Где все деньги, всё на своё барахло от интел "
          "копишь!!!",
          OnEachLevel({{{Happy, -10}, {Health, -10}, {EatLevel, -5}}})},
    Event{When::Married, 29, Tell,
          "Сообщение от уборщицы: Старый дурак, ты посмотри что ты на полу сделал, "
          "пьяница!!! С тебя $10!!!",
          OnEachLevel({{{Money, -10}}})},
    Event{When::Married, 30, Tell,
          "Сообщение от контролёра в трамвае: Ну что браток, помнишь заветную фразу: ''за "
          "безбилетный проезд штраф $15!!!''!!! Плати, сынок!!!",
          OnEachLevel({{{Money, -15}}})},
    Event{When::Married, 31, ThankForAlms,
          "Сообщение от твоего любимого бомжа: Спасибо, что дал мне $15, я вижу ты несчастен и "
          "неконтролируешь свои поступки!!!",
          OnEachLevel({{{Money, -15}}})},
    Event{When::Married, 32, Tell,
          "Сообщение от твоей жены: Сволочь!!!! Подонок!!!!! Кусок безобразный!!!! Ты изменил "
          "мне с этой.... с этой.... с этой нехорошей женщиной!!!! Плати мне $50, а если "
          "нету, то я тебя убью!!!",
          OnEachLevel({{{Money, -50}}})},
    Event{When::Married, 33, Tell,
          "Сообщение от майора милиции Treivaib: Сынок, ты попал на такие налоги!!!! Ты вчера "
          "вывел свою жену под Ниогарский Водопад, т.к. она тебе изменила, но чтобы ты её не "
          "убил вооще, она тебе дала $150 (какая жена твоя богатая)!!!",
          OnEachLevel({{{Money, +150}}})},
    Event{When::Married, 35, SpillMilk,
          "Сообщение от Вашего ребёнка: Папа, я тут на твой открытый компьютер уранила кружку "
          "парного молока!!! И искры посыпались с %!!!"},
    Event{When::Rare, 4, Dismiss, "Сообщение от Вашего босса: Уважаемый %! Вы уволены!!!",
          ByLevel<Changes>{{{{{Health, -30}, {EatLevel, -60}}},
                            {{{Health, -15}, {EatLevel, -20}}},
                            {{{Health, -5}, {EatLevel, -10}}}}}},
    Event{When::Rare,
          6,
          Burgle,
          "Сообщение от Майора Милиции Dutaig.: Мне очень жаль, но к вам пробрались грабители и "
          "стащили % долларов.",
          ByLevel<Changes>{{{{{Happy, -50}, {Health, -30}, {EatLevel, -40}}},
                            {{{Happy, -20}, {Health, -15}, {EatLevel, -20}}},
                            {{{Happy, -10}, {Health, -5}, {EatLevel, -10}}}}},
          {4, 10, 50}},
    Event{When::Rare, 8, BearChild},
    // That satiety rises on the easier levels is meant.
    Event{When::Rare, 10, Tell, "Сообщение от хирурга Skoska.: Кто-то напал на Вас и сломал ребро!",
          ByLevel<Changes>{{{{{Happy, -60}, {Health, -40}, {EatLevel, -5}}},
                            {{{Happy, -45}, {Health, -30}, {EatLevel, +2}}},
                            {{{Happy, -25}, {Health, -15}, {EatLevel, +10}}}}}},
    Event{When::Rare, 24, MarryOrDivorce},
    Event{When::Rare,
          AnyOther,
          ApplyChanges,
          {},
          ByLevel<Changes>{{{{{Happy, -5}, {EatLevel, -10}, {Health, -5}}},
                            {{{Happy, -5}, {EatLevel, -5}, {Health, -5}}},
                            {{{Happy, -1}, {EatLevel, -5}, {Health, -1}}}}}},
};

constexpr const Event* EventOf(When when, Int16 draw)
{
    const auto* event = std::ranges::find_if(
        Events, [&](const Event& one) { return one.when == when && draw == one.draw; });
    return event != Events.end() ? event : nullptr;
}

static_assert(std::ranges::all_of(Events,
                                  [](const Event& event) {
                                      const int most = event.when == When::Rare ? HighestRareDraw
                                                                                : HighestDailyDraw;
                                      return event.draw >= AnyOther && event.draw <= most &&
                                             EventOf(event.when, event.draw) == &event;
                                  }),
              "each event can be drawn, and no other is drawn in its place");

} // namespace

void Happen(When when, Int16 draw)
{
    const Event* event = EventOf(when, draw);
    if (event == nullptr) {
        event = EventOf(when, AnyOther);
    }
    if (event != nullptr) {
        event->routine(*event);
    }
}

} // namespace torvenhall
