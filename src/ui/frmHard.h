#pragma once

#include "ui/widgets/equipmentshop.h"

namespace torvenhall
{

/// The hardware shop: nine buttons, each the next better part of its kind.
class frmHard : public EquipmentShop
{
    Q_OBJECT

public:
    frmHard(LabelBoard& board, QWidget* parent);
};

} // namespace torvenhall
