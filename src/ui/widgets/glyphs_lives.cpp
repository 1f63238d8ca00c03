// What relief is sold, and who works as what.

#include "ui/widgets/glyphstrokes.h"

#include <cmath>
#include <numbers>

namespace torvenhall
{

void Glass(Strokes& draw)
{
    draw.Body({{3, 2}, {13, 2}, {8, 8.6}, {3, 2}});
    draw.Line(8, 8.6, 8, 13.8);
    draw.Line(4.8, 14, 11.2, 14);
    draw.Line(4.6, 4.2, 11.4, 4.2);
}

void Steam(Strokes& draw)
{
    for (const double at : {4.0, 8.0, 12.0}) {
        draw.Curve({at, 9.6}, {at - 2.4, 7.2}, {at + 2.4, 4.6}, {at, 2});
    }
    draw.Body({{1.8, 11.5}, {14.2, 11.5}, {13, 14.4}, {3, 14.4}, {1.8, 11.5}});
}

void Bench(Strokes& draw)
{
    draw.Box(1.5, 3.4, 13, 2, 0.6);
    draw.Box(1.5, 8.2, 13, 2, 0.6);
    for (const double at : {3.8, 12.2}) {
        draw.Line(at, 5.4, at, 8.2);
        draw.Line(at, 10.2, at, 14);
    }
}

void Cup(Strokes& draw)
{
    draw.Body({{2, 6.5}, {11, 6.5}, {10.4, 12.4}, {9, 14}, {4, 14}, {2.6, 12.4}, {2, 6.5}});
    draw.Curve({10.9, 7.6}, {15.2, 6.8}, {15, 12}, {10.6, 11.6});
    draw.Curve({5, 4.6}, {4.2, 3.6}, {5.8, 2.8}, {5, 1.6});
    draw.Curve({8.2, 4.6}, {7.4, 3.6}, {9, 2.8}, {8.2, 1.6});
}

void Bed(Strokes& draw)
{
    draw.Line(1.6, 3, 1.6, 13.8);
    draw.Line(14.4, 9, 14.4, 13.8);
    draw.Line(1.6, 11.8, 14.4, 11.8);
    draw.Body({{6.6, 11.8}, {6.6, 7}, {11.6, 7}, {14.4, 9}, {14.4, 11.8}, {6.6, 11.8}});
    draw.Disc(4.1, 8.6, 1.6, 1.6);
}

void Pills(Strokes& draw)
{
    QPainterPath capsule;
    capsule.addRoundedRect(-6.4, -2.5, 12.8, 5, 2.5, 2.5);
    QTransform turned;
    turned.translate(6.9, 6.9);
    turned.rotate(-45);
    draw.lines.addPath(turned.map(capsule));
    QPainterPath half;
    half.addRoundedRect(-6.4, -2.5, 6.4, 5, 2.5, 2.5);
    draw.solid.addPath(turned.map(half));
    draw.Disc(12, 12, 2.4, 2.4);
}

void Bandage(Strokes& draw)
{
    QPainterPath strip;
    strip.addRoundedRect(-7, -2.7, 14, 5.4, 2.7, 2.7);
    QTransform turned;
    turned.translate(8, 8);
    turned.rotate(-40);
    draw.lines.addPath(turned.map(strip));
    draw.tint.addPath(turned.map(strip));
    QPainterPath pad;
    pad.addRect(-2.4, -2.7, 4.8, 5.4);
    draw.lines.addPath(turned.map(pad));
    for (const double at : {-0.9, 0.9}) {
        const QPointF hole = turned.map(QPointF(at, 0));
        draw.Dot(hole.x(), hole.y(), 0.6);
    }
}

void Stethoscope(Strokes& draw)
{
    draw.Curve({3, 2}, {2.2, 9.6}, {9.8, 9.6}, {9, 2});
    draw.Line(2.4, 2, 4, 2);
    draw.Line(8, 2, 9.6, 2);
    draw.Curve({6, 7.8}, {6, 15.6}, {12.6, 15.6}, {12.6, 9.8});
    draw.Disc(12.6, 8, 1.8, 1.8);
}

void Cradle(Strokes& draw)
{
    draw.Body({{4.5, 7.5}, {14.4, 7.5}, {13, 11.6}, {5.4, 11.6}, {3, 7.5}, {4.5, 7.5}});
    draw.Curve({3, 7.5}, {2.8, 3.6}, {5.4, 1.8}, {8.4, 2.4});
    draw.Line(8.4, 2.4, 8.4, 7.5);
    draw.Curve({3.6, 13}, {6.4, 15}, {12, 15}, {14.4, 13});
    draw.Line(6.6, 11.6, 6, 14);
    draw.Line(11.8, 11.6, 12.4, 14);
}

void Bottle(Strokes& draw)
{
    draw.Body({{6.7, 1.5},
               {9.3, 1.5},
               {9.3, 5},
               {11.2, 7.2},
               {11.2, 14.4},
               {4.8, 14.4},
               {4.8, 7.2},
               {6.7, 5},
               {6.7, 1.5}});
    draw.Line(6.7, 3.2, 9.3, 3.2);
    draw.solid.addRect(4.8, 8.8, 6.4, 3.2);
}

void Flask(Strokes& draw)
{
    draw.Through({{6.4, 1.8},
                  {6.4, 6},
                  {2.4, 12.6},
                  {3.4, 14.4},
                  {12.6, 14.4},
                  {13.6, 12.6},
                  {9.6, 6},
                  {9.6, 1.8}});
    draw.Line(5.2, 1.8, 10.8, 1.8);
    draw.Line(4.4, 9.6, 11.6, 9.6);
    draw.tint.addPolygon(
        QPolygonF({{4.4, 9.6}, {11.6, 9.6}, {13.6, 12.6}, {12.6, 14.4}, {3.4, 14.4}, {2.4, 12.6}}));
    draw.Dot(7, 12, 0.8);
    draw.Dot(9.6, 11.4, 0.6);
}

void Burger(Strokes& draw)
{
    draw.lines.moveTo(1.8, 6.8);
    draw.lines.cubicTo(2, 1.2, 14, 1.2, 14.2, 6.8);
    draw.lines.closeSubpath();
    draw.tint = draw.lines;
    draw.Through({{1.5, 9}, {4, 10.2}, {6.5, 9}, {9, 10.2}, {11.5, 9}, {14.5, 10}});
    draw.Box(2, 11.6, 12, 2.8, 1.3);
    draw.Dot(6, 4.6, 0.55);
    draw.Dot(9.4, 4, 0.55);
}

void Kids(Strokes& draw)
{
    draw.Disc(5.2, 4.6, 2.5, 2.5);
    draw.Disc(11.6, 6.8, 2, 2);
    draw.Curve({1.8, 14}, {2, 7.8}, {8.4, 7.8}, {8.6, 14});
    draw.Curve({9.4, 10.6}, {11.6, 9.2}, {14.2, 10.4}, {14.4, 14});
    draw.Line(1.8, 14, 14.4, 14);
}

void Chocolate(Strokes& draw)
{
    draw.Box(3, 1.5, 10, 13, 1);
    draw.Line(8, 1.5, 8, 8.6);
    draw.Line(3, 5, 13, 5);
    draw.Through({{3, 8.8}, {5, 7.8}, {7, 9}, {9, 7.8}, {11, 9}, {13, 8}});
    draw.Line(5.4, 11.8, 10.6, 11.8);
}

void Egg(Strokes& draw)
{
    draw.lines.moveTo(3.4, 4);
    draw.lines.cubicTo(6, 0.8, 9.4, 3.4, 11.4, 3.2);
    draw.lines.cubicTo(14.6, 3, 15.4, 7, 13.6, 8.6);
    draw.lines.cubicTo(12.2, 9.8, 13.6, 12.8, 10.4, 14);
    draw.lines.cubicTo(7.4, 15, 6.4, 12.4, 4.2, 12.4);
    draw.lines.cubicTo(0.6, 12.2, 0.8, 7, 3.4, 4);
    draw.tint = draw.lines;
    draw.Dot(7.8, 8, 2.7);
}

void Plate(Strokes& draw)
{
    draw.Disc(8.4, 8, 4.3, 4.3);
    draw.Ring(8.4, 8, 2.2);
    draw.Line(2, 2.4, 2, 13.6);
    draw.Line(1, 2.4, 1, 5.4);
    draw.Line(3, 2.4, 3, 5.4);
    draw.Line(1, 5.4, 3, 5.4);
    draw.Curve({14.6, 2.2}, {13.2, 4}, {13.2, 6.6}, {14.6, 8.2});
    draw.Line(14.6, 2.2, 14.6, 13.6);
}

void Broom(Strokes& draw)
{
    draw.Line(13.8, 1.8, 8, 7.6);
    draw.Body({{6.4, 6.6}, {9.2, 9.4}, {6.8, 14.2}, {1.8, 9.2}, {6.4, 6.6}});
    draw.Line(4, 9.6, 6.4, 12);
    draw.Line(5.8, 8.6, 7.6, 10.4);
}

void Wrench(Strokes& draw)
{
    draw.Body({{13.9, 4.2},
               {11.4, 6.6},
               {9.5, 4.7},
               {11.9, 2.2},
               {9.6, 1.9},
               {7.3, 4.2},
               {7.6, 6.3},
               {2, 11.9},
               {2, 14},
               {4.1, 14},
               {9.7, 8.4},
               {11.8, 8.7},
               {14.1, 6.4},
               {13.9, 4.2}});
}

void Gear(Strokes& draw)
{
    constexpr int teeth = 8;
    QPolygonF rim;
    for (int i = 0; i < teeth * 4; ++i) {
        const double angle = std::numbers::pi * 2 * (i + 0.5) / (teeth * 4);
        const double radius = i % 4 < 2 ? 6.6 : 4.9;
        rim << QPointF(8 + radius * std::cos(angle), 8 + radius * std::sin(angle));
    }
    rim << rim.first();
    draw.lines.addPolygon(rim);
    draw.tint.addPolygon(rim);
    draw.Ring(8, 8, 2.1);
}

void Chart(Strokes& draw)
{
    draw.Through({{2, 1.8}, {2, 14}, {14.4, 14}});
    draw.Through({{4, 10.8}, {7, 7.4}, {9.4, 9.2}, {13.6, 3.6}});
    draw.Through({{10.8, 3.4}, {13.8, 3.2}, {13.8, 6.2}});
}

void Compass(Strokes& draw)
{
    draw.Disc(8, 3.6, 1.7, 1.7);
    draw.Line(7.2, 5.2, 3.4, 14);
    draw.Line(8.8, 5.2, 12.6, 14);
    draw.Curve({3, 9.4}, {6, 12.2}, {10, 12.2}, {13, 9.4});
    draw.Line(8, 1, 8, 1.9);
}

void Abacus(Strokes& draw)
{
    draw.Box(1.8, 1.8, 12.4, 12.4, 1.2);
    struct {
        double y;
        double beads[3];
    } const rows[]{{4.8, {4.2, 6.2, 11.4}}, {8, {4.2, 9.6, 11.6}}, {11.2, {4.2, 6.2, 8.2}}};
    for (const auto& row : rows) {
        draw.Line(1.8, row.y, 14.2, row.y);
        for (const double bead : row.beads) {
            draw.Dot(bead, row.y, 1.15);
        }
    }
}

void Server(Strokes& draw)
{
    for (const double top : {1.8, 6.2, 10.6}) {
        draw.Box(2, top, 12, 3.6, 0.8);
        draw.Dot(4.4, top + 1.8, 0.75);
        draw.Line(8, top + 1.8, 11.8, top + 1.8);
    }
}

void Mask(Strokes& draw)
{
    draw.lines.moveTo(1.4, 5.4);
    draw.lines.cubicTo(5, 3, 7, 5.6, 8, 5.6);
    draw.lines.cubicTo(9, 5.6, 11, 3, 14.6, 5.4);
    draw.lines.cubicTo(14.6, 9.6, 12.8, 11.8, 10.8, 11.8);
    draw.lines.cubicTo(9.2, 11.8, 8.8, 10, 8, 10);
    draw.lines.cubicTo(7.2, 10, 6.8, 11.8, 5.2, 11.8);
    draw.lines.cubicTo(3.2, 11.8, 1.4, 9.6, 1.4, 5.4);
    draw.tint = draw.lines;
    draw.solid.addEllipse(QPointF(5, 8), 1.6, 1.05);
    draw.solid.addEllipse(QPointF(11, 8), 1.6, 1.05);
}

void Crown(Strokes& draw)
{
    draw.Body({{2.6, 12.4},
               {1.6, 5},
               {5.2, 8},
               {8, 2.8},
               {10.8, 8},
               {14.4, 5},
               {13.4, 12.4},
               {2.6, 12.4}});
    draw.Line(3, 14.4, 13, 14.4);
    draw.Dot(8, 10, 0.9);
}

} // namespace torvenhall
