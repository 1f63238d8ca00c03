#pragma once

#include <QColor>

namespace torvenhall
{

/// The game's colours: night, a warm lamp, a cyan screen. Pure red means
/// danger and nothing else.
namespace colour
{
inline constexpr QColor LightCyan{192, 255, 255};
inline constexpr QColor Danger{255, 0, 0};
inline constexpr QColor Text{226, 240, 244};
inline constexpr QColor Caption{143, 176, 188};
inline constexpr QColor Faint{124, 144, 155};
inline constexpr QColor Gain{104, 226, 214};
inline constexpr QColor Loss{255, 138, 116};
inline constexpr QColor Warm{255, 206, 132};
inline constexpr QColor Panel{10, 17, 27, 238};
inline constexpr QColor PanelDeep{5, 9, 15, 248};
inline constexpr QColor Border{120, 190, 205, 74};
inline constexpr QColor Night{11, 17, 26};
inline constexpr QColor Hollow{7, 12, 19};   ///< of fields, lists and menus
inline constexpr QColor Chosen{30, 96, 112}; ///< a row that is selected
} // namespace colour

} // namespace torvenhall
