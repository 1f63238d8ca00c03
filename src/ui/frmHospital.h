#pragma once

#include "ui/choiceglyphs.h"
#include "ui/widgets/serviceseller.h"

namespace torvenhall
{

/// The hospital: sells health.
class frmHospital : public ServiceSeller
{
public:
    explicit frmHospital(QWidget* parent)
        : ServiceSeller("frmHospital", Hospital, {Sign::Enamel, 232, HospitalGlyphs}, parent)
    {
    }
};

} // namespace torvenhall
