#pragma once

#include "ui/widgets/glyphs.h"

namespace torvenhall
{

// What each row of each place is, in the order of the rows.

inline constexpr Glyph HardwareGlyphs[]{
    Glyph::Chip,      // processor
    Glyph::Memory,    // memory
    Glyph::VideoCard, // video card
    Glyph::HardDisk,  // hard disk
    Glyph::Disc,      // disc drive
    Glyph::Modem,     // modem
    Glyph::Speaker,   // sound
    Glyph::Scanner,   // scanner
    Glyph::Printer,   // printer
};
inline constexpr Glyph SoftwareGlyphs[]{
    Glyph::Window,  // operating system
    Glyph::Shield,  // antivirus
    Glyph::Code,    // programming
    Glyph::Palette, // graphics
    Glyph::Globe,   // browser
    Glyph::Gamepad, // games
};
inline constexpr Glyph EntertainmentGlyphs[]{
    Glyph::Dice,  // casino
    Glyph::Glass, // restaurant
    Glyph::Steam, // sauna
    Glyph::Bench, // five minutes' rest
    Glyph::Cup,   // break
};
inline constexpr Glyph HospitalGlyphs[]{
    Glyph::Bed,         // the full course
    Glyph::Pills,       // medicines
    Glyph::Bandage,     // a dislocation
    Glyph::Stethoscope, // an examination
    Glyph::Cradle,      // a birth
    Glyph::Bottle,      // vodka
    Glyph::Flask,       // spirit
};
inline constexpr Glyph FoodGlyphs[]{
    Glyph::Burger,    // a burger
    Glyph::Kids,      // a meal with the children
    Glyph::Chocolate, // chocolate
    Glyph::Egg,       // fried eggs
    Glyph::Plate,     // a proper meal
};
inline constexpr Glyph JobGlyphs[]{
    Glyph::Broom,   // caretaker
    Glyph::Wrench,  // plumber
    Glyph::Gear,    // engineer
    Glyph::Chart,   // manager
    Glyph::Palette, // designer
    Glyph::Compass, // architect
    Glyph::Abacus,  // bookkeeper
    Glyph::Code,    // programmer
    Glyph::Server,  // administrator
    Glyph::Shield,  // security expert
    Glyph::Mask,    // hacker
    Glyph::Crown,   // boss
};
inline constexpr Glyph SchoolGlyph = Glyph::Book;
inline constexpr Glyph CoursesGlyph = Glyph::Screen;

} // namespace torvenhall
