#pragma once

#include <QRectF>

#include <string_view>

namespace torvenhall
{

/// A lamp or tube of a picture that stutters now and then.
struct Flicker {
    std::string_view picture; ///< its embedded name
    QRectF place;             ///< with its light, in units
};

inline constexpr Flicker Flickers[]{
    {"HARDPICTURE", {508, 56, 46, 50}},  // the bulb
    {"SOFTPICTURE", {306, 54, 246, 22}}, // the tube
    {"WORKPICTURE", {366, 64, 104, 36}}, // the number
    {"EDUCPICTURE", {320, 72, 84, 34}},  // the lamp over the blackboard
    {"SHOPPICTURE", {316, 62, 72, 50}},  // the lamp over the counter
    {"HAPPYPICTURE", {382, 60, 34, 42}}, // a letter of the casino
    {"NETPICTURE", {590, 254, 30, 34}},  // the bulb of the spider's workplace
    {"TITLEPICTURE", {311, 22, 46, 60}}, // a letter that is half dead
};

} // namespace torvenhall
