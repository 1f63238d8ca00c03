#include "system/convert.h"

#include <array>
#include <charconv>
#include <cmath>

#include "system/text.h"

namespace torvenhall
{

namespace
{

std::int64_t Whole(double number)
{
    // Asked this way round, a not-a-number fails too.
    if (!(std::abs(number) < 0x1p62)) {
        throw RuntimeError{error::Overflow};
    }
    return std::llrint(number);
}

std::int64_t ReadWhole(std::string_view text)
{
    std::string_view digits = Trim(text, " \t");
    if (digits.starts_with('+') && !digits.starts_with("+-")) {
        digits.remove_prefix(1);
    }
    std::int64_t number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, failure] = std::from_chars(digits.data(), end, number);
    if (failure == std::errc::invalid_argument || stop != end) {
        throw RuntimeError{error::TypeMismatch};
    }
    if (failure == std::errc::result_out_of_range) {
        throw RuntimeError{error::Overflow};
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
    return Int16::From(Whole(number));
}

Int32 ToInt32(double number)
{
    return Int32::From(Whole(number));
}

double SquareRoot(double number)
{
    if (number < 0) {
        throw RuntimeError{error::InvalidCall};
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
    static_cast<void>(failure); // so many digits always fit
    return {text.data(), end};
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
