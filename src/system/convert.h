#pragma once

#include <string>
#include <string_view>

#include "system/checked.h"

namespace torvenhall
{

/// Rounds to the nearest whole number, ties to the even neighbour.
double Round(double number);

/// Rounds half to even and narrows; error 6 when out of range or not a number.
Int16 ToInt16(double number);
Int32 ToInt32(double number);

/// The square root; error 5 for a negative argument (-0 is not negative).
double SquareRoot(double number);

/// Plain decimal text: no padding, no leading blank, never "-0".
std::string Decimal(Int32 number);
/// A whole double the same way; a fraction keeps up to 15 significant digits.
std::string DecimalOf(double number);

/// Reads a decimal whole number: an optional sign and digits, blanks around
/// them allowed. Error 13 when the text is anything else (the empty text
/// too), error 6 when the number does not fit.
Int16 ReadInt16(std::string_view text);
Int32 ReadInt32(std::string_view text);

} // namespace torvenhall
