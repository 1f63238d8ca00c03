#pragma once

#include "core/port.h"
#include "ui/widgets/gamewindow.h"

class QComboBox;
class QLineEdit;

namespace torvenhall
{

/// The name dialog at the start of every game: name and difficulty.
class frmPlayerName : public GameWindow
{
public:
    frmPlayerName(const NewPlayer& shown, QWidget* parent);

    NewPlayer Entered() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* name;
    QComboBox* level;
};

} // namespace torvenhall
