#include <QImage>

#include <algorithm>
#include <cmath>

#include "ui/roomparts.h"

namespace torvenhall
{

namespace
{

/// What of it no panel covers.
constexpr QRectF Free(0, 50, 518, 173);
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
    {0xFF2C3A60, 0xFF101C38, 1.0},  // night
    {0xFF646080, 0xFF5A3844, 0.7},  // dawn
    {0xFFD0CCCA, 0xFF2C3034, 0.0},  // day
    {0xFF504668, 0xFF6A3A20, 0.85}, // dusk
    {0xFF2E3E68, 0xFF121C38, 1.0},  // evening
};

constexpr Light Window{{70, 120}, 300, 150, 0};
constexpr Light Lamp[]{
    {{284, 162}, 160, 124, 0xFF7A521E},
    {{290, 134}, 330, 176, 0xFF684418},
    {{284, 178}, 128, 60, 0xFF3C280C},
};
constexpr Light Lamps{{432, 58}, 190, 120, 0xFF382818}; ///< the string of little ones
constexpr Light Screen{{290, 134}, 56, 52, 0xFF0A2436};

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
    if (look.Part(Slot::Case) >= LampsFromCase && hour.lamp > 0) {
        use(Lamps, hour.lamp);
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
void AddSun(QPainter& painter, const RoomLook& look)
{
    const bool pale = look.season == Season::Winter;
    const QColor sun = pale ? QColor(0x14, 0x1A, 0x20) : QColor(0x6C, 0x58, 0x30);
    QLinearGradient fall(QPointF(120, 76), QPointF(390, 190));
    fall.setColorAt(0, sun);
    fall.setColorAt(1, Qt::black);
    QPainterPath beams;
    beams.addPolygon(QPolygonF{{146, 66}, {192, 66}, {334, 190}, {214, 190}});
    beams.addPolygon(QPolygonF{{202, 66}, {236, 66}, {412, 190}, {356, 190}});
    painter.fillPath(beams, fall);
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

/// The edges of the hero that look at the lamp, and at the screen.
void PaintRims(QPainter& painter, const RoomLook& look, double lamp)
{
    QPainterPath warm(QPointF(301.8, 87)); // the hair over the brow
    warm.cubicTo(299.8, 90.4, 300, 93.6, 302.6, 96.2);
    warm.cubicTo(301.8, 93.6, 301.4, 90.4, 301.8, 87);
    warm.moveTo(308.4, 106.5); // the nose
    warm.cubicTo(307.2, 110, 304.4, 112.8, 303.8, 115.2);
    warm.cubicTo(303.4, 117.4, 304.6, 119, 306.4, 119);
    warm.cubicTo(305.4, 117.6, 305, 116, 305.6, 114);
    warm.cubicTo(306.6, 111.4, 308, 109, 308.4, 106.5);
    warm.moveTo(300, 141.2); // the far sleeve
    warm.cubicTo(291, 144.6, 284.6, 153, 282, 165.4);
    warm.cubicTo(286, 155.4, 291.4, 147.6, 300, 141.2);
    warm.moveTo(305, 166.8); // the near one, and both hands
    warm.cubicTo(314, 163.2, 326, 163, 338, 164.2);
    warm.cubicTo(326, 164.6, 314, 165.2, 305, 166.8);
    warm.moveTo(263, 163.4);
    warm.cubicTo(267, 157, 273, 156, 279, 157);
    warm.cubicTo(273, 157.6, 268.5, 159, 263, 163.4);
    warm.moveTo(275, 170);
    warm.cubicTo(279, 164.6, 286, 163.2, 293, 164);
    warm.cubicTo(287, 165, 281.4, 166, 275, 170);
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Screen);
    painter.fillPath(warm, QColor(255, 190, 108, static_cast<int>(150 * lamp)));
    if (look.Running()) {
        QPainterPath cool(QPointF(304.2, 120.5)); // mouth and jaw
        cool.cubicTo(304.4, 125.4, 306.4, 130.8, 311.6, 132.6);
        cool.cubicTo(308.2, 130, 306.2, 125.8, 304.2, 120.5);
        painter.fillPath(cool, QColor(110, 214, 240, 95));
    }
    painter.restore();
}

void PaintLampGlow(QPainter& painter, const RoomLook& look, double lamp)
{
    if (look.daylight == Daylight::Night || look.daylight == Daylight::Evening) {
        PaintCatEyes(painter);
    }
    QLinearGradient air(QPointF(262, 100), QPointF(284, 178));
    air.setColorAt(0, QColor(255, 206, 132, static_cast<int>(36 * lamp)));
    air.setColorAt(0.5, QColor(255, 190, 110, static_cast<int>(14 * lamp)));
    air.setColorAt(1, QColor(255, 180, 90, 0));
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    for (const double wider : {-7.0, 7.0}) { // a beam has no hard edge
        QPainterPath cone;
        cone.addPolygon(
            QPolygonF{{254, 106}, {275.5, 97}, {346 + 1.6 * wider, 180}, {272 - wider, 180}});
        painter.fillPath(cone, air);
    }
    painter.restore();
    PaintRims(painter, look, lamp);
    Shine(painter, {{263, 102}, 62, 50, 0xFF5A3C1A}, lamp);
    Shine(painter, {{263, 102}, 15, 13, 0xFF806030}, lamp);
    if (look.Running()) {
        Shine(painter, {{258, 138}, 50, 48, 0xFF04161E}, 1);
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
    QImage map((LitBand.size() * MapScale).toSize(), QImage::Format_RGB32);
    map.fill(HourOf(look).everywhere);
    QPainter lights(&map);
    lights.setRenderHint(QPainter::Antialiasing);
    lights.scale(MapScale, MapScale);
    lights.translate(-LitBand.topLeft());
    lights.setCompositionMode(QPainter::CompositionMode_Plus);
    EachLight(look,
              [&](const Light& light, double strength) { AddLight(lights, light, strength); });
    if (look.daylight == Daylight::Day) {
        AddSun(lights, look);
    }
    lights.end();
    // Enlarged first: to enlarge while it is multiplied takes five times as long.
    const QRect pixels = painter.deviceTransform().mapRect(LitBand).toAlignedRect();
    map = map.scaled(pixels.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const double ratio = painter.device()->devicePixelRatioF();
    map.setDevicePixelRatio(ratio);
    painter.save();
    painter.resetTransform();
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.drawImage(QPointF(pixels.topLeft()) / ratio, map);
    painter.restore();
}

void PaintGlow(QPainter& painter, const RoomLook& look)
{
    painter.save();
    painter.setClipRect(Free, Qt::IntersectClip); // not into the gaps between the panels
    if (const double lamp = HourOf(look).lamp; lamp > 0) {
        PaintLampGlow(painter, look, lamp);
        PaintLampsGlow(painter, look, lamp);
    } else { // the daylight in the air
        Shine(painter, {{110, 96}, 360, 150, 0xFF1E2226}, 1);
    }
    painter.restore();
}

} // namespace torvenhall
