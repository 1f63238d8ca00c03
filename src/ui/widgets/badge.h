#pragma once

#include <QRectF>

class QPainter;

namespace torvenhall
{

/// What stands in the way of a choice, or what is special about it.
enum class Badge : unsigned char {
    None,
    Best,         ///< there is no better one: a check mark
    TooDear,      ///< a coin
    NotQualified, ///< a lock
    Present,      ///< what one is already: a star
};

void DrawBadge(QPainter& painter, Badge badge, const QRectF& square);

} // namespace torvenhall
