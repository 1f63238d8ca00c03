#pragma once

#include <string_view>

#include "system/checked.h"

namespace torvenhall
{

/// What one software item asks of the computer; 0 asks nothing.
struct Requirement {
    int processor = 0, disk = 0, memory = 0, video = 0; ///< at least these indices
    int system = 0;                                     ///< SoftOS at least
    bool exactSystem = false;                           ///< SoftOS this one and no other
    std::string_view refusal;
};

/// The rule of an item, index 1 being a list's first; nullptr outside the
/// lists.
const Requirement* RequirementOf(Int16 category, Int16 index);

/// Whether the installed computer meets the rule.
bool IsMet(const Requirement& rule);

} // namespace torvenhall
