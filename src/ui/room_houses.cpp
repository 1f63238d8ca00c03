#include <algorithm>
#include <cmath>

#include "ui/roomparts.h"

namespace torvenhall
{

namespace
{

struct House {
    double left, top, width;
    double cell;   ///< width of a window with its share of the wall
    double storey; ///< height of one
    bool far;
};

/// From the back.
constexpr House Houses[]{
    {40, 116, 30, 3.4, 4.2, true},
    {84, 110, 30, 3.4, 4.2, true},
    {10, 100, 35, 5.0, 6.2, false},
    {66, 124, 26, 4.4, 5.6, false},
};

struct HouseColours {
    QRgb far, near, seam, glass, lit;
    int litOfHundred;
    QRgb snow;
};

constexpr HouseColours Colours[]{
    {0xFF1B2846, 0xFF131D36, 0xFF0C1428, 0xFF0B1224, 0xFFFFC46A, 9, 0xFF7186B0},  // night
    {0xFF8F7F9A, 0xFF665A78, 0xFF4E4462, 0xFF4A4464, 0xFFFFD28A, 24, 0xFFE8CBD0}, // dawn
    {0xFFB4BCC0, 0xFFC8BDA8, 0xFFA0957F, 0xFF64798C, 0xFF8FA9B8, 22, 0xFFFDFDFB}, // day
    {0xFF75546F, 0xFF4A3A5C, 0xFF372B49, 0xFF3A2F4E, 0xFFFFC76E, 36, 0xFFDAA6A2}, // dusk
    {0xFF263052, 0xFF1A2342, 0xFF111832, 0xFF101730, 0xFFFFC46A, 52, 0xFF7C8CB8}, // evening
};

constexpr double Ground = 152;

QColor WindowColour(const HouseColours& colours, int number)
{
    if (Scatter(number) * 100 >= colours.litOfHundred) {
        return colours.glass;
    }
    // Not everybody has the same lampshade.
    const double hue = Scatter(number + 5000);
    if (colours.lit != 0xFFFFC46A || hue < 0.6) {
        return QColor(colours.lit);
    }
    return hue < 0.8    ? QColor(0xFF, 0xE2, 0xA8)
           : hue < 0.92 ? QColor(0xF0, 0x90, 0x5A)
                        : QColor(0x8F, 0xC8, 0xE8);
}

void PaintWindows(QPainter& painter, const House& house, const HouseColours& colours, int number)
{
    const int storeys = static_cast<int>((Ground - house.top - 2) / house.storey) + 1;
    const int columns = static_cast<int>((house.width - house.cell * 0.1) / house.cell);
    for (int storey = 0; storey < storeys; ++storey) {
        const double y = house.top + 2 + storey * house.storey;
        painter.fillRect(QRectF(house.left, y - 1.2, house.width, 0.3), QColor(colours.seam));
        for (int column = 0; column < columns; ++column) {
            const double x = house.left + house.cell * (0.2 + column);
            painter.fillRect(QRectF(x, y, house.cell * 0.58, house.storey * 0.52),
                             WindowColour(colours, ++number));
        }
    }
}

void PaintHouse(QPainter& painter, const House& house, const HouseColours& colours, bool snow)
{
    const QRectF wall(house.left, house.top, house.width, Ground - house.top);
    painter.fillRect(wall, QColor(house.far ? colours.far : colours.near));
    painter.fillRect(QRectF(wall.right() - 2.5, wall.top(), 2.5, wall.height()),
                     QColor(0, 0, 0, 40));
    painter.fillRect(QRectF(wall.left() - 0.6, wall.top() - 0.8, wall.width() + 1.2, 1.4),
                     QColor(colours.seam));
    if (!house.far) { // the lift's hut and an aerial
        painter.fillRect(QRectF(wall.left() + 20, wall.top() - 5, 8, 4.4), QColor(colours.near));
        painter.fillRect(QRectF(wall.left() + 12, wall.top() - 9, 0.5, 9), QColor(colours.seam));
        painter.fillRect(QRectF(wall.left() + 9.5, wall.top() - 8.4, 5.5, 0.45),
                         QColor(colours.seam));
        painter.fillRect(QRectF(wall.left() + 10.4, wall.top() - 6.6, 3.8, 0.45),
                         QColor(colours.seam));
    }
    PaintWindows(painter, house, colours, static_cast<int>(house.left * 100));
    if (snow) {
        painter.setBrush(QColor(colours.snow));
        painter.drawRoundedRect(QRectF(wall.left() - 1, wall.top() - 1.9, wall.width() + 2, 2), 1,
                                1);
        if (!house.far) {
            painter.drawRoundedRect(QRectF(wall.left() + 19.4, wall.top() - 6.2, 9.2, 1.6), 0.8,
                                    0.8);
        }
    }
}

void Branch(QPainter& painter, QPointF from, double length, double degrees, double width, int depth)
{
    const QLineF line = QLineF::fromPolar(length, degrees).translated(from);
    QPen pen = painter.pen();
    pen.setWidthF(width);
    painter.setPen(pen);
    painter.drawLine(line);
    if (depth == 0) {
        return;
    }
    Branch(painter, line.p2(), length * 0.72, degrees + 24 + depth * 3, width * 0.62, depth - 1);
    Branch(painter, line.p2(), length * 0.78, degrees - 19, width * 0.66, depth - 1);
    Branch(painter, line.pointAt(0.6), length * 0.5, degrees - 46, width * 0.5, depth - 1);
}

QColor Dimmed(QColor colour, const RoomLook& look)
{
    constexpr double Left[]{0.26, 0.66, 1, 0.58, 0.34};
    const double left = Left[static_cast<int>(look.daylight)];
    return {static_cast<int>(colour.red() * left), static_cast<int>(colour.green() * left),
            static_cast<int>(std::min(255.0, colour.blue() * left * (left < 0.5 ? 1.7 : 1)))};
}

/// A crown of three tones: a mass in the shade, then leaves, then those in the light.
void PaintLeaves(QPainter& painter, const RoomLook& look)
{
    constexpr struct {
        int count;
        double size, lift;
        QRgb green, yellow;
    } Tones[]{{30, 4.2, 0, 0xFF2F5A38, 0xFF8A4A22},
              {70, 1.7, 1.2, 0xFF4E8440, 0xFFC87A2A},
              {56, 1.1, 3.4, 0xFF9CC452, 0xFFF2BC48}};
    painter.setPen(Qt::NoPen);
    int seed = 300;
    for (const auto& tone : Tones) {
        painter.setBrush(
            Dimmed(QColor(look.season == Season::Autumn ? tone.yellow : tone.green), look));
        for (int i = 0; i < tone.count; ++i, seed += 3) {
            const double up = Scatter(seed);
            const double half = 15 * std::sqrt(std::max(0.1, 1 - std::pow(2 * up - 0.85, 2)));
            const QPointF place(86 - tone.lift * 0.5 + half * (2 * Scatter(seed + 1) - 1),
                                148 - 25 * up - tone.lift);
            const double size = tone.size * (0.7 + 0.5 * Scatter(seed + 2));
            painter.drawEllipse(place, size, size * 0.8);
        }
    }
}

} // namespace

void PaintHouses(QPainter& painter, const RoomLook& look)
{
    const HouseColours& colours = Colours[static_cast<int>(look.daylight)];
    for (const House& house : Houses) {
        PaintHouse(painter, house, colours, look.season == Season::Winter);
    }
}

void PaintYard(QPainter& painter, const RoomLook& look)
{
    const HouseColours& colours = Colours[static_cast<int>(look.daylight)];
    painter.setPen(QPen(Dimmed(QColor(0x4A, 0x36, 0x2C), look), 2, Qt::SolidLine, Qt::RoundCap));
    Branch(painter, {86, 156}, 12, 90, 1.8, 4);
    if (look.season == Season::Winter) { // snow lies on the upper side
        painter.setPen(QPen(QColor(colours.snow), 2, Qt::SolidLine, Qt::RoundCap));
        Branch(painter, {85.7, 155.4}, 12, 90, 0.7, 3);
    }
    painter.setPen(Qt::NoPen);
    if (!look.bareTree) {
        PaintLeaves(painter, look);
    }
    if (look.season == Season::Winter) { // on the ledge before the glass
        QPainterPath drift(QPointF(10, 153));
        drift.cubicTo(16, 146, 26, 149, 34, 148.2);
        drift.cubicTo(44, 147, 52, 149.4, 58, 147);
        drift.cubicTo(70, 149.6, 84, 146.6, 96, 148);
        drift.cubicTo(102, 148, 108, 146, 114, 148);
        drift.lineTo(114, 153);
        painter.setBrush(QColor(colours.snow));
        painter.drawPath(drift);
    }
    if (look.Part(Slot::Modem) >= 3) { // the dish, on a bracket at the frame
        const QColor white = Dimmed(QColor(0xE6, 0xE4, 0xDA), look);
        painter.setPen(QPen(Dimmed(QColor(0x60, 0x60, 0x62), look), 1.2));
        painter.drawLine(QPointF(14, 141), QPointF(25, 137));
        painter.setPen(Qt::NoPen);
        painter.save();
        painter.translate(27, 132);
        painter.rotate(-32);
        painter.setBrush(white.darker(150));
        painter.drawEllipse(QPointF(0.6, 0.8), 6.2, 10);
        painter.setBrush(white);
        painter.drawEllipse(QPointF(-0.4, 0), 5.4, 9.4);
        painter.restore();
        painter.setPen(QPen(Dimmed(QColor(0x50, 0x50, 0x54), look), 0.8));
        painter.drawLine(QPointF(31, 139), QPointF(37, 126));
        painter.drawLine(QPointF(24, 124), QPointF(37, 126));
        painter.setPen(Qt::NoPen);
        painter.setBrush(Dimmed(QColor(0x9A, 0x9A, 0x9E), look));
        painter.drawEllipse(QPointF(37.4, 126), 1.7, 1.7);
    }
}

void PaintPlant(QPainter& painter, const RoomLook& look)
{
    const QColor light = LightAt(look, {47, 135});
    constexpr QRgb Leaves[]{0xFF2C5238, 0xFF3F7244, 0xFF62964E};
    constexpr QRgb Petals[]{0xFFA82F38, 0xFFE0504A, 0xFFFF8A76};
    painter.save();
    painter.setPen(QPen(Lit(QColor(0x3A, 0x5E, 0x34), light), 0.7));
    for (const QPointF tip : {QPointF(40, 124), QPointF(50, 120), QPointF(56.5, 127)}) {
        painter.drawLine(QPointF(47, 142), tip);
    }
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 36; ++i) {
        painter.setBrush(Lit(QColor(Leaves[i / 12]), light));
        const double turn = 6.283 * Scatter(i * 4 + 900);
        const double far = 0.2 + 0.8 * Scatter(i * 4 + 901);
        const QPointF leaf(47 + 10.5 * far * std::cos(turn) - i * 0.05,
                           139 + 6 * far * std::sin(turn) - i * 0.14);
        painter.drawEllipse(leaf, 2.7 - i * 0.03, 2.1 - i * 0.02);
    }
    for (const QPointF head : {QPointF(40, 123), QPointF(50, 119.5), QPointF(56.5, 126)}) {
        for (int i = 0; i < 15; ++i) {
            painter.setBrush(Lit(QColor(Petals[i / 5]), light));
            const QPointF petal(head.x() + 5 * (Scatter(i * 2 + 700) - 0.5) - i * 0.03,
                                head.y() + 4 * (Scatter(i * 2 + 701) - 0.5) - i * 0.06);
            painter.drawEllipse(petal, 1, 0.9);
        }
    }
    painter.restore();
}

} // namespace torvenhall
