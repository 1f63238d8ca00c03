#pragma once

#include "activities/services.h"
#include "ui/widgets/activitywindow.h"

namespace torvenhall
{

/// A window that sells relief, made of its table.
class ServiceSeller : public ActivityWindow
{
public:
    ServiceSeller(const char* name, const ServiceWindow& newTable, Sign sign, QWidget* parent);

protected:
    void RefreshChoices() override;

private:
    const ServiceWindow& table;
};

} // namespace torvenhall
