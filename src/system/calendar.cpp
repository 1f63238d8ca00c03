#include "system/calendar.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
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

void AppendPadded(std::string& text, int number, std::ptrdiff_t digits)
{
    constexpr int mostZeros = 4;
    std::array<char, 16> written{'0', '0', '0', '0'};
    char* const first = written.data() + mostZeros;
    const char* const end = std::to_chars(first, written.data() + written.size(), number).ptr;
    const std::ptrdiff_t zeros = std::clamp<std::ptrdiff_t>(digits - (end - first), 0, mostZeros);
    text.append(first - zeros, static_cast<std::size_t>(end - first + zeros));
}

void AppendDay(std::string& text, Date date, std::ptrdiff_t digits)
{
    AppendPadded(text, static_cast<int>(unsigned{date.day()}), digits);
}

void AppendYear(std::string& text, Date date)
{
    AppendPadded(text, int{date.year()}, 4);
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

void AppendTime(std::string& text, TimeOfDay time)
{
    const auto digit = [](int number) { return static_cast<char>('0' + number); };
    const std::array<char, 5> written{digit(time.hour / 10), digit(time.hour % 10), ':',
                                      digit(time.minute / 10), digit(time.minute % 10)};
    text.append(written.data(), written.size());
}

void AppendLongDate(std::string& text, Date date)
{
    AppendDay(text, date, 1);
    text += ' ';
    text += MonthsInGenitive[unsigned{date.month()} - 1];
    text += ' ';
    AppendYear(text, date);
}

std::string TimeText(TimeOfDay time)
{
    std::string text;
    AppendTime(text, time);
    return text;
}

std::string DateText(Date date)
{
    std::string text;
    AppendDay(text, date, 2);
    text += '.';
    AppendPadded(text, static_cast<int>(unsigned{date.month()}), 2);
    text += '.';
    AppendYear(text, date);
    return text;
}

std::string LongDateText(Date date)
{
    std::string text;
    AppendLongDate(text, date);
    return text;
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
