#pragma once

#include <span>

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
        double width;           ///< of the list, in units
        Type type;              ///< of its rows
        double rowHeight;
        std::span<const Glyph> glyphs; ///< one for each category
        Offer (*offer)(Int16 category);
        void (*buy)(Int16 category);
    };
    EquipmentShop(const Plan& plan, const Goods& newGoods, QWidget* parent);

    void Load() override;

protected:
    Standing StandingOf(std::size_t index) const override;

private:
    Goods goods;
};

} // namespace torvenhall
