#pragma once

class QWidget;

namespace torvenhall
{

/// F1 opens the manual in this window too.
void OpenManualByKey(QWidget* window);

} // namespace torvenhall
