#pragma once

#include "ui/widgets/colours.h"

class QApplication;

namespace torvenhall
{

/// Style, palette and font of everything the toolkit draws itself: menus,
/// message boxes, lists. The same on every desktop.
void ApplyTheme(QApplication& application);

} // namespace torvenhall
