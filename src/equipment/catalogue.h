#pragma once

#include <string>
#include <string_view>

#include "equipment/hardware.h"
#include "equipment/software.h"

namespace torvenhall
{

// Pure lookups over the tables of hardware and software. Index 0 of every
// category is "Нет вооще".

/// "name|price in dollars", empty outside the tables.
std::string GetHardwareEntry(Int16 category, Int16 index);
/// The entry's name, empty for an empty entry.
std::string GetHardwareName(Int16 category, Int16 index);
/// The entry's price in dollars, 0 for an empty entry.
Int16 GetHardwarePrice(Int16 category, Int16 index);
/// "Процессор" and so on, empty outside 0..8.
std::string_view GetHardwareCategoryName(Int16 category);

/// The program's row, nullptr outside the tables.
const Program* ProgramOf(Int16 category, Int16 index);
/// Its name, empty outside the tables.
std::string_view GetSoftwareName(Int16 category, Int16 index);

} // namespace torvenhall
