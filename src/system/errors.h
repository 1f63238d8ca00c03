#pragma once

#include <string>

namespace torvenhall
{

/// Run-time error numbers, the customary ones of the trade.
namespace error
{
inline constexpr int InvalidCall = 5;
inline constexpr int Overflow = 6;
inline constexpr int OutOfMemory = 7;
inline constexpr int Subscript = 9;
inline constexpr int DivisionByZero = 11;
inline constexpr int TypeMismatch = 13;
inline constexpr int BadFileName = 52;
inline constexpr int FileNotFound = 53;
inline constexpr int DeviceInputOutput = 57;
inline constexpr int FileExists = 58;
inline constexpr int BadRecordLength = 59;
inline constexpr int DiskFull = 61;
inline constexpr int TooManyFiles = 67;
inline constexpr int PermissionDenied = 70;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;
} // namespace error

/// A run-time error on its way to the nearest trap (core/traps.h).
struct RuntimeError {
    int number = 0;
    std::string path = {}; ///< the file or folder that it is about, if any
};

/// The Russian description of an error number; a general phrase for a number
/// that has none of its own.
std::string ErrorDescription(int number);

} // namespace torvenhall
