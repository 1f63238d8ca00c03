#pragma once

#include <QColor>
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
    bool primary = false; ///< what the window is there for
    bool focused = false;
    bool rivalled = false; ///< the mouse is on another one: the focus steps back
};

/// The one face of all the game's buttons, in toolkit pixels.
void PaintFace(QPainter& painter, const QRectF& place, const Face& face);
/// What texts stand on: nearly opaque, with rounded corners.
void PaintPanel(QPainter& painter, const QRectF& place, const QColor& tint, bool bordered = true);
/// What stands behind the panels of a window without a picture: a wall at
/// night with the light of a lamp from above.
void PaintWall(QPainter& painter, const QRectF& place);
/// The one mark of the focus: a thin outline.
void PaintFocus(QPainter& painter, const QRectF& place, double radius);

} // namespace torvenhall
