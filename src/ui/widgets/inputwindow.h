#pragma once

#include "ui/widgets/gamewindow.h"

class QLineEdit;

namespace torvenhall
{

/// The text-input box.
class InputWindow : public GameWindow
{
public:
    InputWindow(const QString& prompt, const QString& title, QWidget* parent);
    QString EnteredText() const;

private:
    QLineEdit* entry;
};

} // namespace torvenhall
