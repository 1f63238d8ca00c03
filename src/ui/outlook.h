#pragma once

#include <QString>

#include "core/labels.h"

namespace torvenhall
{

/// What a statistic's number means for the life, in words: what it is near,
/// what comes next. Empty for labels that are no statistics.
QString OutlookOf(Label statistic);

} // namespace torvenhall
