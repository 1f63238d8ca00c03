#include "activities/services.h"

#include "core/basGame.h"
#include "core/entry.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

class Services : public Life
{
protected:
    Services() { Begin(); }
};

struct Purchase {
    const ServiceWindow* window;
    std::size_t button;
    int price;
    std::vector<std::string> labels; ///< from 100 dollars over the price and 0 % everywhere
};

const Purchase Purchases[]{
    {&Entertainment, 0, 25, {"lblMoney=$100", "lblHappy=20%"}},
    {&Entertainment, 1, 50, {"lblMoney=$100", "lblHappy=25%"}},
    {&Entertainment, 2, 75, {"lblMoney=$100", "lblHappy=50%"}},
    {&Entertainment, 3, 5, {"lblMoney=$100", "lblHappy=5%"}},
    {&Entertainment, 4, 15, {"lblMoney=$100", "lblHappy=10%"}},
    {&Hospital, 0, 250, {"lblHealth=50%", "lblMoney=$100"}},
    {&Hospital, 1, 100, {"lblHealth=15%", "lblMoney=$100"}},
    {&Hospital, 2, 20, {"lblHealth=2%", "lblMoney=$100"}},
    {&Hospital, 3, 2, {"lblHealth=0%", "lblMoney=$100"}},
    {&Hospital, 4, 250, {"lblHealth=75%", "lblHappy=-50%", "lblMoney=$100"}},
    {&Hospital, 5, 20, {"lblHealth=10%", "lblMoney=$100"}},
    {&Hospital, 6, 25, {"lblHealth=10%", "lblMoney=$100", "lblHappy=10%"}},
    {&FoodShop, 0, 15, {"lblEat=10%", "lblMoney=$100"}},
    {&FoodShop, 1, 45, {"lblEat=20%", "lblMoney=$100", "lblHappy=-15%"}},
    {&FoodShop, 2, 120, {"lblEat=50%", "lblMoney=$100"}},
    {&FoodShop, 3, 10, {"lblEat=15%", "lblMoney=$100", "lblHappy=-20%"}},
    {&FoodShop, 4, 60, {"lblEat=75%", "lblMoney=$100"}},
};

TEST_F(Services, EveryPurchaseCallsItsSettersInItsOwnOrder)
{
    for (const Purchase& row : Purchases) {
        SCOPED_TRACE(std::string(row.window->services[row.button].caption));
        SetMoney(row.price + 100);
        SetHappy(0);
        SetHealth(0);
        SetEatLevel(0);
        player.Forget();
        BuyService(*row.window, row.button);
        EXPECT_EQ(player.journal, row.labels);
    }
}

TEST_F(Services, OnlyEntertainmentWantsMoreThanItsPrice)
{
    for (const Purchase& row : Purchases) {
        SCOPED_TRACE(std::string(row.window->services[row.button].caption));
        const bool strict = row.window == &Entertainment;
        for (const int money : {row.price - 1, row.price, row.price + 1}) {
            const bool enough = strict ? money > row.price : money >= row.price;
            SetHappy(0);
            SetMoney(money);
            player.Forget();
            BuyService(*row.window, row.button);
            EXPECT_EQ(GameState.Money, enough ? money - row.price : money);
            EXPECT_EQ(player.boxes.size(), enough ? 0U : 1U);
        }
    }
}

TEST_F(Services, EachWindowRefusesInItsOwnWords)
{
    SetMoney(0);
    BuyService(Entertainment, 0);
    BuyService(Hospital, 0);
    BuyService(FoodShop, 0);
    EXPECT_EQ(player.BoxTexts(),
              (std::vector<std::string>{
                  "Тонкий кошелёк: Вам это не по карману",
                  "Центральная клиническая больница: Доктор Картер: Извините, но мы лечем только "
                  "за деньги",
                  "Идиот!: Шеф-Повор: А ну убирайся отсюда!!!!!!"}));
}

TEST_F(Services, TheDeepestDebtIsRefusedAndNoError)
{
    SetMoney(Int32(-2147483647) - 1);
    BuyService(Hospital, 0);
    ASSERT_EQ(player.boxes.size(), 1U);
    EXPECT_EQ(player.boxes[0].icon, Icon::Information);
    EXPECT_EQ(player.boxes[0].title, "Центральная клиническая больница");
}

TEST_F(Services, AnOverflowIsReportedOnceAndTheNextSetterRuns)
{
    SetMoney(1000);
    SetHealth(32760);
    EnterRules([] { BuyService(Hospital, 0); });
    EXPECT_EQ(GameState.Health, 32760);
    EXPECT_EQ(GameState.Money, 750);
    ASSERT_EQ(player.boxes.size(), 1U);
    EXPECT_TRUE(player.boxes[0].text.starts_with("Возникла непредвиденная ошибка № 6 : "));
    EXPECT_TRUE(player.boxes[0].text.ends_with(
        ". Программа может некорректно работать. Обратитесь к разработчику!"));
    EXPECT_EQ(player.boxes[0].icon, Icon::Critical);
}

} // namespace
} // namespace torvenhall::test
