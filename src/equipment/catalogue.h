#pragma once

#include <string>
#include <string_view>

#include "system/checked.h"

namespace torvenhall
{

inline constexpr int HardwareCategories = 9;
inline constexpr int SoftwareCategories = 6;

// Pure lookups over constant tables. Index 0 of every category is "Нет вооще".

/// "name|price", empty outside the tables.
std::string_view GetHardwareEntry(Int16 category, Int16 index);
/// The entry's name, empty for an empty entry.
std::string GetHardwareName(Int16 category, Int16 index);
/// The entry's price in dollars, 0 for an empty entry.
Int16 GetHardwarePrice(Int16 category, Int16 index);
/// "Процессор" and so on, empty outside 0..8.
std::string_view GetHardwareCategoryName(Int16 category);
/// The software item's name, empty outside the tables.
std::string_view GetSoftwareName(Int16 category, Int16 index);

} // namespace torvenhall
