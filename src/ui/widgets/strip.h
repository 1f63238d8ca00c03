#pragma once

#include <QWidget>

#include <array>
#include <vector>

#include "core/labels.h"
#include "ui/widgets/countinglabel.h"
#include "ui/widgets/gauge.h"

namespace torvenhall
{

/// What a choice would do to one statistic, in its own unit.
struct Effect {
    Label label;
    int amount;
    const char* per = ""; ///< behind the sum: "/день"
};

/// What the player has, at the foot of every place in town: number and bar of
/// the money and the vital statistics, where one learns also of education and
/// status. It can show beforehand what a choice would change.
class Strip : public QWidget
{
public:
    static constexpr double Height = 36;

    /// Width in units.
    Strip(double width, bool learning, QWidget* parent);

    void LabelChanged(Label label);
    /// A ghost of the effects on bars and numbers; none clears it.
    void Foresee(const std::vector<Effect>& effects);

private:
    struct Item {
        Label label;
        CountingLabel* value;
        Gauge* gauge;
    };
    std::vector<Item> items;
};

} // namespace torvenhall
