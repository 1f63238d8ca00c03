#pragma once

#include "ui/widgets/gamewindow.h"

namespace torvenhall
{

/// The pause window. The main window stays usable beside it.
class frmPause : public GameWindow
{
public:
    explicit frmPause(QWidget* parent);

protected:
    /// Esc and the close box mean "Продолжить".
    void reject() override;
};

} // namespace torvenhall
