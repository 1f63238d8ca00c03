#include "equipment/shops.h"

#include <array>

#include "core/traps.h"
#include "equipment/basEquipment.h"
#include "equipment/catalogue.h"
#include "system/convert.h"

namespace torvenhall
{

namespace
{

constexpr std::array<std::string_view, SoftwareCategories> SoftwarePrefixes{
    "ОС - ", "Антивирус - ", "Прог-е - ", "Графика - ", "Интернет - ", "Игра - "};

} // namespace

Offer HardwareOffer(Int16 category)
{
    Offer offer;
    // An edited file may hold an index that has no next one; the button then
    // keeps an empty offer.
    TrappedSilently([&] {
        const Int16 installed = HardwareField(category);
        offer.available = !GetHardwareName(category, installed + 1).empty();
        const Int16 shown = offer.available ? installed + 1 : installed;
        const Int16 price = GetHardwarePrice(category, shown);
        offer.price = price.value();
        offer.caption = std::string(GetHardwareCategoryName(category)) + " - " +
                        GetHardwareName(category, shown) + " - $" + Decimal(price);
    });
    return offer;
}

Offer SoftwareOffer(Int16 category)
{
    Offer offer;
    TrappedSilently([&] {
        const Int16 installed = SoftwareField(category);
        offer.available = !GetSoftwareName(category, installed + 1).empty();
        const Int16 shown = offer.available ? installed + 1 : installed;
        offer.caption = std::string(SoftwarePrefixes[static_cast<std::size_t>(category.value())]) +
                        std::string(GetSoftwareName(category, shown));
    });
    return offer;
}

void BuyNextHardware(Int16 category)
{
    InstallHardware(category, HardwareField(category) + 1, true);
}

void InstallNextSoftware(Int16 category)
{
    InstallSoftware(category, SoftwareField(category) + 1);
}

} // namespace torvenhall
