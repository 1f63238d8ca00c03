#include "ui/frmSoft.h"

#include "equipment/catalogue.h"

namespace torvenhall
{

frmSoft::frmSoft(QWidget* parent)
    : EquipmentShop({"frmSoft", "Софт", "SOFT"},
                    {"cmdUpgrade", SoftwareCategories, 320, SoftwareOffer, InstallNextSoftware},
                    parent)
{
    AddSlogan("Label4", "cmdUpgraded", "А Вы удалили MS DOS 1.0?", Sign::Card);
}

} // namespace torvenhall
