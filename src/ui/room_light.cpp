#include <QImage>

#include <algorithm>
#include <cmath>

#include "ui/roomparts.h"

namespace torvenhall
{

namespace
{

/// Only the band between the panels is lit; the rest is dark anyway.
constexpr QRectF Band(0, 60, 518, 138);
/// Light has no edges: a pixel of its map covers two units.
constexpr double MapScale = 0.5;

struct Light {
    QPointF centre;
    double across, down; ///< how far it reaches, units
    QRgb colour;         ///< what it adds at its centre
};

/// The room's light at an hour: everywhere, from the window, and how much of
/// the lamp's is needed.
struct Hour {
    QRgb everywhere, window;
    double lamp;
};

constexpr Hour Hours[]{
    {0xFF26365E, 0xFF0C1630, 1.0}, // night
    {0xFF6E6982, 0xFF5A3C46, 0.7}, // dawn
    {0xFFC8C4C2, 0xFF4C5056, 0.0}, // day
    {0xFF5E5068, 0xFF6A3C20, 0.9}, // dusk
    {0xFF2E3E68, 0xFF121C38, 1.0}, // evening
};

constexpr Light Window{{70, 120}, 300, 150, 0};
constexpr Light Lamp[]{
    {{284, 164}, 150, 120, 0xFF8C683A},
    {{286, 130}, 300, 170, 0xFF70502E},
    {{282, 172}, 90, 50, 0xFF483416},
};
constexpr Light Screen{{286, 136}, 66, 60, 0xFF1C3E48};

constexpr struct {
    double at, share;
} Falloff[]{{0, 1}, {0.2, 0.86}, {0.45, 0.5}, {0.7, 0.18}, {1, 0}};

double ShareAt(double distance)
{
    for (std::size_t i = 1; i < std::size(Falloff); ++i) {
        const auto [nearAt, nearShare] = Falloff[i - 1];
        const auto [farAt, farShare] = Falloff[i];
        if (distance < farAt) {
            return nearShare + (farShare - nearShare) * (distance - nearAt) / (farAt - nearAt);
        }
    }
    return 0;
}

QColor Share(QRgb colour, double share)
{
    return QColor::fromRgbF(static_cast<float>(qRed(colour) / 255.0 * share),
                            static_cast<float>(qGreen(colour) / 255.0 * share),
                            static_cast<float>(qBlue(colour) / 255.0 * share));
}

const Hour& HourOf(const RoomLook& look)
{
    return Hours[static_cast<int>(look.daylight)];
}

/// Each light that shines, with its strength.
template <typename Use>
void EachLight(const RoomLook& look, Use use)
{
    const Hour& hour = HourOf(look);
    Light window = Window;
    window.colour = hour.window;
    use(window, 1.0);
    for (const Light& lamp : Lamp) {
        if (hour.lamp > 0) {
            use(lamp, hour.lamp);
        }
    }
    if (look.Running() && hour.lamp > 0) {
        use(Screen, 1.0);
    }
}

void AddLight(QPainter& painter, const Light& light, double strength)
{
    QRadialGradient gradient({0, 0}, 1);
    for (const auto [at, share] : Falloff) {
        gradient.setColorAt(at, Share(light.colour, share * strength));
    }
    painter.save();
    painter.translate(light.centre);
    painter.scale(light.across, light.down);
    painter.fillRect(QRectF(-1, -1, 2, 2), gradient);
    painter.restore();
}

void Shine(QPainter& painter, const Light& light, double strength)
{
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    AddLight(painter, light, strength);
    painter.restore();
}

/// The sun comes in past the curtain; under a winter sky only its paleness.
void PaintSun(QPainter& painter, const RoomLook& look)
{
    const bool pale = look.season == Season::Winter;
    const QColor sun = pale ? QColor(0xD8, 0xE6, 0xF0) : QColor(0xFF, 0xEC, 0xB8);
    QLinearGradient fall(QPointF(120, 76), QPointF(330, 176));
    QColor far = sun;
    far.setAlpha(0);
    QColor near = sun;
    near.setAlpha(pale ? 30 : 58);
    fall.setColorAt(0, near);
    fall.setColorAt(1, far);
    QPainterPath beams;
    beams.addPolygon(QPolygonF{{150, 72}, {196, 72}, {330, 181}, {214, 181}});
    beams.addPolygon(QPolygonF{{206, 72}, {238, 72}, {392, 181}, {352, 181}});
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Screen);
    painter.fillPath(beams, fall);
    painter.restore();
}

/// A cat's eyes keep what light there is.
void PaintCatEyes(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    for (const QPointF eye : {QPointF(110.5, 128.2), QPointF(120.7, 127.1)}) {
        painter.setBrush(QColor(216, 240, 120, 50));
        painter.drawEllipse(eye, 3.4, 2.6);
        painter.setBrush(QColor(222, 240, 130));
        painter.drawEllipse(eye, 2.1, 1.05);
        painter.setBrush(QColor(20, 18, 10));
        painter.drawEllipse(eye, 0.55, 1);
    }
}

} // namespace

QColor LightAt(const RoomLook& look, QPointF place)
{
    const QRgb base = HourOf(look).everywhere;
    double red = qRed(base);
    double green = qGreen(base);
    double blue = qBlue(base);
    EachLight(look, [&](const Light& light, double strength) {
        const QPointF off = place - light.centre;
        const double share =
            strength * ShareAt(std::hypot(off.x() / light.across, off.y() / light.down));
        red += share * qRed(light.colour);
        green += share * qGreen(light.colour);
        blue += share * qBlue(light.colour);
    });
    const auto channel = [](double value) { return std::min(255, static_cast<int>(value)); };
    return {channel(red), channel(green), channel(blue)};
}

void PaintLight(QPainter& painter, const RoomLook& look)
{
    QImage map((Band.size() * MapScale).toSize(), QImage::Format_RGB32);
    map.fill(HourOf(look).everywhere);
    QPainter lights(&map);
    lights.scale(MapScale, MapScale);
    lights.translate(-Band.topLeft());
    lights.setCompositionMode(QPainter::CompositionMode_Plus);
    EachLight(look,
              [&](const Light& light, double strength) { AddLight(lights, light, strength); });
    lights.end();
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.drawImage(Band, map);
    painter.restore();
}

void PaintGlow(QPainter& painter, const RoomLook& look)
{
    const double lamp = HourOf(look).lamp;
    if (lamp <= 0) {
        PaintSun(painter, look);
        return;
    }
    if (look.daylight == Daylight::Night || look.daylight == Daylight::Evening) {
        PaintCatEyes(painter);
    }
    painter.save();
    QLinearGradient air(QPointF(262, 100), QPointF(284, 178));
    air.setColorAt(0, QColor(255, 206, 132, static_cast<int>(86 * lamp)));
    air.setColorAt(0.5, QColor(255, 190, 110, static_cast<int>(34 * lamp)));
    air.setColorAt(1, QColor(255, 180, 90, 0));
    QPainterPath cone;
    cone.moveTo(248, 107);
    cone.lineTo(275.5, 97);
    cone.lineTo(346, 180);
    cone.lineTo(262, 180);
    painter.setCompositionMode(QPainter::CompositionMode_Screen);
    painter.fillPath(cone, air);
    painter.restore();
    Shine(painter, {{263, 102}, 62, 50, 0xFF5A3C1A}, lamp);
    Shine(painter, {{263, 102}, 15, 13, 0xFF806030}, lamp);
    if (look.Running()) {
        Shine(painter, {{262, 138}, 56, 50, 0xFF061C24}, 1);
    }
}

} // namespace torvenhall
