#pragma once

#include <QColor>
#include <QIcon>
#include <QRectF>

class QPainter;

namespace torvenhall
{

/// The small line drawings of the buttons, rows and boxes.
enum class Glyph : unsigned char {
    None,
    Chip,
    Diskette,
    Dice,
    Cross,
    Basket,
    Briefcase,
    Book,
    Globe,
    Back,
    Play,
    Minimise,
    Phone,
    HangUp,
    Screen,
    Download,
    Upload,
    Information,
    Exclamation,
    Question,
    Stop,
    // What rows of choices offer.
    Memory,
    VideoCard,
    HardDisk,
    Disc,
    Modem,
    Speaker,
    Scanner,
    Printer,
    Window,
    Shield,
    Code,
    Palette,
    Gamepad,
    Glass,
    Steam,
    Bench,
    Cup,
    Bed,
    Pills,
    Bandage,
    Stethoscope,
    Cradle,
    Bottle,
    Flask,
    Burger,
    Kids,
    Chocolate,
    Egg,
    Plate,
    Broom,
    Wrench,
    Gear,
    Chart,
    Compass,
    Abacus,
    Server,
    Mask,
    Crown,
};

/// Draws a glyph into a square.
void DrawGlyph(QPainter& painter, Glyph glyph, const QRectF& square, const QColor& ink);

QIcon GlyphIcon(Glyph glyph, const QColor& ink);

} // namespace torvenhall
