#pragma once

#include "ui/widgets/glyphs.h"

namespace torvenhall
{

// What each row of each place is, in the order of the rows.

inline constexpr Glyph HardwareGlyphs[]{
    Glyph::Chip,     // processor
    Glyph::Chip,     // memory
    Glyph::Screen,   // video card
    Glyph::Diskette, // hard disk
    Glyph::Diskette, // disc drive
    Glyph::Phone,    // modem
    Glyph::Play,     // sound
    Glyph::Screen,   // scanner
    Glyph::Upload,   // printer
};
inline constexpr Glyph SoftwareGlyphs[]{
    Glyph::Screen,    // operating system
    Glyph::Cross,     // antivirus
    Glyph::Book,      // programming
    Glyph::Briefcase, // graphics
    Glyph::Globe,     // browser
    Glyph::Dice,      // games
};
inline constexpr Glyph EntertainmentGlyphs[]{
    Glyph::Dice,     // casino
    Glyph::Basket,   // restaurant
    Glyph::Upload,   // sauna
    Glyph::Minimise, // five minutes' rest
    Glyph::Play,     // break
};
inline constexpr Glyph HospitalGlyphs[]{
    Glyph::Cross,    // the full course
    Glyph::Cross,    // medicines
    Glyph::Cross,    // a dislocation
    Glyph::Question, // an examination
    Glyph::Cross,    // a birth
    Glyph::Download, // vodka
    Glyph::Download, // spirit
};
inline constexpr Glyph FoodGlyphs[]{
    Glyph::Basket, // a burger
    Glyph::Basket, // a meal with the children
    Glyph::Basket, // chocolate
    Glyph::Basket, // fried eggs
    Glyph::Basket, // a proper meal
};
inline constexpr Glyph JobGlyphs[]{
    Glyph::Briefcase, // caretaker
    Glyph::Briefcase, // plumber
    Glyph::Briefcase, // engineer
    Glyph::Briefcase, // manager
    Glyph::Briefcase, // designer
    Glyph::Briefcase, // architect
    Glyph::Briefcase, // bookkeeper
    Glyph::Screen,    // programmer
    Glyph::Screen,    // administrator
    Glyph::Screen,    // security expert
    Glyph::Screen,    // hacker
    Glyph::Screen,    // boss
};
inline constexpr Glyph SchoolGlyph = Glyph::Book;
inline constexpr Glyph CoursesGlyph = Glyph::Screen;

} // namespace torvenhall
