#include "activities/services.h"

#include <limits>
#include <map>

#include "core/basGame.h"
#include "game/entry.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

using Services = BegunLife;

struct Purchase {
    const ServiceWindow* window;
    std::size_t button;
    int price;
    Changes changes;
};
// clang-format off
const Purchase Purchases[]{
    {&Entertainment, 0, 25, {{lblMoney, -25}, {lblHappy, 20}}},
    {&Entertainment, 1, 50, {{lblMoney, -50}, {lblHappy, 25}}},
    {&Entertainment, 2, 75, {{lblMoney, -75}, {lblHappy, 50}}},
    {&Entertainment, 3, 5, {{lblMoney, -5}, {lblHappy, 5}}},
    {&Entertainment, 4, 15, {{lblMoney, -15}, {lblHappy, 10}}},
    {&Hospital, 0, 250, {{lblHealth, 50}, {lblMoney, -250}}},
    {&Hospital, 1, 100, {{lblHealth, 15}, {lblMoney, -100}}},
    {&Hospital, 2, 20, {{lblHealth, 2}, {lblMoney, -20}}},
    {&Hospital, 3, 2, {{lblHealth, 0}, {lblMoney, -2}}},
    {&Hospital, 4, 250, {{lblHealth, 75}, {lblHappy, -50}, {lblMoney, -250}}},
    {&Hospital, 5, 20, {{lblHealth, 10}, {lblMoney, -20}}},
    {&Hospital, 6, 25, {{lblHealth, 10}, {lblMoney, -25}, {lblHappy, 10}}},
    {&FoodShop, 0, 15, {{lblEat, 10}, {lblMoney, -15}}},
    {&FoodShop, 1, 45, {{lblEat, 20}, {lblMoney, -45}, {lblHappy, -15}}},
    {&FoodShop, 2, 120, {{lblEat, 50}, {lblMoney, -120}}},
    {&FoodShop, 3, 10, {{lblEat, 15}, {lblMoney, -10}, {lblHappy, -20}}},
    {&FoodShop, 4, 60, {{lblEat, 75}, {lblMoney, -60}}},
};
// clang-format on

TEST_F(Services, EveryPurchaseCallsItsSettersInOrderAndOnlyEntertainmentWantsMoreThanItsPrice)
{
    const std::map<const ServiceWindow*, std::string> refusals{
        {&Entertainment, "i Тонкий кошелёк: Вам это не по карману"},
        {&Hospital, "i Центральная клиническая больница: Доктор Картер: Извините, но мы лечем "
                    "только за деньги"},
        {&FoodShop, "i Идиот!: Шеф-Повор: А ну убирайся отсюда!!!!!!"}};
    for (const Purchase& row : Purchases) {
        SCOPED_TRACE(std::string(row.window->services[row.button].caption));
        const int least = row.window == &Entertainment ? row.price + 1 : row.price;
        for (const int money : {std::numeric_limits<int>::min(), least - 1, least, least + 100}) {
            Set(0, 0, 0, money);
            const bool enough = money >= least;
            const Texts bought = ShownBy(row.changes);
            BuyService(*row.window, row.button);
            EXPECT_EQ(Told(), enough ? Texts{} : Texts{refusals.at(row.window)}) << money;
            if (enough) {
                EXPECT_EQ(player.journal, bought);
            }
            EXPECT_EQ(GameState.Money, enough ? money - row.price : money);
        }
    }
}

TEST_F(Services, AnOverflowIsReportedOnceAndTheNextSetterRuns)
{
    Set(0, 32760, 0, 1000);
    EnterRules([] { BuyService(Hospital, 0); });
    EXPECT_EQ(GameState.Health, 32760);
    EXPECT_EQ(GameState.Money, 750);
    EXPECT_EQ(ErrorTold(), 6);
}

} // namespace
} // namespace torvenhall::test
