#include <QImage>

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

void PaintBlink(QPainter& painter, const RoomLook& look, int step)
{
    if (!EyesClosed(step)) {
        return;
    }
    const QColor light = LightAt(look, {312, 107});
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(319, 106); // where the head was drawn, and how
    painter.rotate(-4);
    constexpr struct {
        double left, right, y;
    } Eyes[]{{-6.6, 5, 1.2}, {-16.9, -10, 1.2}};
    for (const auto [left, right, y] : Eyes) {
        QPainterPath lid(QPointF(left, y));
        lid.cubicTo(left + 1.2, y - 6, right - 2.4, y - 6.2, right, y);
        lid.cubicTo(right - 2, y + 4, left + 2, y + 4.2, left, y);
        painter.fillPath(lid, Lit(QColor(0xD8, 0x98, 0x72), light));
        QPainterPath lash(QPointF(left, y + 0.2));
        lash.cubicTo(left + 2, y + 3, right - 2, y + 2.8, right, y);
        painter.strokePath(lash, QPen(Lit(QColor(0x2A, 0x17, 0x15), light), 1));
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

/// The view is kept: only the flakes are drawn anew.
void PaintSnow(QPainter& painter, const RoomLook& look, int step)
{
    if (look.season != Season::Winter) {
        return;
    }
    static QImage view;
    static RoomLook viewLook;
    static double viewScale = 0;
    const QRectF place = Panes().boundingRect();
    const double scale = painter.deviceTransform().m11();
    if (view.isNull() || viewLook != look || viewScale != scale) {
        viewLook = look;
        viewScale = scale;
        view = QImage((place.size() * scale).toSize() + QSize(1, 1),
                      QImage::Format_ARGB32_Premultiplied);
        view.fill(Qt::transparent);
        QPainter onto(&view);
        onto.setRenderHint(QPainter::Antialiasing);
        onto.scale(scale, scale);
        onto.translate(-place.topLeft());
        PaintView(onto, look);
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawImage(QRectF(place.topLeft(), QSizeF(view.size()) / scale), view, view.rect());
    PaintFlakes(painter, look, step);
    PaintPlant(painter, look);
    painter.restore();
}

/// The cat's lids are in no hurry.
bool CatDozes(int step)
{
    constexpr int Every = 47, Long = 5;
    return step % Every >= Every - Long;
}

bool CatMoves(const RoomLook&, int before, int step)
{
    return CatDozes(before) != CatDozes(step);
}

void PaintCat(QPainter& painter, const RoomLook& look, int step)
{
    if (!CatDozes(step)) {
        return;
    }
    const QColor light = LightAt(look, {116, 128});
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const QPointF eye : {QPointF(110.5, 128), QPointF(120.7, 126.9)}) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Lit(QColor(0xE0, 0x86, 0x32), light));
        painter.drawEllipse(eye, 3.5, 2.7);
        QPainterPath lid(eye + QPointF(-2.6, 0));
        lid.quadTo(eye + QPointF(0, 1.9), eye + QPointF(2.6, -0.3));
        painter.strokePath(lid, QPen(Lit(QColor(0x6E, 0x30, 0x12), light), 0.8));
    }
    painter.restore();
}

bool SteamMoves(const RoomLook&, int before, int step)
{
    return before != step;
}

void PaintSteam(QPainter& painter, const RoomLook& look, int step)
{
    QColor white = LightAt(look, {388, 150});
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 3; ++i) {
        const double x = 385.5 + i * 3.4;
        const double sway = 1.6 * std::sin(step * 0.45 + i * 2);
        QPainterPath wisp(QPointF(x, 160));
        wisp.cubicTo(x - 2 - sway, 155, x + 2 + sway, 152, x + sway, 146 + i % 2 * 2.5);
        white.setAlpha(46 + static_cast<int>(18 * std::sin(step * 0.3 + i * 1.7)));
        painter.strokePath(wisp, QPen(white, 1.5, Qt::SolidLine, Qt::RoundCap));
    }
    painter.restore();
}

bool ScreenMoves(const RoomLook& look, int before, int step)
{
    return look.Running() && before != step;
}

bool TrafficMoves(const RoomLook& look, int before, int step)
{
    return look.online && look.Part(Slot::Modem) > 0 && before != step;
}

constexpr RoomMotion Motions[]{
    {{300, 98, 26, 16}, PaintBlink, BlinkMoves},
    {{14, 60, 94, 93}, PaintSnow, SnowMoves},
    {{106, 124, 19, 8}, PaintCat, CatMoves},
    {{380, 143, 16, 18}, PaintSteam, SteamMoves},
    {{200, 108, 62, 64}, PaintScreen, ScreenMoves},
    {{400, 150, 42, 28}, PaintTraffic, TrafficMoves},
};

} // namespace

std::span<const RoomMotion> RoomMotions()
{
    return Motions;
}

} // namespace torvenhall
