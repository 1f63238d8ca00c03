#pragma once

#include <array>

namespace torvenhall
{

/// The light of the hour outside the window.
enum class Daylight { Night, Dawn, Day, Dusk, Evening };

/// What the year has done to the yard.
enum class Season { Winter, Spring, Summer, Autumn };

/// What the hero's face tells.
enum class Mood { Calm, Glad, Worried };

/// The slots of the computer, in the order of the rules' hardware table.
enum class Slot { Case, Memory, Screen, Disk, Discs, Modem, Sound, Scanner, Printer };
inline constexpr int Slots = 9;

/// What the room shows of the life. Equal looks are drawn alike.
struct RoomLook {
    Daylight daylight = Daylight::Night;
    Season season = Season::Winter;
    bool bareTree = true; ///< also before the leaves and after them
    Mood mood = Mood::Calm;
    int day = 1;   ///< of the calendar leaf, 1..31
    int month = 1; ///< 1..12
    /// How good a slot's part looks: 0 none, then 1 up to its best drawing.
    std::array<int, Slots> parts{};
    bool bride = false;          ///< a photo of her stands on the shelf
    bool wedding = false;        ///< instead of it, the two of them
    int sons = 0, daughters = 0; ///< portraits, two of each at most
    int diplomas = 0;            ///< 0..4
    bool online = false;         ///< a line is up: the modem's lights are busy

    int Part(Slot slot) const { return parts[static_cast<std::size_t>(slot)]; }
    /// A machine that shows something on its screen.
    bool Running() const { return Part(Slot::Case) > 0 && Part(Slot::Screen) > 0; }
    bool operator==(const RoomLook&) const = default;
};

/// The look of the present GameState; changes a few times a game day only.
RoomLook PresentRoom();

} // namespace torvenhall
