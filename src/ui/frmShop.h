#pragma once

#include "ui/widgets/serviceseller.h"

namespace torvenhall
{

/// The food shop: sells satiety.
class frmShop : public ServiceSeller
{
public:
    explicit frmShop(QWidget* parent) : ServiceSeller("frmShop", FoodShop, Sign::Awning, parent) {}
};

} // namespace torvenhall
