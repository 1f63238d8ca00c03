#include "ui/widgets/readings.h"

#include "core/basGame.h"

namespace torvenhall
{

Gauge::Reading MoneyReading()
{
    const double target = GameState.WinMoney.value();
    return {.share = target > 0 ? GameState.Money.value() / target : 0};
}

Gauge::Reading RankReading()
{
    const int rank = GameState.Education.value();
    const bool hasWord = !ShowStatus(rank).empty();
    return {.share = hasWord ? static_cast<double>(rank) / TopRank : 0, .steps = TopRank};
}

} // namespace torvenhall
