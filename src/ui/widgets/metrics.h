#pragma once

#include <QFont>
#include <QRect>
#include <QRectF>

namespace torvenhall
{

// All geometry is laid out in units: 1/96 inch of the logical resolution,
// grown with the player's desktop font and scale. 15 twips make one unit.

/// The size of the player's desktop font in points; above the usual 9 the
/// whole layout grows in proportion. Set before the first window is made.
void SetDesktopFontPoints(double points);
/// What the desktop's own settings say; 9 when they say nothing.
double DesktopFontPoints();

/// The player's own magnification, 1 or more (widgets/scale.h applies it).
void SetPlayerScale(double scale);
double PlayerScale();

/// Toolkit pixels per unit.
double UnitScale();
/// Units in whole toolkit pixels.
int Px(double units);
QRect PxRect(const QRectF& units);
QSize PxSize(double width, double height);

/// A typeface, its height in units. The faces are carried in the program, so
/// that every machine shows the same game.
struct Type {
    double height;
    bool bold = false;
    bool terminal = false; ///< every character is as wide as another
    bool condensed = false;
    QFont Font() const;
};
/// The condensed face of a text's font.
QFont Condensed(const QFont& font);
/// The game's type and the message line's.
Type TextType(double height, bool bold = false);
Type CondensedType(double height, bool bold = false);
Type TerminalType(double height);
/// A type's height in whole toolkit pixels.
int FontPx(double height);

} // namespace torvenhall
