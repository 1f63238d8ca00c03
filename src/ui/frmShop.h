#pragma once

#include "ui/choiceglyphs.h"
#include "ui/widgets/serviceseller.h"

namespace torvenhall
{

/// The food shop: sells satiety.
class frmShop : public ServiceSeller
{
public:
    explicit frmShop(QWidget* parent)
        : ServiceSeller("frmShop", FoodShop, {Sign::Awning, 294, FoodGlyphs}, parent)
    {
    }
};

} // namespace torvenhall
