#pragma once

#include <QRectF>

#include <span>

#include "ui/roomlook.h"

class QPainter;

namespace torvenhall
{

/// Draws the room, 518 by 420 units, at the present scale (UnitScale()) from
/// the painter's origin on. All that matters stands between y 72 and 184;
/// above and below it is dark and calm, for the panels.
void PaintRoom(QPainter& painter, const RoomLook& look, double pixelRatio);

/// A small place where something moves. paint() draws one step of the quiet
/// life (4 a second) over what PaintRoom drew there, which has to be restored
/// before each step; it leaves what lies outside the place alone.
struct RoomMotion {
    QRectF place; ///< units
    void (*paint)(QPainter&, const RoomLook&, int step);
    /// Whether anything moves there at all in this life, and differs between
    /// two steps: spares the repaint.
    bool (*moves)(const RoomLook&, int before, int step);
};
std::span<const RoomMotion> RoomMotions();

} // namespace torvenhall
