#include "ui/widgets/glyphs.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <iterator>

#include "ui/widgets/glyphstrokes.h"

namespace torvenhall
{

namespace
{

void Chip(Strokes& draw)
{
    draw.Box(3.5, 3.5, 9, 9, 1);
    draw.lines.addRect(6, 6, 4, 4);
    for (const double at : {5.5, 8.0, 10.5}) {
        draw.Line(at, 1, at, 3.5);
        draw.Line(at, 12.5, at, 15);
        draw.Line(1, at, 3.5, at);
        draw.Line(12.5, at, 15, at);
    }
}

void Diskette(Strokes& draw)
{
    draw.Body({{2, 2}, {11.5, 2}, {14, 4.5}, {14, 14}, {2, 14}, {2, 2}});
    draw.Through({{4.5, 14}, {4.5, 9}, {11.5, 9}, {11.5, 14}});
    draw.Through({{5, 2}, {5, 5.5}, {10.5, 5.5}, {10.5, 2}});
}

void Dice(Strokes& draw)
{
    draw.Box(2, 2, 12, 12, 2.5);
    for (const QPointF at :
         {QPointF(5, 5), QPointF(11, 5), QPointF(8, 8), QPointF(5, 11), QPointF(11, 11)}) {
        draw.Dot(at.x(), at.y(), 1.15);
    }
}

void Cross(Strokes& draw)
{
    draw.Body({{6, 2},
               {10, 2},
               {10, 6},
               {14, 6},
               {14, 10},
               {10, 10},
               {10, 14},
               {6, 14},
               {6, 10},
               {2, 10},
               {2, 6},
               {6, 6},
               {6, 2}});
}

void Basket(Strokes& draw)
{
    draw.Through({{1, 2.5}, {3.2, 2.5}, {5, 10.5}, {13, 10.5}, {14.5, 4.8}, {3.8, 4.8}});
    draw.Dot(6, 13.3, 1.3);
    draw.Dot(12, 13.3, 1.3);
}

void Briefcase(Strokes& draw)
{
    draw.Box(1.5, 5, 13, 9, 1.2);
    draw.Through({{5.5, 5}, {5.5, 2.5}, {10.5, 2.5}, {10.5, 5}});
    draw.Line(1.5, 9, 14.5, 9);
    draw.Line(8, 8, 8, 10.2);
}

void Book(Strokes& draw)
{
    draw.Body({{8, 4},
               {5, 2.8},
               {1.5, 3},
               {1.5, 13},
               {5, 12.8},
               {8, 14},
               {11, 12.8},
               {14.5, 13},
               {14.5, 3},
               {11, 2.8},
               {8, 4},
               {8, 14}});
}

void Globe(Strokes& draw)
{
    draw.Disc(8, 8, 6.5, 6.5);
    draw.lines.addEllipse(QPointF(8, 8), 3, 6.5);
    draw.Line(1.5, 8, 14.5, 8);
}

void Phone(Strokes& draw)
{
    draw.Through({{1.5, 6.5},
                  {2.5, 4},
                  {8, 2.8},
                  {13.5, 4},
                  {14.5, 6.5},
                  {11.5, 7.2},
                  {10.8, 5.3},
                  {5.2, 5.3},
                  {4.5, 7.2},
                  {1.5, 6.5}});
    draw.Through({{5.2, 7.5}, {10.8, 7.5}, {13.5, 13.5}, {2.5, 13.5}, {5.2, 7.5}});
    draw.lines.addEllipse(QPointF(8, 10.5), 1.6, 1.6);
}

void Screen(Strokes& draw)
{
    draw.Box(1.5, 2.5, 13, 9, 1);
    draw.Line(5, 14, 11, 14);
    draw.Line(8, 11.5, 8, 14);
}

void Arrow(Strokes& draw, double tip, double tail)
{
    const double side = tip > tail ? tip - 3.5 : tip + 3.5;
    draw.Line(8, tail, 8, tip);
    draw.Through({{4.5, side}, {8, tip}, {11.5, side}});
    draw.Line(3, 14, 13, 14);
}

void Download(Strokes& draw)
{
    Arrow(draw, 11, 2);
}

void Upload(Strokes& draw)
{
    Arrow(draw, 2, 11);
}

void Back(Strokes& draw)
{
    draw.Line(2, 8, 14, 8);
    draw.Through({{6.5, 3.5}, {2, 8}, {6.5, 12.5}});
}

void Play(Strokes& draw)
{
    draw.Through({{4, 2.5}, {13, 8}, {4, 13.5}, {4, 2.5}});
}

void Minimise(Strokes& draw)
{
    draw.lines.addRoundedRect(1.5, 2.5, 13, 11, 1.2, 1.2);
    draw.Line(4.5, 10.5, 9, 10.5);
}

void Saltire(Strokes& draw, double from, double to)
{
    draw.Line(from, from, to, to);
    draw.Line(to, from, from, to);
}

void HangUp(Strokes& draw)
{
    Saltire(draw, 3.5, 12.5);
}

void Ring(Strokes& draw)
{
    draw.lines.addEllipse(QPointF(8, 8), 6.8, 6.8);
}

void Information(Strokes& draw)
{
    Ring(draw);
    draw.Line(8, 7.2, 8, 11.6);
    draw.Dot(8, 4.6, 0.95);
}

void Exclamation(Strokes& draw)
{
    draw.Through({{8, 1.6}, {15, 14}, {1, 14}, {8, 1.6}});
    draw.Line(8, 6, 8, 9.8);
    draw.Dot(8, 12, 0.95);
}

void Question(Strokes& draw)
{
    Ring(draw);
    draw.lines.moveTo(6, 6.4);
    draw.lines.cubicTo(6, 3.6, 10.2, 3.8, 10.1, 6.3);
    draw.lines.cubicTo(10, 7.8, 8, 7.9, 8, 9.6);
    draw.Dot(8, 11.8, 0.95);
}

void Stop(Strokes& draw)
{
    Ring(draw);
    Saltire(draw, 5.4, 10.6);
}

/// In the order of Glyph, without None.
constexpr Drawing Drawings[] = {
    Chip,        Diskette,    Dice,     Cross,   Basket, Briefcase, Book,      Globe,
    Back,        Play,        Minimise, Phone,   HangUp, Screen,    Download,  Upload,
    Information, Exclamation, Question, Stop,    Memory, VideoCard, HardDisk,  Disc,
    Modem,       Speaker,     Scanner,  Printer, Window, Shield,    Code,      Palette,
    Gamepad,     Glass,       Steam,    Bench,   Cup,    Bed,       Pills,     Bandage,
    Stethoscope, Cradle,      Bottle,   Flask,   Burger, Kids,      Chocolate, Egg,
    Plate,       Broom,       Wrench,   Gear,    Chart,  Compass,   Abacus,    Server,
    Mask,        Crown,
};
static_assert(std::size(Drawings) == static_cast<std::size_t>(Glyph::Crown));

Strokes StrokesOf(Glyph glyph)
{
    Strokes draw;
    if (glyph != Glyph::None) {
        Drawings[static_cast<std::size_t>(glyph) - 1](draw);
    }
    return draw;
}

} // namespace

void DrawGlyph(QPainter& painter, Glyph glyph, const QRectF& square, const QColor& ink)
{
    const Strokes draw = StrokesOf(glyph);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.topLeft());
    painter.scale(square.width() / 16, square.height() / 16);
    painter.setPen(QPen(ink, 1.25, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    QColor breath = ink;
    breath.setAlphaF(0.22F * breath.alphaF());
    painter.fillPath(draw.tint, breath);
    painter.drawPath(draw.lines);
    painter.fillPath(draw.solid, ink);
    painter.restore();
}

QIcon GlyphIcon(Glyph glyph, const QColor& ink)
{
    constexpr int size = 128;
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    DrawGlyph(painter, glyph, QRectF(4, 4, size - 8, size - 8), ink);
    return QIcon(pixmap);
}

} // namespace torvenhall
