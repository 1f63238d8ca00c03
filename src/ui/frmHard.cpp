#include "ui/frmHard.h"

#include "equipment/catalogue.h"

namespace torvenhall
{

frmHard::frmHard(QWidget* parent)
    : EquipmentShop({"frmHard", "Железо", "HARD"},
                    {"cmdUpggrade", HardwareCategories, 404, HardwareOffer, BuyNextHardware},
                    parent)
{
    AddSlogan("Label3", "Label4", "Железо оно и на Тайване железо", Sign::Tin);
}

} // namespace torvenhall
