#include "ui/frmHard.h"

#include "equipment/catalogue.h"
#include "ui/choiceglyphs.h"

namespace torvenhall
{

static_assert(std::size(HardwareGlyphs) == HardwareCategories);

frmHard::frmHard(QWidget* parent)
    : EquipmentShop({"frmHard", "Железо", "HARD"},
                    {"cmdUpggrade", 324, CondensedType(14), 29, HardwareGlyphs, HardwareOffer,
                     BuyNextHardware},
                    parent)
{
    AddSlogan("Label3", "Label4", "Железо оно и на Тайване железо", Sign::Tin);
}

} // namespace torvenhall
