#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>

#include "ui/roomlook.h"

// The layers of the room, each drawn in units. From the back: the base picture,
// the wall, the things, the light; then what shines by itself: window, screen,
// glow.

namespace torvenhall
{

/// Only this band between the panels is lit; the rest is dark whatever the life.
inline constexpr QRectF LitBand(0, 44, 518, 182);
/// Of the calendar's leaf, with its shadow.
inline constexpr QRectF CalendarPlace(156, 72, 38, 42);

/// What the light of this hour leaves of white at a place, the lamp and the
/// screen included.
QColor LightAt(const RoomLook& look, QPointF place);
/// The same on the whole band, multiplied with what is there.
void PaintLight(QPainter& painter, const RoomLook& look);
/// The shine of the bulb and of the screen in the air.
void PaintGlow(QPainter& painter, const RoomLook& look);

/// The string of little lamps comes with the first good machine.
inline constexpr int LampsFromCase = 2;
/// The calendar's leaf, the diplomas, the string of little lamps.
void PaintWall(QPainter& painter, const RoomLook& look);
/// The shine of those lamps, at a strength of 0..1.
void PaintLampsGlow(QPainter& painter, const RoomLook& look, double strength);
/// What is owned and the family's photos, with their shadows.
void PaintThings(QPainter& painter, const RoomLook& look);

/// The visible glass.
const QPainterPath& Panes();
/// All that is seen in the panes, with the snow in the air at a step.
void PaintWindow(QPainter& painter, const RoomLook& look, int step);
/// Of it, what does not move, and what falls.
void PaintView(QPainter& painter, const RoomLook& look);
void PaintFlakes(QPainter& painter, const RoomLook& look, int step);
/// The houses of the yard, by the hour.
void PaintHouses(QPainter& painter, const RoomLook& look);
/// The tree, the snow on the ledge, the dish.
void PaintYard(QPainter& painter, const RoomLook& look);
/// The geranium on the sill, before the glass.
void PaintPlant(QPainter& painter, const RoomLook& look);

/// The lit screen, if there is one.
void PaintScreen(QPainter& painter, const RoomLook& look, int step);
/// The lights of the machine, the disks and the modem.
void PaintSignals(QPainter& painter, const RoomLook& look);
/// Those of the modem that flicker while a line is up.
void PaintTraffic(QPainter& painter, const RoomLook& look, int step);

/// A thing's own colour in that light.
inline QColor Lit(QColor colour, QColor light)
{
    return {colour.red() * light.red() / 255, colour.green() * light.green() / 255,
            colour.blue() * light.blue() / 255};
}

/// A number of 0..1 that always is the same for the same place.
inline double Scatter(int seed)
{
    auto bits = static_cast<unsigned>(seed) * 2654435761U;
    bits ^= bits >> 15;
    bits *= 2246822519U;
    bits ^= bits >> 13;
    return (bits & 0xFFFFU) / 65536.0;
}

} // namespace torvenhall
