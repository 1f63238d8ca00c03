#pragma once

#include <QPainterPath>
#include <QPolygonF>

#include <initializer_list>

namespace torvenhall
{

/// What a glyph is made of, on a grid of 16 by 16.
struct Strokes {
    QPainterPath lines; ///< drawn with the pen
    QPainterPath solid; ///< filled
    QPainterPath tint;  ///< filled with a breath of the same ink

    void Line(double x1, double y1, double x2, double y2)
    {
        lines.moveTo(x1, y1);
        lines.lineTo(x2, y2);
    }
    void Through(std::initializer_list<QPointF> points) { lines.addPolygon(QPolygonF(points)); }
    void Dot(double x, double y, double radius) { solid.addEllipse(QPointF(x, y), radius, radius); }
    void Ring(double x, double y, double radius)
    {
        lines.addEllipse(QPointF(x, y), radius, radius);
    }
    /// A box whose inside is tinted.
    void Box(double x, double y, double width, double height, double corner)
    {
        lines.addRoundedRect(x, y, width, height, corner, corner);
        tint.addRoundedRect(x, y, width, height, corner, corner);
    }
    /// A body of any outline whose inside is tinted.
    void Body(std::initializer_list<QPointF> points)
    {
        Through(points);
        tint.addPolygon(QPolygonF(points));
    }
    /// A rounded body.
    void Disc(double x, double y, double across, double down)
    {
        lines.addEllipse(QPointF(x, y), across, down);
        tint.addEllipse(QPointF(x, y), across, down);
    }
    void Curve(QPointF from, QPointF first, QPointF second, QPointF to)
    {
        lines.moveTo(from);
        lines.cubicTo(first, second, to);
    }
};

using Drawing = void (*)(Strokes&);

// The things that rows of choices offer (glyphs_things.cpp, glyphs_lives.cpp).
void Memory(Strokes& draw);
void VideoCard(Strokes& draw);
void HardDisk(Strokes& draw);
void Disc(Strokes& draw);
void Modem(Strokes& draw);
void Speaker(Strokes& draw);
void Scanner(Strokes& draw);
void Printer(Strokes& draw);
void Window(Strokes& draw);
void Shield(Strokes& draw);
void Code(Strokes& draw);
void Palette(Strokes& draw);
void Gamepad(Strokes& draw);
void Glass(Strokes& draw);
void Steam(Strokes& draw);
void Bench(Strokes& draw);
void Cup(Strokes& draw);
void Bed(Strokes& draw);
void Pills(Strokes& draw);
void Bandage(Strokes& draw);
void Stethoscope(Strokes& draw);
void Cradle(Strokes& draw);
void Bottle(Strokes& draw);
void Flask(Strokes& draw);
void Burger(Strokes& draw);
void Kids(Strokes& draw);
void Chocolate(Strokes& draw);
void Egg(Strokes& draw);
void Plate(Strokes& draw);
void Broom(Strokes& draw);
void Wrench(Strokes& draw);
void Gear(Strokes& draw);
void Chart(Strokes& draw);
void Compass(Strokes& draw);
void Abacus(Strokes& draw);
void Server(Strokes& draw);
void Mask(Strokes& draw);
void Crown(Strokes& draw);

} // namespace torvenhall
