#pragma once

#include "system/checked.h"

namespace torvenhall
{

void Marry();
void Divorce();
/// A son or a daughter, one half each.
void ChildBirth();
/// Dollars a month for the children; refreshes the family label.
Int16 AlimonyFor();
/// "NO WIFE", or "PRST" / "LEFT" with ":sons:daughters", in lblFamily.
void ShowFamily();

} // namespace torvenhall
