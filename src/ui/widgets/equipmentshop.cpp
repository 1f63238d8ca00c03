#include "ui/widgets/equipmentshop.h"

#include "core/GameState.h"
#include "ui/widgets/qtext.h"

namespace torvenhall
{

EquipmentShop::EquipmentShop(const Plan& plan, const Goods& newGoods, QWidget* parent)
    : ActivityWindow(plan, parent), goods(newGoods)
{
    std::vector<Row> rows;
    for (std::size_t i = 0; i < goods.glyphs.size(); ++i) {
        rows.push_back({goods.buttonName + QString::number(i), "%CPUBUTTON%", goods.glyphs[i]});
    }
    AddChoices({.caption = {},
                .captionName = {},
                .width = goods.width,
                .rowHeight = goods.rowHeight,
                .type = goods.type},
               rows);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        SetDeed(i, [buy = goods.buy, category = static_cast<int>(i)] { buy(category); });
    }
    AddBack("Command8");
}

void EquipmentShop::Load()
{
    for (std::size_t i = 0; i < Choices(); ++i) {
        const Offer offer = goods.offer(static_cast<int>(i));
        Choice(i).ShowText(Text(offer.caption));
        if (!offer.available) { // loading never enables a button again
            SetUsable(Choice(i), false);
        }
    }
    ActivityWindow::Load();
}

ActivityWindow::Standing EquipmentShop::StandingOf(std::size_t index) const
{
    const Offer offer = goods.offer(static_cast<int>(index));
    if (!offer.available) {
        return {Badge::Best, "Лучше не бывает: " + Text(offer.installed) + " уже стоит.", {}};
    }
    Standing standing;
    const QString exchange =
        "Станет: " + Text(offer.offered) + ". Сейчас: " + Text(offer.installed) + ".";
    if (offer.price > 0) {
        standing.effects = {{Label::lblMoney, -offer.price}};
    }
    if (offer.refusal) {
        standing.badge = offer.price > 0 ? Badge::TooDear : Badge::NotQualified;
        standing.explanation = Text(offer.refusal->text) + '\n' + exchange;
        return standing;
    }
    const int rest = GameState.Money.value() - offer.price;
    standing.explanation =
        exchange + (offer.price > 0 ? QString(" Останется $%1.").arg(rest) : " Бесплатно.");
    return standing;
}

} // namespace torvenhall
