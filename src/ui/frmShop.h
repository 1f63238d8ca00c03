#pragma once

#include "ui/widgets/serviceseller.h"

namespace torvenhall
{

/// The food shop: sells satiety.
class frmShop : public ServiceSeller
{
    Q_OBJECT

public:
    frmShop(LabelBoard& board, QWidget* parent) : ServiceSeller("frmShop", FoodShop, board, parent)
    {
    }
};

} // namespace torvenhall
