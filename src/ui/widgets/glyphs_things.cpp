// What the shops of equipment sell.

#include "ui/widgets/glyphstrokes.h"

namespace torvenhall
{

void Memory(Strokes& draw)
{
    draw.Body({{1.5, 4},
               {14.5, 4},
               {14.5, 11.5},
               {9, 11.5},
               {8.5, 10.7},
               {8, 11.5},
               {1.5, 11.5},
               {1.5, 4}});
    for (const double at : {3.4, 6.8, 10.2}) {
        draw.solid.addRect(at, 5.8, 2.4, 3.2);
    }
    for (const double at : {3.0, 5.5, 11.0, 13.5}) {
        draw.Line(at, 11.5, at, 13);
    }
}

void VideoCard(Strokes& draw)
{
    draw.Line(1.8, 2, 1.8, 14);
    draw.Box(2, 4, 12.5, 7, 1);
    draw.Ring(9.6, 7.5, 2.4);
    draw.Dot(9.6, 7.5, 0.9);
    draw.Line(4.2, 6, 5.6, 6);
    draw.Line(4.2, 8.5, 5.6, 8.5);
    draw.Line(4.5, 12.8, 11, 12.8);
}

void HardDisk(Strokes& draw)
{
    draw.Box(3, 1.5, 10, 13, 1.4);
    draw.Ring(8, 6.3, 3.3);
    draw.Dot(8, 6.3, 0.9);
    draw.Line(11, 12.3, 8.8, 8.2);
    draw.Dot(11, 12.3, 0.9);
}

void Disc(Strokes& draw)
{
    draw.Disc(8, 8, 6.5, 6.5);
    draw.Ring(8, 8, 1.8);
    draw.Curve({3.9, 7.2}, {4.3, 5.4}, {5.4, 4.3}, {7.2, 3.9});
    draw.Curve({12.1, 8.8}, {11.7, 10.6}, {10.6, 11.7}, {8.8, 12.1});
}

void Modem(Strokes& draw)
{
    draw.Box(1.5, 8, 13, 5.5, 1.2);
    for (const double at : {4.0, 6.6, 9.2}) {
        draw.Dot(at, 10.8, 0.8);
    }
    draw.Line(12, 8, 12, 4.5);
    draw.Curve({9.8, 5}, {9.2, 3.4}, {10.4, 1.8}, {12, 1.8});
    draw.Curve({14.2, 5}, {14.8, 3.4}, {13.6, 1.8}, {12, 1.8});
}

void Speaker(Strokes& draw)
{
    draw.Body({{1.8, 6}, {4.6, 6}, {8.4, 2.6}, {8.4, 13.4}, {4.6, 10}, {1.8, 10}, {1.8, 6}});
    draw.Curve({10.6, 5.8}, {11.8, 7}, {11.8, 9}, {10.6, 10.2});
    draw.Curve({12.6, 3.9}, {15, 6.2}, {15, 9.8}, {12.6, 12.1});
}

void Scanner(Strokes& draw)
{
    draw.Box(1.5, 9.5, 13, 4, 1);
    draw.Body({{2.2, 9.3}, {4.2, 3}, {14.6, 3}, {14, 9.3}, {2.2, 9.3}});
    draw.Line(4, 11.5, 9.5, 11.5);
    draw.Dot(12, 11.5, 0.8);
}

void Printer(Strokes& draw)
{
    draw.Box(1.5, 6, 13, 5.5, 1.2);
    draw.Through({{4, 6}, {4, 1.8}, {12, 1.8}, {12, 6}});
    draw.Body({{4, 9.5}, {12, 9.5}, {12, 14.3}, {4, 14.3}, {4, 9.5}});
    draw.Line(6, 11.5, 10, 11.5);
    draw.Dot(12.4, 8, 0.7);
}

void Window(Strokes& draw)
{
    draw.Box(1.5, 2.5, 13, 11, 1.2);
    draw.Line(1.5, 5.6, 14.5, 5.6);
    draw.Dot(3.6, 4.1, 0.65);
    draw.Dot(5.6, 4.1, 0.65);
    draw.Line(4, 8.3, 9, 8.3);
    draw.Line(4, 10.8, 11.5, 10.8);
}

void Shield(Strokes& draw)
{
    draw.lines.moveTo(8, 1.5);
    draw.lines.cubicTo(9.8, 2.9, 11.6, 3.5, 13.8, 3.6);
    draw.lines.cubicTo(13.8, 8.6, 12.4, 12.2, 8, 14.5);
    draw.lines.cubicTo(3.6, 12.2, 2.2, 8.6, 2.2, 3.6);
    draw.lines.cubicTo(4.4, 3.5, 6.2, 2.9, 8, 1.5);
    draw.tint = draw.lines;
    draw.Through({{5.3, 8}, {7.3, 10}, {10.9, 5.8}});
}

void Code(Strokes& draw)
{
    draw.Through({{5, 3.8}, {1.5, 8}, {5, 12.2}});
    draw.Through({{11, 3.8}, {14.5, 8}, {11, 12.2}});
    draw.Line(9.4, 2.5, 6.6, 13.5);
}

void Palette(Strokes& draw)
{
    draw.lines.moveTo(8, 2);
    draw.lines.cubicTo(12.4, 2, 14.6, 4.8, 14.5, 7.4);
    draw.lines.cubicTo(14.4, 9.8, 12.4, 10.2, 10.8, 9.8);
    draw.lines.cubicTo(9, 9.5, 8.6, 11, 9.5, 12);
    draw.lines.cubicTo(10.4, 13.2, 9.4, 14, 8, 14);
    draw.lines.cubicTo(4.2, 14, 1.5, 11.4, 1.5, 8);
    draw.lines.cubicTo(1.5, 4.6, 4.2, 2, 8, 2);
    draw.tint = draw.lines;
    draw.Dot(4.6, 8.6, 1.05);
    draw.Dot(5.8, 5.3, 1.05);
    draw.Dot(9, 4.4, 1.05);
    draw.Dot(12, 6.3, 1.05);
}

void Gamepad(Strokes& draw)
{
    draw.lines.moveTo(4.6, 4.2);
    draw.lines.lineTo(11.4, 4.2);
    draw.lines.cubicTo(13.6, 4.2, 15, 9.6, 14.6, 12);
    draw.lines.cubicTo(14.2, 13.8, 12, 13.4, 10.7, 10.8);
    draw.lines.lineTo(5.3, 10.8);
    draw.lines.cubicTo(4, 13.4, 1.8, 13.8, 1.4, 12);
    draw.lines.cubicTo(1, 9.6, 2.4, 4.2, 4.6, 4.2);
    draw.tint = draw.lines;
    draw.Line(3.6, 7.5, 6.6, 7.5);
    draw.Line(5.1, 6, 5.1, 9);
    draw.Dot(10.3, 8.3, 0.9);
    draw.Dot(12.2, 6.6, 0.9);
}

} // namespace torvenhall
