#pragma once

#include <QRectF>

#include <span>

#include "ui/roomlook.h"

class QPainter;

namespace torvenhall
{

/// The room's own units begin so far below the window's: all that matters
/// stands between RoomTop + 50 and RoomTop + 220, where no panel is.
inline constexpr double RoomTop = 157;

/// Draws the room and the dark above and below it, 518 by 420 units, at the
/// present scale (UnitScale()) from the painter's origin on.
void PaintRoom(QPainter& painter, const RoomLook& look, double pixelRatio);

/// Where the room looks otherwise after a change, in its units; nowhere if not.
QRectF ChangedPlace(const RoomLook& before, const RoomLook& after);

/// A small place where something moves. paint() draws one step of the quiet
/// life (4 a second) over what PaintRoom drew there, which has to be restored
/// before each step; it leaves what lies outside the place alone.
struct RoomMotion {
    QRectF place; ///< units of the room
    void (*paint)(QPainter&, const RoomLook&, int step);
    /// Whether anything moves there at all in this life, and differs between
    /// two steps: spares the repaint.
    bool (*moves)(const RoomLook&, int before, int step);
};
std::span<const RoomMotion> RoomMotions();

} // namespace torvenhall
