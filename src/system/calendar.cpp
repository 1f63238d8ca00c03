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
constexpr int LastYear = 9999;

constexpr std::array<std::string_view, 12> MonthsInGenitive{
    "января", "февраля", "марта",    "апреля",  "мая",    "июня",
    "июля",   "августа", "сентября", "октября", "ноября", "декабря"};

std::string Padded(int number, std::size_t digits)
{
    const std::string text = std::to_string(number);
    return text.size() < digits ? std::string(digits - text.size(), '0') + text : text;
}

int Number(std::string_view digits, std::size_t fewest, std::size_t most)
{
    const bool isNumber = std::ranges::all_of(digits, [](char c) { return c >= '0' && c <= '9'; });
    if (!isNumber || digits.size() < fewest || digits.size() > most) {
        throw RuntimeError{error::TypeMismatch, {}};
    }
    return ReadInt16(digits).value();
}

std::vector<std::string> Parts(std::string_view text, std::string_view separator, std::size_t count)
{
    std::vector<std::string> parts = Split(text, separator);
    if (parts.size() != count) {
        throw RuntimeError{error::TypeMismatch, {}};
    }
    return parts;
}

int DayOf(Date date)
{
    return static_cast<int>(static_cast<unsigned>(date.day()));
}

int MonthOf(Date date)
{
    return static_cast<int>(static_cast<unsigned>(date.month()));
}

} // namespace

TimeOfDay MakeTime(int hour, int minute)
{
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59) {
        throw RuntimeError{error::TypeMismatch, {}};
    }
    return {hour, minute};
}

Date MakeDate(int day, int month, int year)
{
    const bool inRange =
        day >= 1 && day <= 31 && month >= 1 && month <= 12 && year >= FirstYear && year <= LastYear;
    const Date date{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                    std::chrono::day{static_cast<unsigned>(day)}};
    if (!inRange || !date.ok()) {
        throw RuntimeError{error::TypeMismatch, {}};
    }
    return date;
}

std::string TimeText(TimeOfDay time)
{
    return Padded(time.hour, 2) + ":" + Padded(time.minute, 2);
}

std::string DateText(Date date)
{
    return Padded(DayOf(date), 2) + "." + Padded(MonthOf(date), 2) + "." +
           Padded(static_cast<int>(date.year()), 4);
}

std::string LongDateText(Date date)
{
    const auto month = static_cast<std::size_t>(MonthOf(date) - 1);
    return std::to_string(DayOf(date)) + " " + std::string(MonthsInGenitive.at(month)) + " " +
           Padded(static_cast<int>(date.year()), 4);
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
