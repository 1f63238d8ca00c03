#pragma once

#include <QPainter>

#include <cmath>

namespace torvenhall
{

/// Draws what lies in a place, in the painter's units, a few rows of pixels at a
/// time. A larger fill the toolkit would share among threads; to start those and
/// to wait for them costs more than the fill.
template <typename Draw>
void InStrips(QPainter& painter, const QRectF& place, Draw draw)
{
    // Whole pixels on a screen of any quarter's density: no row is drawn twice.
    constexpr int rows = 24;
    const QTransform world = painter.worldTransform();
    const QRect around = world.mapRect(place).toAlignedRect();
    const double first = std::floor(around.top() / static_cast<double>(rows)) * rows;
    for (int top = static_cast<int>(first); top <= around.bottom(); top += rows) {
        painter.save();
        painter.resetTransform();
        painter.setClipRect(QRect(around.left(), top, around.width(), rows), Qt::IntersectClip);
        painter.setTransform(world);
        draw();
        painter.restore();
    }
}

} // namespace torvenhall
