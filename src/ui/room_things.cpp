#include <algorithm>

#include "ui/roomparts.h"
#include "ui/widgets/pictures.h"

namespace torvenhall
{

namespace
{

/// Where a drawing is cut out of the sheet, and where it stands in the room.
struct Cut {
    QRectF source;
    QPointF place;
};

struct Thing {
    Slot slot;
    int level;
    Cut cut;
};

/// In the order of drawing: from the wall to the desk's edge. Level 0 is what
/// stands in for a thing that there is no money for yet.
constexpr Thing Things[]{
    {Slot::Case, 0, {{280, 256, 58, 18}, {147, 163}}},   // the place kept for it
    {Slot::Case, 3, {{358, 246, 42, 46}, {193, 60}}},    // a picture in a golden frame
    {Slot::Case, 3, {{190, 296, 52, 15}, {382, 182.5}}}, // the half-open drawer is full
    {Slot::Case, 3, {{244, 288, 34, 48}, {355, 72}}},    // a golden disc
    {Slot::Screen, 0, {{210, 208, 68, 72}, {200, 106}}},
    {Slot::Screen, 1, {{245, 0, 62, 58}, {200, 118}}},
    {Slot::Screen, 2, {{68, 0, 78, 73}, {186, 104}}},
    {Slot::Screen, 3, {{0, 0, 66, 74}, {198, 103}}},
    {Slot::Sound, 1, {{248, 127, 25, 29}, {181, 149}}},
    {Slot::Sound, 2, {{300, 76, 26, 40}, {180, 138}}},
    {Slot::Sound, 3, {{309, 0, 28, 51}, {179, 127}}},
    {Slot::Case, 1, {{156, 127, 54, 29}, {137, 150}}},
    {Slot::Case, 2, {{197, 0, 46, 68}, {146, 112}}},
    {Slot::Case, 3, {{148, 0, 47, 70}, {145, 110}}},
    {Slot::Disk, 1, {{120, 187, 42, 15}, {108, 166}}},
    {Slot::Disk, 2, {{243, 161, 42, 21}, {108, 160}}},
    {Slot::Disk, 3, {{0, 161, 45, 24}, {106, 157}}},
    {Slot::Discs, 1, {{164, 187, 30, 13}, {82, 168}}},
    {Slot::Discs, 2, {{287, 161, 28, 21}, {84, 160}}},
    {Slot::Discs, 3, {{212, 127, 34, 29}, {78, 152}}},
    {Slot::Scanner, 0, {{0, 296, 96, 38}, {12, 144}}}, // tea, and programs on paper
    {Slot::Scanner, 1, {{0, 187, 76, 18}, {2, 164}}},
    {Slot::Scanner, 2, {{317, 161, 66, 20}, {18, 162}}},
    {Slot::Scanner, 3, {{0, 127, 82, 32}, {8, 150}}},
    {Slot::Printer, 0, {{280, 208, 76, 46}, {438, 138}}}, // adverts and savings
    {Slot::Printer, 1, {{226, 76, 72, 45}, {444, 138}}},
    {Slot::Printer, 2, {{0, 76, 72, 49}, {444, 134}}},
    {Slot::Printer, 3, {{74, 76, 74, 49}, {442, 134}}},
    {Slot::Modem, 1, {{78, 187, 40, 16}, {416, 165}}},
    {Slot::Modem, 2, {{275, 127, 40, 29}, {416, 152}}},
    {Slot::Modem, 3, {{275, 127, 40, 29}, {416, 152}}},
    {Slot::Memory, 1, {{47, 161, 34, 23}, {482, 104}}},
    {Slot::Memory, 2, {{83, 161, 34, 23}, {482, 104}}},
    {Slot::Memory, 3, {{119, 161, 34, 23}, {482, 104}}},
};

// The hands come with what they type on: paper, or a real one.
constexpr Cut PaperKeyboard{{120, 240, 88, 30}, {226, 154}};
constexpr Cut Keyboard{{120, 208, 88, 30}, {226, 154}};
// The hero's other faces, laid over the one in the picture.
constexpr Cut Worried{{0, 208, 58, 70}, {288, 64}};
constexpr Cut Glad{{60, 208, 58, 70}, {288, 64}};
/// The corner of the wallpaper that is mended before anything else is bought.
constexpr Cut TornWallpaper{{360, 208, 40, 38}, {478, 57}};
constexpr int DiplomasOverTear = 4;
constexpr Cut Bachelor{{98, 296, 90, 34}, {390, 94}};
constexpr Cut Bride{{84, 127, 32, 32}, {392, 95}};
constexpr Cut Wedding{{118, 127, 36, 32}, {390, 95}};
constexpr QRectF Boys[]{{155, 161, 20, 23}, {177, 161, 20, 23}};
constexpr QRectF Girls[]{{199, 161, 20, 23}, {221, 161, 20, 23}};
constexpr QPointF FirstChild{420, 104};
constexpr double ChildStep = 14.6;
/// The second speaker is the first one's mirror image about this line.
constexpr double SpeakersMiddle = 303;

void Draw(QPainter& painter, const Cut& cut)
{
    DrawCutOut(painter, "THINGS", cut.source, QRectF(cut.place, cut.source.size()));
}

void DrawMirrored(QPainter& painter, const Cut& cut)
{
    painter.save();
    painter.translate(2 * SpeakersMiddle, 0);
    painter.scale(-1, 1);
    Draw(painter, cut);
    painter.restore();
}

void DrawFamily(QPainter& painter, const RoomLook& look)
{
    QPointF place = FirstChild;
    const auto portrait = [&](const QRectF& source) {
        Draw(painter, {source, place});
        place.rx() += ChildStep;
    };
    if (look.wedding) {
        Draw(painter, Wedding);
    } else if (look.bride) {
        Draw(painter, Bride);
    } else if (look.sons + look.daughters == 0) {
        Draw(painter, Bachelor);
    }
    std::for_each_n(Boys, look.sons, portrait);
    std::for_each_n(Girls, look.daughters, portrait);
}

} // namespace

void PaintThings(QPainter& painter, const RoomLook& look)
{
    const bool poor = look.Part(Slot::Case) == 0;
    if (poor && look.diplomas < DiplomasOverTear) {
        Draw(painter, TornWallpaper);
    }
    if (look.mood != Mood::Calm) {
        Draw(painter, look.mood == Mood::Glad ? Glad : Worried);
    }
    for (const Thing& thing : Things) {
        if (look.Part(thing.slot) != thing.level) {
            continue;
        }
        Draw(painter, thing.cut);
        if (thing.slot == Slot::Sound) {
            DrawMirrored(painter, thing.cut);
        }
    }
    Draw(painter, poor ? PaperKeyboard : Keyboard);
    DrawFamily(painter, look);
}

} // namespace torvenhall
