#include "ui/roomlook.h"

#include <algorithm>
#include <iterator>

#include "core/GameState.h"
#include "core/shown.h"
#include "equipment/hardware.h"
#include "network/network.h"

namespace torvenhall
{

namespace
{

/// The first part number that looks like drawing 1, 2 and 3 of a slot; 99 where
/// there are fewer drawings.
constexpr int FirstOfDrawing[][3]{
    {1, 3, 7}, // an old desktop case, a tower, a fancy tower
    {2, 4, 6}, // sticks of memory kept for show
    {1, 3, 6}, // a small tube, a big one, a flat screen
    {1, 4, 6}, // boxes of disks
    {1, 3, 5}, // discs on the spindle
    {1, 3, 6}, // a box, a better box, a dish at the window
    {1, 3, 5}, // speakers
    {1, 2, 5}, // a hand scanner, a flatbed, a big flatbed
    {1, 2, 3}, // matrix, ink, laser
};
static_assert(std::size(FirstOfDrawing) == Slots && Slots == HardwareCategories);

/// First and last hour of full daylight, by month.
constexpr struct {
    int from, to;
} Sunlight[]{{9, 16}, {9, 17}, {8, 18}, {7, 20}, {6, 21}, {5, 22},
             {5, 22}, {6, 21}, {7, 19}, {8, 18}, {9, 16}, {10, 15}};

constexpr int LightsGoOut = 23; ///< the houses go to bed
constexpr int RanksPerDiploma = 2;

Daylight DaylightAt(int hour, int month)
{
    const auto [from, to] = Sunlight[month - 1];
    if (hour >= from && hour <= to) {
        return Daylight::Day;
    }
    if (hour == from - 1 || hour == from - 2) {
        return Daylight::Dawn;
    }
    if (hour == to + 1 || hour == to + 2) {
        return hour < LightsGoOut ? Daylight::Dusk : Daylight::Night;
    }
    return hour > to && hour < LightsGoOut ? Daylight::Evening : Daylight::Night;
}

constexpr int GladFrom = 60; ///< mood, percent

/// Worried by whatever the main window shows as dangerous.
Mood PresentMood()
{
    constexpr Label Vital[]{Label::lblHappy, Label::lblEat, Label::lblHealth};
    if (std::ranges::any_of(Vital,
                            [](Label label) { return ShownAt(label).colour == TextColour::Red; })) {
        return Mood::Worried;
    }
    return GameState.Happy.value() >= GladFrom ? Mood::Glad : Mood::Calm;
}

constexpr Season Seasons[]{Season::Winter, Season::Winter, Season::Spring, Season::Spring,
                           Season::Spring, Season::Summer, Season::Summer, Season::Summer,
                           Season::Autumn, Season::Autumn, Season::Autumn, Season::Winter};

} // namespace

RoomLook PresentRoom()
{
    RoomLook look;
    look.day = static_cast<int>(static_cast<unsigned>(GameState.GameDate.day()));
    look.month = static_cast<int>(static_cast<unsigned>(GameState.GameDate.month()));
    look.daylight = DaylightAt(GameState.GameTime.hour, look.month);
    look.season = Seasons[look.month - 1];
    look.bareTree = look.month <= 4 || look.month >= 11;
    look.mood = PresentMood();
    for (int i = 0; i < Slots; ++i) {
        const int part = (GameState.*Hardware[i].field).value();
        const auto& first = FirstOfDrawing[i];
        look.parts[static_cast<std::size_t>(i)] = static_cast<int>(
            std::count_if(std::begin(first), std::end(first), [part](int n) { return part >= n; }));
    }
    look.wedding = GameState.Married != 0;
    look.bride = GameState.WifeFound != 0 && !look.wedding;
    look.sons = std::clamp<int>(GameState.Sons.value(), 0, 2);
    look.daughters = std::clamp<int>(GameState.Daughters.value(), 0, 2);
    look.diplomas = std::clamp(GameState.Education.value() / RanksPerDiploma, 0, 4);
    const NetworkState& lines = Network();
    look.online = lines.InetConnected != 0 || lines.BbsConnected != 0 || lines.calls > 0;
    return look;
}

} // namespace torvenhall
