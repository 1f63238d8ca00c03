#pragma once

#include "core/traps.h"
#include "support/scripted.h"

namespace torvenhall::test
{

// What the rules did, as lines that read like the game's own tables.

/// Compares the lines with the kept file of that name in tests/data and shows
/// the first that differs. Where TORVENHALL_KEEP is set in the environment,
/// keeps the lines found instead.
void ExpectKept(const std::string& file, Texts found);

/// The same for a file of lines "what is given: its outcome".
void ExpectEach(const std::string& file,
                const std::function<std::string(const std::string&)>& outcome);

/// "-1..3, 5: outcome" for every different outcome from first to last.
Texts Grouped(int first, int last, const std::function<std::string(int)>& outcome);

/// Changes fields: "Married=-1 Sons=2".
void Assign(const std::string& fields);
/// Lines of money and vital statistics as their changes: "Money -5".
Texts WithChanges(Texts lines, const Game& before);
/// The fields that differ from before: "SoftOS=1".
std::string ChangedFields(const Game& before);

/// Fields that an attempt may ask for, each with a value that is enough.
using Asked = std::vector<std::pair<std::string, int>>;
/// Which values of each field, up to one more, let the attempt succeed while
/// the others are enough: "HardCPU 2..11, SoftOS 8". With the least of all it
/// succeeds.
std::string Conditions(const Asked& asked, const std::function<bool()>& attempt);

/// The text that a body returns, or "error 13".
template <class Body>
std::string TextOrError(Body&& body)
{
    std::string text;
    const int number = ErrorOf([&] { text = body(); }).number;
    return number == 0 ? text : "error " + std::to_string(number);
}

} // namespace torvenhall::test
