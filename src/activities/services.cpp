#include "activities/services.h"

#include "core/GameState.h"
#include "core/traps.h"
#include "core/waits.h"

namespace torvenhall
{

namespace
{

using enum Stat;

/// Its amount is the service's own price.
constexpr Change Pay{Money, 0};

constexpr std::array EntertainmentServices{
    Service{"В казино - +20% - $25", 25, {{Pay, {Happy, 20}}}},
    Service{"В ресторан - +25% - $50", 50, {{Pay, {Happy, 25}}}},
    Service{"В сауну - +50% - $75", 75, {{Pay, {Happy, 50}}}},
    Service{"5 мин. отдых - +5% - $5", 5, {{Pay, {Happy, 5}}}},
    Service{"Перерыв - +10% - $15", 15, {{Pay, {Happy, 10}}}},
};

constexpr std::array HospitalServices{
    Service{"Полный курс - +50% - $250", 250, {{{Health, 50}, Pay}}},
    Service{"Лекарства - +15% - $100", 100, {{{Health, 15}, Pay}}},
    Service{"Вывих - +2% - $20", 20, {{{Health, 2}, Pay}}},
    Service{"Осмотр - +0% - $2", 2, {{{Health, 0}, Pay}}},
    Service{"Роды - + 75% - 50%h - $250", 250, {{{Health, 75}, {Happy, -50}, Pay}}},
    Service{"Выпить водки - +10 - $20", 20, {{{Health, 10}, Pay}}},
    Service{"Выпить спирта+10+10h $25", 25, {{{Health, 10}, Pay, {Happy, 10}}}},
};

constexpr std::array FoodShopServices{
    Service{"Биг-Мак с сыром - +10% - $15", 15, {{{EatLevel, 10}, Pay}}},
    Service{"Хэппи-Мил с детьми +20%-$45- -15%h", 45, {{{EatLevel, 20}, Pay, {Happy, -15}}}},
    Service{"Альпен Гольд с Нескафе - +50 $120", 120, {{{EatLevel, 50}, Pay}}},
    Service{"Яичница с чесноком +15%-$10-20%h", 10, {{{EatLevel, 15}, Pay, {Happy, -20}}}},
    Service{"Просто нормально пожрать +75%-$60", 60, {{{EatLevel, 75}, Pay}}},
};

} // namespace

const ServiceWindow Entertainment{
    "Развлечения",           "HAPPY",          "Что желаете?", "Безопастный отдых",
    "Вам это не по карману", "Тонкий кошелёк", true,           EntertainmentServices,
};

const ServiceWindow Hospital{
    "Госпиталь",
    "HOSP",
    "Без взяток:",
    "Лечиться -- не учиться!",
    "Доктор Картер: Извините, но мы лечем только за деньги",
    "Центральная клиническая больница",
    false,
    HospitalServices,
};

const ServiceWindow FoodShop{
    "Магазин",
    "SHOP",
    "Заправка",
    "What are you wating for...",
    "Шеф-Повор: А ну убирайся отсюда!!!!!!",
    "Идиот!",
    false,
    FoodShopServices,
};

bool CanAfford(const ServiceWindow& window, const Service& service)
{
    const Int32 price = service.price;
    return window.needsMoreThanPrice ? GameState.Money > price : GameState.Money >= price;
}

std::optional<MessageBox> ServiceRefusal(const ServiceWindow& window, const Service& service)
{
    if (CanAfford(window, service)) {
        return std::nullopt;
    }
    return MessageBox{std::string(window.refusal), std::string(window.refusalTitle)};
}

void BuyService(const ServiceWindow& window, std::size_t index)
{
    const Service& service = window.services[index];
    if (const auto refusal = ServiceRefusal(window, service)) {
        MsgBox(refusal->text, refusal->title, refusal->icon);
        return;
    }
    for (const Change& change : service.changes) {
        Trapped([&] { Apply(change.stat == Money ? Change{Money, -service.price} : change); });
    }
}

} // namespace torvenhall
