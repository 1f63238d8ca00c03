#pragma once

#include <span>
#include <string>
#include <vector>

#include "lives/figures.h"

namespace torvenhall::lives
{

/// A table of texts; the first row names the columns, the first column the rows.
struct Table {
    std::string title;
    std::vector<std::vector<std::string>> rows;
};

/// What is told of the figures, for the terminal and for the page.
std::vector<Table> TablesOf(std::span<const Figures> all);

/// In columns, for a terminal.
std::string AsText(const Table& table);
/// A line for each life; the money of each month at the end of it.
std::string AsCsv(std::span<const Figures> all);

/// "12.3", of a hundred; "0.004" where it would be "0.0" and is not.
std::string Percent(double share);

} // namespace torvenhall::lives
