#pragma once

#include "ui/widgets/gamewindow.h"

namespace torvenhall
{

/// The virus attack. One of its two buttons must be pressed: the window takes
/// neither Esc nor its close box.
class frmVirus : public GameWindow
{
public:
    explicit frmVirus(QWidget* parent);

protected:
    bool Closable() const override { return false; }

private:
    void Answer(void (*deed)());
};

} // namespace torvenhall
