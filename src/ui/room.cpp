#include "ui/room.h"

#include <QPixmap>

#include "ui/roomparts.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/pictures.h"

namespace torvenhall
{

namespace
{

constexpr double Width = 518, Height = 420;

} // namespace

void PaintRoom(QPainter& painter, const RoomLook& look, double pixelRatio)
{
    const QPixmap base = LoadPicture("MAINPICTURE", PxSize(Width, Height), pixelRatio);
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.drawPixmap(0, 0, base);
    painter.scale(UnitScale(), UnitScale());
    painter.translate(0, RoomTop);
    PaintWall(painter, look);
    PaintThings(painter, look);
    PaintLight(painter, look);
    PaintGlow(painter, look);
    PaintWindow(painter, look, 0);
    PaintScreen(painter, look, 0);
    PaintSignals(painter, look);
    painter.restore();
}

QRectF ChangedPlace(const RoomLook& before, const RoomLook& after)
{
    if (before == after) {
        return {};
    }
    RoomLook onThatDay = before;
    onThatDay.day = after.day;
    return onThatDay == after ? CalendarPlace : LitBand;
}

} // namespace torvenhall
