#include "ui/frmSoft.h"

#include "equipment/catalogue.h"
#include "ui/choiceglyphs.h"

namespace torvenhall
{

static_assert(std::size(SoftwareGlyphs) == SoftwareCategories);

frmSoft::frmSoft(QWidget* parent)
    : EquipmentShop(
          {"frmSoft", "Софт", "SOFT"},
          {"cmdUpgrade", 282, TextType(13), 35, SoftwareGlyphs, SoftwareOffer, InstallNextSoftware},
          parent)
{
    AddSlogan("Label4", "cmdUpgraded", "А Вы удалили MS DOS 1.0?", Sign::Card);
}

} // namespace torvenhall
