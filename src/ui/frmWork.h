#pragma once

#include "ui/widgets/activitywindow.h"

namespace torvenhall
{

/// The employment centre: a button for each job of the ladder.
class frmWork : public ActivityWindow
{
public:
    explicit frmWork(QWidget* parent);

protected:
    Standing StandingOf(std::size_t index) const override;
};

} // namespace torvenhall
