#include "ui/widgets/face.h"

#include <QPainter>

#include <algorithm>

#include "ui/widgets/colours.h"
#include "ui/widgets/metrics.h"

namespace torvenhall
{

namespace
{

struct Colours {
    QColor top, bottom, edge;
};

Colours ColoursOf(const Face& face)
{
    if (!face.usable) {
        return {{16, 22, 31}, {12, 18, 26}, {140, 214, 226, 34}};
    }
    if (face.down) {
        return {{9, 40, 50}, {15, 58, 70}, colour::LightCyan};
    }
    if (face.muted) {
        return face.lit ? Colours{{34, 39, 48}, {23, 27, 35}, {150, 160, 168, 150}}
                        : Colours{{24, 29, 38}, {17, 21, 29}, {150, 160, 168, 64}};
    }
    if (face.primary && !face.lit) {
        return {{30, 84, 98}, {17, 56, 68}, {140, 224, 236, 170}};
    }
    return face.lit ? Colours{{44, 88, 104}, {24, 58, 72}, {140, 214, 226, 210}}
                    : Colours{{36, 54, 73}, {20, 32, 46}, {140, 214, 226, 96}};
}

} // namespace

void PaintPanel(QPainter& painter, const QRectF& place, const QColor& tint, bool bordered)
{
    const double line = std::max(1.0, UnitScale());
    const double radius = Px(6);
    const QRectF plate = place.adjusted(line / 2, line / 2, -line / 2, -line / 2);
    QLinearGradient fill(plate.topLeft(), plate.bottomLeft());
    fill.setColorAt(0, tint.lighter(112));
    fill.setColorAt(1, tint);
    painter.setBrush(fill);
    painter.setPen(bordered ? QPen(colour::Border, line) : QPen(Qt::NoPen));
    painter.drawRoundedRect(plate, radius, radius);
}

void PaintWall(QPainter& painter, const QRectF& place)
{
    QRadialGradient light(QPointF(place.left() + place.width() * 0.75, place.top()), place.width());
    light.setColorAt(0, QColor(60, 62, 60));
    light.setColorAt(0.4, QColor(26, 38, 48));
    light.setColorAt(1, colour::Night);
    painter.fillRect(place, light);
}

void PaintFocus(QPainter& painter, const QRectF& place, double radius)
{
    const double width = std::max(1.0, UnitScale());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour::Warm, width));
    painter.drawRoundedRect(place.adjusted(width / 2, width / 2, -width / 2, -width / 2), radius,
                            radius);
}

void PaintFace(QPainter& painter, const QRectF& place, const Face& face)
{
    const double width = std::max(1.0, UnitScale());
    const double radius = Px(5);
    const QRectF plate = place.adjusted(width / 2, width / 2, -width / 2, -width / 2);
    const Colours colours = ColoursOf(face);
    QLinearGradient fill(plate.topLeft(), plate.bottomLeft());
    fill.setColorAt(0, colours.top);
    fill.setColorAt(1, colours.bottom);
    painter.setBrush(fill);
    painter.setPen(QPen(colours.edge, width));
    painter.drawRoundedRect(plate, radius, radius);
    if (face.usable && !face.down && !face.muted) { // the lamp's light on the upper edge
        painter.setPen(QPen(QColor(255, 255, 255, face.lit ? 56 : 28), width));
        painter.drawLine(plate.topLeft() + QPointF(radius, width),
                         plate.topRight() + QPointF(-radius, width));
    }
    if (face.focused && !face.rivalled) {
        const double gap = 2 * width;
        PaintFocus(painter, place.adjusted(gap, gap, -gap, -gap), radius - width);
    }
}

} // namespace torvenhall
