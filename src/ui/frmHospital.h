#pragma once

#include "ui/widgets/serviceseller.h"

namespace torvenhall
{

/// The hospital: sells health.
class frmHospital : public ServiceSeller
{
public:
    explicit frmHospital(QWidget* parent)
        : ServiceSeller("frmHospital", Hospital, Sign::Enamel, parent)
    {
    }
};

} // namespace torvenhall
