#pragma once

#include "ui/widgets/equipmentshop.h"

namespace torvenhall
{

/// The software shop: six buttons, each the next item of its list. Nothing
/// costs money here.
class frmSoft : public EquipmentShop
{
public:
    explicit frmSoft(QWidget* parent);
};

} // namespace torvenhall
