#pragma once

#include "ui/widgets/activitywindow.h"

namespace torvenhall
{

/// The education window: attend school or courses, or drop out.
class frmEducation : public ActivityWindow
{
public:
    explicit frmEducation(QWidget* parent);

    void Load() override;

protected:
    Standing StandingOf(std::size_t index) const override;

private:
    void AddProgramme(const QString& labelName, const QString& text, const Row& row, double top,
                      void (*toggle)());
};

} // namespace torvenhall
