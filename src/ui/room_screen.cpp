#include "ui/roomparts.h"

namespace torvenhall
{

void PaintScreen(QPainter&, const RoomLook&, int) {}
void PaintSignals(QPainter&, const RoomLook&, int) {}
void PaintThings(QPainter&, const RoomLook&, double) {}

} // namespace torvenhall
