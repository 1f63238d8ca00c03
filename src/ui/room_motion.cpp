#include <cmath>

#include "ui/room.h"
#include "ui/roomparts.h"

namespace torvenhall
{

namespace
{

/// The eyes close for one step in so many, now and then twice.
bool EyesClosed(int step)
{
    constexpr int Every = 19;
    return step % Every == Every - 1 || step % (Every * 3) == Every * 3 - 3;
}

QColor Lit(QColor colour, QColor light)
{
    return {colour.red() * light.red() / 255, colour.green() * light.green() / 255,
            colour.blue() * light.blue() / 255};
}

void PaintBlink(QPainter& painter, const RoomLook& look, int step)
{
    if (!EyesClosed(step)) {
        return;
    }
    const QColor light = LightAt(look, {312, 106});
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(318.5, 105.5); // where the head was drawn, and how
    painter.rotate(-5);
    constexpr struct {
        double left, right, y;
    } Eyes[]{{-6.6, 3.6, 0.7}, {-15.9, -10.2, 0.6}};
    for (const auto [left, right, y] : Eyes) {
        QPainterPath lid(QPointF(left, y));
        lid.cubicTo(left + 1.5, y - 4.2, right - 2, y - 4.4, right, y);
        lid.cubicTo(right - 2, y + 2.6, left + 2, y + 2.8, left, y);
        painter.fillPath(lid, Lit(QColor(0xC8, 0x88, 0x66), light));
        QPainterPath lash(QPointF(left, y + 0.2));
        lash.cubicTo(left + 2, y + 2.6, right - 2, y + 2.4, right, y);
        painter.strokePath(lash, QPen(Lit(QColor(0x2F, 0x1B, 0x18), light), 0.8));
    }
    painter.restore();
}

bool BlinkMoves(const RoomLook&, int before, int step)
{
    return EyesClosed(before) != EyesClosed(step);
}

bool SnowMoves(const RoomLook& look, int before, int step)
{
    return look.season == Season::Winter && before != step;
}

void PaintSnow(QPainter& painter, const RoomLook& look, int step)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    PaintWindow(painter, look, step);
    painter.restore();
}

bool ScreenMoves(const RoomLook& look, int before, int step)
{
    return look.Running() && before != step;
}

bool SignalsMove(const RoomLook& look, int before, int step)
{
    return look.online && look.Part(Slot::Modem) > 0 && before != step;
}

constexpr RoomMotion Motions[]{
    {{300, 96, 24, 16}, PaintBlink, BlinkMoves},
    {{14, 69, 93, 84}, PaintSnow, SnowMoves},
    {{200, 108, 62, 64}, PaintScreen, ScreenMoves},
    {{400, 150, 42, 28}, PaintSignals, SignalsMove},
};

} // namespace

std::span<const RoomMotion> RoomMotions()
{
    return Motions;
}

} // namespace torvenhall
