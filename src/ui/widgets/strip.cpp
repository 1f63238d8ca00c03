#include "ui/widgets/strip.h"

#include <algorithm>
#include <span>

#include "core/basGame.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/readings.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{

constexpr double Padding = 10;
constexpr double Gap = 9;

struct ItemRow {
    const char* caption;
    Label label;
    Gauge::Kind kind;
    Gauge::Reading (*reading)();
    double weight; ///< of its width
    bool learning = false;
};

using enum Gauge::Kind;

// clang-format off
constexpr ItemRow Rows[]{
    {"Бюджет", Label::lblMoney, Share, MoneyReading, 1.2},
    {"Настроение", Label::lblHappy, AroundZero,
     PercentReading<&Game::Happy, Label::lblHappy>, 1},
    {"Сытость", Label::lblEat, AroundZero,
     PercentReading<&Game::EatLevel, Label::lblEat>, 1},
    {"Здоровье", Label::lblHealth, AroundZero,
     PercentReading<&Game::Health, Label::lblHealth>, 1},
    {"Образование", Label::lblEducation, Share,
     PercentReading<&Game::Intelligence, Label::lblEducation>, 1.05, true},
    {"Статус", Label::lblStatus, Steps, RankReading, 1.1, true},
};
// clang-format on

/// The amount as a share of the bar.
double ShareOf(const Effect& effect)
{
    switch (effect.label) {
    case Label::lblMoney:
        return GameState.WinMoney > 0 ? 1.0 * effect.amount / GameState.WinMoney.value() : 0;
    case Label::lblStatus:
        return 1.0 * effect.amount / TopRank;
    default:
        return effect.amount / 100.0;
    }
}

/// "−$25", "+20", "+$95/день".
QString NoteOf(const Effect& effect)
{
    return QString(effect.amount < 0 ? "−" : "+") + (effect.label == Label::lblMoney ? "$" : "") +
           QString::number(std::abs(effect.amount)) + effect.per;
}

} // namespace

Strip::Strip(double width, bool learning, QWidget* parent) : QWidget(parent)
{
    double weights = 0;
    int count = 0;
    for (const ItemRow& row : Rows) {
        weights += row.learning && !learning ? 0 : row.weight;
        count += row.learning && !learning ? 0 : 1;
    }
    const double unit = (width - 2 * Padding - (count - 1) * Gap) / weights;
    double left = Padding;
    for (const ItemRow& row : std::span(Rows).first(static_cast<std::size_t>(count))) {
        const double wide = row.weight * unit;
        auto* caption = new GameLabel({}, CondensedType(11.5), this);
        Place(*caption, {left, 0, wide, 14});
        caption->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        caption->SetColour(colour::Caption);
        caption->ShowText(row.caption);
        auto* value = new CountingLabel(TextType(13.5, true), this);
        Place(*value, {left, 12.5, wide + Gap - 2, 16});
        value->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        value->SetSpokenCaption(row.caption);
        auto* gauge = new Gauge(row.kind, row.reading, this);
        Place(*gauge, {left, 28.5, wide, 5});
        items.push_back({row.label, value, gauge});
        value->ShowLabel(row.label);
        left += wide + Gap;
    }
}

void Strip::LabelChanged(Label label)
{
    for (const Item& item : items) {
        if (item.label == label) {
            item.value->ShowLabel(label);
            item.gauge->update();
        }
    }
}

void Strip::Foresee(const std::vector<Effect>& effects)
{
    for (const Item& item : items) {
        const auto found = std::ranges::find(effects, item.label, &Effect::label);
        const bool changes = found != effects.end() && found->amount != 0;
        // What comes day by day changes nothing yet.
        item.gauge->SetGhost(changes && *found->per == 0 ? ShareOf(*found) : 0);
        item.value->SetNote(changes ? NoteOf(*found) : QString(),
                            changes && found->amount < 0 ? colour::Loss : colour::Gain);
    }
}

} // namespace torvenhall
