#pragma once

#include <QString>

class QWidget;

namespace torvenhall::robot
{

/// The first label of the main window that does not show what the rules hold
/// of the state, and how; nothing if all do.
QString WrongLabel(const QWidget& mainWindow);

} // namespace torvenhall::robot
