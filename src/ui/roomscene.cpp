#include "ui/roomscene.h"

#include <QPaintEvent>
#include <QPainter>

#include "ui/room.h"
#include "ui/widgets/metrics.h"

namespace torvenhall
{

namespace
{

QRect PxPlace(const RoomMotion& motion)
{
    return PxRect(motion.place.translated(0, RoomTop));
}

} // namespace

void RoomScene::Refresh()
{
    if (const RoomLook present = PresentRoom(); look != present) {
        const QRectF place = ChangedPlace(look, present).translated(0, RoomTop);
        look = present;
        DrawAnew(PxRect(place).adjusted(-1, -1, 1, 1)); // soft edges
    }
}

void RoomScene::Step()
{
    const int before = step++;
    for (const RoomMotion& motion : RoomMotions()) {
        if (motion.moves(look, before, step)) {
            update(PxPlace(motion));
        }
    }
}

void RoomScene::PaintBackground(QPainter& painter)
{
    PaintRoom(painter, look, devicePixelRatioF());
}

void RoomScene::paintEvent(QPaintEvent* event)
{
    Scene::paintEvent(event);
    if (step == 0) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const RoomMotion& motion : RoomMotions()) {
        if (event->region().intersects(PxPlace(motion))) {
            painter.save();
            painter.setClipRect(PxPlace(motion));
            painter.scale(UnitScale(), UnitScale());
            painter.translate(0, RoomTop);
            motion.paint(painter, look, step);
            painter.restore();
        }
    }
}

} // namespace torvenhall
