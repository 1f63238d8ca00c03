#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace torvenhall
{

/// A calendar day, years 100 to 9999.
using Date = std::chrono::year_month_day;

/// A time of day to the minute.
struct TimeOfDay {
    int hour = 0;
    int minute = 0;
    /// Whether there is such a time.
    constexpr bool ok() const { return hour >= 0 && hour < 24 && minute >= 0 && minute < 60; }
    friend constexpr bool operator==(TimeOfDay, TimeOfDay) = default;
};

inline constexpr Date FirstDay{std::chrono::year{2001}, std::chrono::month{1}, std::chrono::day{1}};
/// The last day that a saved game can name.
inline constexpr Date LastDay{std::chrono::year{9999}, std::chrono::month{12},
                              std::chrono::day{31}};

/// A time of day made of its parts; error 13 when there is no such time
/// (hour 24, minute 60, anything negative).
TimeOfDay MakeTime(int hour, int minute);
/// A day made of its parts; error 13 when there is no such day.
Date MakeDate(int day, int month, int year);

/// "hh:mm".
std::string TimeText(TimeOfDay time);
/// "dd.mm.yyyy", the form of the saved game.
std::string DateText(Date date);
/// "d mmmm yyyy" with the Russian month name in the genitive, whatever the
/// locale: "1 января 2001".
std::string LongDateText(Date date);

/// The same behind a text: what shows every tick asks for no memory.
void AppendTime(std::string& text, TimeOfDay time);
void AppendLongDate(std::string& text, Date date);

/// Reads "hh:mm" and "dd.mm.yyyy" (one or two digits each, four for the
/// year); error 13 for anything else.
TimeOfDay ReadTime(std::string_view text);
Date ReadDate(std::string_view text);

} // namespace torvenhall
