#pragma once

#include "ui/widgets/serviceseller.h"

namespace torvenhall
{

/// The hospital: sells health.
class frmHospital : public ServiceSeller
{
    Q_OBJECT

public:
    frmHospital(LabelBoard& board, QWidget* parent)
        : ServiceSeller("frmHospital", Hospital, board, parent)
    {
    }
};

} // namespace torvenhall
