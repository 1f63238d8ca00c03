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

private:
    void AddProgramme(const QString& labelName, const QString& text, double top);
    GameButton* AddToggle(const char* name, const QString& caption, double top, void (*toggle)());

    GameButton* school;
    GameButton* courses;
};

} // namespace torvenhall
