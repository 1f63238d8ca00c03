#include "system/convert.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace torvenhall
{

namespace
{

template <class Number>
Number Narrow(double number)
{
    using Limits = std::numeric_limits<decltype(Number{}.value())>;
    const double whole = Round(number);
    // Asked this way round, a not-a-number fails too.
    if (!(whole >= Limits::min() && whole <= Limits::max())) {
        throw RuntimeError{error::Overflow, {}};
    }
    return Number::From(static_cast<std::int64_t>(whole));
}

std::string_view WithoutBlanksAround(std::string_view text)
{
    constexpr std::string_view blanks = " \t";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::int64_t ReadWhole(std::string_view text)
{
    std::string_view digits = WithoutBlanksAround(text);
    if (digits.starts_with('+') && !digits.starts_with("+-")) {
        digits.remove_prefix(1);
    }
    std::int64_t number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, failure] = std::from_chars(digits.data(), end, number);
    if (failure == std::errc::invalid_argument || stop != end) {
        throw RuntimeError{error::TypeMismatch, {}};
    }
    if (failure == std::errc::result_out_of_range) {
        throw RuntimeError{error::Overflow, {}};
    }
    return number;
}

} // namespace

double Round(double number)
{
    return std::nearbyint(number);
}

Int16 ToInt16(double number)
{
    return Narrow<Int16>(number);
}

Int32 ToInt32(double number)
{
    return Narrow<Int32>(number);
}

double SquareRoot(double number)
{
    if (number < 0) {
        throw RuntimeError{error::InvalidCall, {}};
    }
    return std::sqrt(number);
}

std::string Decimal(Int32 number)
{
    return std::to_string(number.value());
}

std::string DecimalOf(double number)
{
    if (number == 0) {
        return "0";
    }
    constexpr int significantDigits = 15;
    std::array<char, 32> text{};
    const auto [end, failure] = std::to_chars(text.data(), text.data() + text.size(), number,
                                              std::chars_format::general, significantDigits);
    return failure == std::errc{} ? std::string(text.data(), end) : std::string{};
}

Int16 ReadInt16(std::string_view text)
{
    return Int16::From(ReadWhole(text));
}

Int32 ReadInt32(std::string_view text)
{
    return Int32::From(ReadWhole(text));
}

} // namespace torvenhall
