#include "equipment/shops.h"

#include "core/port.h"
#include "core/traps.h"
#include "equipment/basEquipment.h"
#include "equipment/catalogue.h"
#include "system/convert.h"
#include "system/table.h"

namespace torvenhall
{

Offer HardwareOffer(Int16 category)
{
    Offer offer;
    // An edited file may hold an index that has no next one; the button then
    // only names its kind, and says what is wrong when it is pressed.
    offer.caption = GetHardwareCategoryName(category);
    TrappedSilently([&] {
        const Int16 installed = HardwareField(category);
        offer.installed = GetHardwareName(category, installed);
        offer.offered = GetHardwareName(category, installed + 1);
        offer.available = !offer.offered.empty();
        const Int16 shown = offer.available ? installed + 1 : installed;
        const Int16 price = GetHardwarePrice(category, shown);
        offer.price = price.value();
        offer.caption = std::string(GetHardwareCategoryName(category)) + " - " +
                        GetHardwareName(category, shown) + " - $" + Decimal(price);
        offer.refusal = HardwareRefusal(category, installed + 1);
    });
    return offer;
}

Offer SoftwareOffer(Int16 category)
{
    Offer offer;
    offer.caption = FindOrEmpty(Software, category).offer;
    TrappedSilently([&] {
        const Int16 installed = SoftwareField(category);
        offer.installed = GetSoftwareName(category, installed);
        offer.offered = GetSoftwareName(category, installed + 1);
        offer.available = !offer.offered.empty();
        const Int16 shown = offer.available ? installed + 1 : installed;
        offer.caption = std::string(At(Software, category).offer) +
                        std::string(GetSoftwareName(category, shown));
        offer.refusal = SoftwareRefusal(category, installed + 1);
    });
    return offer;
}

// A window's handler goes on with its next statement, whatever became of the
// purchase.

void BuyNextHardware(Int16 category)
{
    Trapped([&] { InstallHardware(category, HardwareField(category) + 1, true); });
    Windows().ReloadWindow(window::frmHard);
}

void InstallNextSoftware(Int16 category)
{
    Trapped([&] { InstallSoftware(category, SoftwareField(category) + 1); });
    Windows().ReloadWindow(window::frmSoft);
}

} // namespace torvenhall
