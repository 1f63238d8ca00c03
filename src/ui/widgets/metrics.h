#pragma once

#include <QFont>
#include <QRect>
#include <QRectF>

namespace torvenhall
{

// All geometry is laid out in units: 1/96 inch of the logical resolution,
// grown with the player's desktop font. 15 twips make one unit.

/// The size of the player's desktop font in points; above the usual 9 the
/// whole layout grows in proportion. Set before the first window is made.
void SetDesktopFontPoints(double points);
/// What the desktop's own settings say; 9 when they say nothing.
double DesktopFontPoints();

/// Toolkit pixels per unit.
double UnitScale();
/// Units in whole toolkit pixels.
int Px(double units);
QRect PxRect(const QRectF& units);
QSize PxSize(double width, double height);
int TwipsPx(int twips);

/// The game's typeface and the message line's, their height in units.
QFont TextFont(double units, bool bold = false);
QFont TerminalFont(double units, bool bold = false);

} // namespace torvenhall
