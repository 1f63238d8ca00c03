#include <algorithm>
#include <cmath>

#include "ui/room.h"
#include "ui/roomparts.h"

namespace torvenhall
{

namespace
{

/// What is above hides behind the panels.
constexpr double Top = 46;
constexpr QRectF Glass(14, Top, 96, 152 - Top);

/// Glass without bars or pot, for what falls behind it.
constexpr QRectF Open[]{{14, 62, 42, 90}, {62, 62, 40, 24.5}, {62, 91.1, 39.4, 61}};
/// The curtain's rod crosses the glass.
constexpr QRectF Rod(0, 57.4, 160, 3.4);

struct SkyColours {
    QRgb top, middle, low;
};

constexpr SkyColours Skies[]{
    {0xFF070D1E, 0xFF10203E, 0xFF2B3A5E}, // night
    {0xFF3F557E, 0xFFB4879C, 0xFFF8C08C}, // dawn
    {0xFF6FA9D2, 0xFFA9D2E6, 0xFFE9F1E6}, // day
    {0xFF26396A, 0xFFA0587A, 0xFFFB9C58}, // dusk
    {0xFF0A1330, 0xFF1B2C58, 0xFF5A4670}, // evening
};
constexpr SkyColours WinterDay{0xFF9FB4C6, 0xFFC6D3DA, 0xFFEAE6DC};

bool Dark(const RoomLook& look)
{
    return look.daylight == Daylight::Night || look.daylight == Daylight::Evening;
}

constexpr QPointF Moon(89, 74);

void PaintStars(QPainter& painter, const RoomLook& look)
{
    const int stars = look.season == Season::Winter ? 12 : 32; // snow clouds
    for (int i = 0; i < stars; ++i) {
        const QPointF place(14 + 92 * Scatter(i * 3), 58 + 54 * Scatter(i * 3 + 1));
        const double size = 0.3 + 0.35 * Scatter(i * 3 + 2);
        painter.setBrush(QColor(226, 236, 255, 110 + static_cast<int>(130 * Scatter(i + 77))));
        painter.drawEllipse(place, size, size);
    }
    QRadialGradient halo(Moon, 20);
    halo.setColorAt(0, QColor(190, 214, 255, 120));
    halo.setColorAt(1, QColor(190, 214, 255, 0));
    painter.fillRect(QRectF(Moon.x() - 20, Moon.y() - 20, 40, 40), halo);
    QPainterPath moon;
    moon.addEllipse(Moon, 5.6, 5.6);
    QPainterPath bite;
    bite.addEllipse(Moon - QPointF(2.8, 1.6), 5, 5);
    painter.setBrush(QColor(0xF6, 0xEE, 0xD2));
    painter.drawPath(moon - bite);
}

void PaintClouds(QPainter& painter, const RoomLook& look)
{
    constexpr struct {
        double x, y, width;
    } Clouds[]{{24, 88, 20}, {44, 74, 16}, {74, 78, 22}, {24, 67, 12}, {98, 98, 16}};
    const bool day = look.daylight == Daylight::Day;
    for (const auto [x, y, width] : Clouds) {
        painter.setBrush(day ? QColor(255, 255, 255, 150) : QColor(255, 190, 150, 90));
        painter.drawEllipse(QPointF(x, y), width * 0.5, 2.2);
        painter.drawEllipse(QPointF(x + width * 0.12, y - 2), width * 0.28, 2.8);
        painter.drawEllipse(QPointF(x - width * 0.18, y - 1.2), width * 0.2, 2);
    }
}

void PaintSky(QPainter& painter, const RoomLook& look)
{
    const bool white = look.daylight == Daylight::Day && look.season == Season::Winter;
    const SkyColours& colours = white ? WinterDay : Skies[static_cast<int>(look.daylight)];
    QLinearGradient sky(0, 54, 0, 138);
    sky.setColorAt(0, QColor(colours.top));
    sky.setColorAt(0.55, QColor(colours.middle));
    sky.setColorAt(1, QColor(colours.low));
    painter.fillRect(Glass, sky);
    if (Dark(look)) {
        PaintStars(painter, look);
    } else {
        PaintClouds(painter, look);
    }
    if (look.daylight == Daylight::Dawn || look.daylight == Daylight::Dusk) {
        QRadialGradient sun(QPointF(60, 124), 44);
        sun.setColorAt(0, QColor(255, 224, 150, 210));
        sun.setColorAt(0.3, QColor(255, 190, 110, 110));
        sun.setColorAt(1, QColor(255, 170, 90, 0));
        painter.fillRect(Glass, sun);
    }
}

/// The room mirrored faintly in the glass, as glass is.
void PaintSheen(QPainter& painter, const RoomLook& look)
{
    const int strength = Dark(look) ? 16 : 34;
    for (const double x : {24.0, 74.0}) {
        QPainterPath sheen;
        sheen.addPolygon(QPolygonF{{x + 16, Top}, {x + 26, Top}, {x - 6, 152}, {x - 16, 152}});
        painter.fillPath(sheen, QColor(255, 255, 255, strength));
    }
    if (Dark(look)) {
        QRadialGradient lamp(QPointF(96, 112), 20);
        lamp.setColorAt(0, QColor(255, 200, 120, 60));
        lamp.setColorAt(1, QColor(255, 200, 120, 0));
        painter.fillRect(QRectF(76, 92, 40, 40), lamp);
    }
}

/// What stands above takes the light from the top of the glass, as from the wall.
void PaintShade(QPainter& painter)
{
    QLinearGradient shade(0, Top, 0, 72);
    shade.setColorAt(0, QColor(10, 10, 14, 240));
    shade.setColorAt(0.3, QColor(10, 10, 14, 170));
    shade.setColorAt(0.6, QColor(14, 12, 14, 60));
    shade.setColorAt(1, QColor(14, 12, 14, 0));
    painter.fillRect(QRectF(Glass.left(), Top, Glass.width(), 72 - Top), shade);
}

} // namespace

const QPainterPath& Panes()
{
    static const QPainterPath panes = [] {
        QPainterPath path;
        path.addRect(14, Top, 42, 152 - Top);
        path.moveTo(62, Top);
        path.lineTo(102.2, Top);
        path.cubicTo(101.7, 82, 101.4, 96, 102, 108);
        path.cubicTo(103, 116, 104, 120, 106.5, 126); // along the curtain
        path.lineTo(107, 152);
        path.lineTo(62, 152);
        path.closeSubpath();
        QPainterPath bar;
        bar.addRect(60, 86.5, 52, 4.6);
        QPainterPath pot;
        pot.addRect(39, 144, 16, 9);
        QPainterPath rod;
        rod.addRect(Rod);
        return path - bar - pot - rod;
    }();
    return panes;
}

void PaintView(QPainter& painter, const RoomLook& look)
{
    painter.save();
    painter.setClipPath(Panes(), Qt::IntersectClip);
    painter.setPen(Qt::NoPen);
    PaintSky(painter, look);
    PaintHouses(painter, look);
    PaintYard(painter, look);
    PaintSheen(painter, look);
    PaintShade(painter);
    painter.restore();
}

void PaintFlakes(QPainter& painter, const RoomLook& look, int step)
{
    if (look.season != Season::Winter) {
        return;
    }
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(Dark(look) ? QColor(214, 226, 250, 215) : QColor(255, 255, 255, 235));
    for (int i = 0; i < 34; ++i) {
        const double fall = 1 + 1.3 * Scatter(i * 5 + 2);
        const double y = 61 + std::fmod(91 * Scatter(i * 5) + fall * step, 91);
        const double x = 14 + 96 * Scatter(i * 5 + 1) + 2 * std::sin(step * 0.5 + i);
        const double size = 0.5 + 0.6 * Scatter(i * 5 + 3);
        const QRectF flake(x - size, y - size, 2 * size, 2 * size);
        // Left out where it would cross a frame: cheaper than a clip path.
        if (std::ranges::any_of(Open, [&](const QRectF& pane) { return pane.contains(flake); })) {
            painter.drawEllipse(flake);
        }
    }
    painter.restore();
}

void PaintWindow(QPainter& painter, const RoomLook& look, int step)
{
    PaintView(painter, look);
    PaintFlakes(painter, look, step);
    PaintPlant(painter, look);
}

} // namespace torvenhall
