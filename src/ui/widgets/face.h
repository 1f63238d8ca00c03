#pragma once

#include <QRectF>

class QPainter;

namespace torvenhall
{

/// How a button looks at a moment.
struct Face {
    bool usable = true;
    bool down = false;
    bool lit = false; ///< under the mouse
    bool muted = false;
    bool focused = false;
};

/// The one face of all the game's buttons, in toolkit pixels.
void PaintFace(QPainter& painter, const QRectF& place, const Face& face);
/// The one mark of the focus: a thin outline.
void PaintFocus(QPainter& painter, const QRectF& place, double radius);

} // namespace torvenhall
