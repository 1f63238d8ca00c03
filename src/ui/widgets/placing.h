#pragma once

#include "ui/widgets/metrics.h"

class QWidget;

namespace torvenhall
{

// What stands where, and in which type, is remembered in units, so that an
// open window follows the scale.

/// Puts a widget to a place in its parent, in units. A window takes the size
/// alone, for good.
void Place(QWidget& widget, const QRectF& units);
QRectF PlaceOf(const QWidget& widget);
/// Sets a widget's text in a type.
void Dress(QWidget& widget, const Type& type);

/// Places and dresses a window and all in it anew, after the scale has changed.
void FollowScale(QWidget& window);

} // namespace torvenhall
