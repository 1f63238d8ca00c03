#pragma once

#include "core/GameState.h"
#include "core/shown.h"
#include "ui/widgets/gauge.h"

namespace torvenhall
{

// How far each statistic has come, for the gauges.

/// The money as a share of what wins.
Gauge::Reading MoneyReading();
/// The status rank as steps.
Gauge::Reading RankReading();
/// A statistic in percent, in danger while its label is red.
template <Int16 Game::*field, Label label>
Gauge::Reading PercentReading()
{
    return {.share = (GameState.*field).value() / 100.0,
            .danger = ShownAt(label).colour == TextColour::Red};
}

} // namespace torvenhall
