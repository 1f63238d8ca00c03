#include "system/calendar.h"

#include <algorithm>
#include <array>
#include <vector>

#include "system/convert.h"
#include "system/text.h"

namespace torvenhall
{

namespace
{

constexpr int FirstYear = 100;

constexpr std::array<std::string_view, 12> MonthsInGenitive{
    "января", "февраля", "марта",    "апреля",  "мая",    "июня",
    "июля",   "августа", "сентября", "октября", "ноября", "декабря"};

std::string Padded(const std::string& text, std::size_t digits)
{
    return text.size() < digits ? std::string(digits - text.size(), '0') + text : text;
}

int Number(std::string_view digits, std::size_t fewest, std::size_t most)
{
    const bool isNumber = std::ranges::all_of(digits, [](char c) { return c >= '0' && c <= '9'; });
    if (!isNumber || digits.size() < fewest || digits.size() > most) {
        throw RuntimeError{error::TypeMismatch};
    }
    return ReadInt16(digits).value();
}

std::vector<std::string> Parts(std::string_view text, std::string_view separator, std::size_t count)
{
    std::vector<std::string> parts = Split(text, separator);
    if (parts.size() != count) {
        throw RuntimeError{error::TypeMismatch};
    }
    return parts;
}

std::string DayText(Date date)
{
    return std::to_string(unsigned{date.day()});
}

std::string YearText(Date date)
{
    return Padded(std::to_string(int{date.year()}), 4);
}

} // namespace

TimeOfDay MakeTime(int hour, int minute)
{
    const TimeOfDay time{hour, minute};
    if (!time.ok()) {
        throw RuntimeError{error::TypeMismatch};
    }
    return time;
}

Date MakeDate(int day, int month, int year)
{
    const bool inRange = day >= 1 && day <= 31 && month >= 1 && month <= 12 && year >= FirstYear &&
                         year <= int{LastDay.year()};
    const Date date{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                    std::chrono::day{static_cast<unsigned>(day)}};
    if (!inRange || !date.ok()) {
        throw RuntimeError{error::TypeMismatch};
    }
    return date;
}

std::string TimeText(TimeOfDay time)
{
    return Padded(std::to_string(time.hour), 2) + ":" + Padded(std::to_string(time.minute), 2);
}

std::string DateText(Date date)
{
    return Padded(DayText(date), 2) + "." + Padded(std::to_string(unsigned{date.month()}), 2) +
           "." + YearText(date);
}

std::string LongDateText(Date date)
{
    return DayText(date) + " " + std::string(MonthsInGenitive[unsigned{date.month()} - 1]) + " " +
           YearText(date);
}

TimeOfDay ReadTime(std::string_view text)
{
    const auto parts = Parts(text, ":", 2);
    return MakeTime(Number(parts[0], 1, 2), Number(parts[1], 1, 2));
}

Date ReadDate(std::string_view text)
{
    const auto parts = Parts(text, ".", 3);
    return MakeDate(Number(parts[0], 1, 2), Number(parts[1], 1, 2), Number(parts[2], 4, 4));
}

} // namespace torvenhall
