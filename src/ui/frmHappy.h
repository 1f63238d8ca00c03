#pragma once

#include "ui/widgets/serviceseller.h"

namespace torvenhall
{

/// Entertainment: sells mood.
class frmHappy : public ServiceSeller
{
    Q_OBJECT

public:
    frmHappy(LabelBoard& board, QWidget* parent)
        : ServiceSeller("frmHappy", Entertainment, board, parent)
    {
    }
};

} // namespace torvenhall
