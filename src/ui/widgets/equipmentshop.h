#pragma once

#include "equipment/shops.h"
#include "ui/widgets/activitywindow.h"

namespace torvenhall
{

/// A shop of computer equipment: a button for each category offers the next
/// item of its list.
class EquipmentShop : public ActivityWindow
{
public:
    struct Goods {
        const char* buttonName; ///< with the category's number behind it
        int categories;
        double width; ///< of the choices, in units
        Offer (*offer)(Int16 category);
        void (*buy)(Int16 category);
    };
    EquipmentShop(const Plan& plan, const Goods& newGoods, QWidget* parent);

    void Load() override;

protected:
    void RefreshChoices() override;

private:
    Goods goods;
    std::vector<int> prices;
};

} // namespace torvenhall
