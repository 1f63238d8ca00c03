#include "ui/widgets/equipmentshop.h"

#include "core/GameState.h"
#include "game/entry.h"
#include "ui/widgets/qtext.h"

namespace torvenhall
{

EquipmentShop::EquipmentShop(const Plan& plan, const Goods& newGoods, QWidget* parent)
    : ActivityWindow(plan, parent), goods(newGoods),
      prices(static_cast<std::size_t>(newGoods.categories))
{
    std::vector<std::pair<QString, QString>> captions;
    captions.reserve(prices.size());
    for (int category = 0; category < goods.categories; ++category) {
        captions.emplace_back(goods.buttonName + QString::number(category), "%CPUBUTTON%");
    }
    AddChoices({{}, {}, goods.width, 1}, captions);
    for (int category = 0; category < goods.categories; ++category) {
        connect(&Choice(static_cast<std::size_t>(category)), &QAbstractButton::clicked, this,
                [this, category] { EnterRules([buy = goods.buy, category] { buy(category); }); });
    }
    AddBack("Command8");
}

void EquipmentShop::Load()
{
    for (int category = 0; category < goods.categories; ++category) {
        const auto index = static_cast<std::size_t>(category);
        const Offer offer = goods.offer(category);
        Choice(index).ShowText(Text(offer.caption));
        prices[index] = offer.price;
        if (!offer.available) { // loading never enables a button again
            SetUsable(Choice(index), false);
        }
    }
    ActivityWindow::Load();
}

void EquipmentShop::RefreshChoices()
{
    for (std::size_t i = 0; i < prices.size(); ++i) {
        Choice(i).SetMuted(prices[i] > 0 && GameState.Money < Int32(prices[i]));
    }
}

} // namespace torvenhall
