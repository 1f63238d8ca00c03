#pragma once

#include "ui/widgets/equipmentshop.h"

namespace torvenhall
{

/// The hardware shop: nine buttons, each the next better part of its kind.
class frmHard : public EquipmentShop
{
public:
    explicit frmHard(QWidget* parent);
};

} // namespace torvenhall
