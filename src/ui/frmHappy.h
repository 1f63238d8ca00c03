#pragma once

#include "ui/choiceglyphs.h"
#include "ui/widgets/serviceseller.h"

namespace torvenhall
{

/// Entertainment: sells mood.
class frmHappy : public ServiceSeller
{
public:
    explicit frmHappy(QWidget* parent)
        : ServiceSeller("frmHappy", Entertainment, {Sign::Neon, 232, EntertainmentGlyphs}, parent)
    {
    }
};

} // namespace torvenhall
