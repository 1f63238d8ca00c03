#pragma once

#include "ui/widgets/gamewindow.h"

namespace torvenhall
{

/// The about box.
class frmAbout : public GameWindow
{
public:
    explicit frmAbout(QWidget* parent);
};

} // namespace torvenhall
