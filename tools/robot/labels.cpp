#include "labels.h"

#include <QWidget>

#include <functional>
#include <string>
#include <utility>

#include "core/GameState.h"
#include "core/basGame.h"
#include "core/running.h"
#include "core/shown.h"
#include "equipment/basEquipment.h"
#include "equipment/catalogue.h"
#include "system/convert.h"
#include "ui/widgets/gamelabel.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/theme.h"

namespace torvenhall::robot
{

namespace
{

/// What the label must show; empty where an edited file leaves it open.
struct Expected {
    Label label;
    std::string text;
};

std::string Percent(Int16 value)
{
    return Decimal(value) + "%";
}

std::string Family()
{
    const std::string children = ":" + Decimal(GameState.Sons) + ":" + Decimal(GameState.Daughters);
    if (GameState.WifeFound == False) {
        return "NO WIFE";
    }
    if (GameState.WifeFound != True) {
        return {};
    }
    return GameState.Married == True    ? "PRST" + children
           : GameState.Married == False ? "LEFT" + children
                                        : "";
}

std::string Time()
{
    Date shown = GameState.GameDate;
    if (Running::Now(Running::What::Day)) {
        shown = std::chrono::sys_days{shown} + std::chrono::days{1};
    }
    return LongDateText(shown) + " г. - " + TimeText(GameState.GameTime);
}

std::string Caption(const char* before, Int16 value,
                    const std::vector<std::pair<int, const char*>>& words)
{
    for (const auto& [number, word] : words) {
        if (value == number) {
            return before + std::string(word);
        }
    }
    return {};
}

std::vector<Expected> FromState()
{
    std::vector<Expected> all{
        {Label::lblMoney, "$" + Decimal(GameState.Money)},
        {Label::lblHappy, Percent(GameState.Happy)},
        {Label::lblEat, Percent(GameState.EatLevel)},
        {Label::lblHealth, Percent(GameState.Health)},
        {Label::lblEducation, Percent(GameState.Intelligence)},
        {Label::lblStatus, std::string(ShowStatus(GameState.Education))},
        {Label::lblFamily, Family()},
        {Label::lblCurrWork,
         "Работа: " + GameState.WorkTitle + " ($" + Decimal(GameState.WorkPay) + "/день)"},
        {Label::lblGameLevel, Caption("Сложность: ", GameState.GameLevel,
                                      {{0, "Сложная"}, {1, "Нормальная"}, {2, "Лёгкая"}})},
        {Label::lblGameSpeed, Caption("Скорость игры: ", GameState.GameSpeed,
                                      {{15, "Медленная"}, {30, "Нормальная"}, {60, "Быстрая"}})},
        {Label::lblTime, Time()},
        {Label::lblOther, Decimal(GameState.SoftSize) + " Мб"},
    };
    for (int i = 0; i < HardwareCategories; ++i) {
        all.push_back({Hardware[i].label, GetHardwareName(i, HardwareField(i))});
    }
    return all;
}

QString Differs(Label label, const std::string& expected)
{
    const std::string& shown = ShownAt(label).text;
    if (expected.empty() || shown == expected) {
        return {};
    }
    return Text(std::string(LabelNames[label]) + " shows \"" + shown + "\", not \"" + expected +
                '"');
}

/// A program may be stored as another one, whose name it does not show.
QString WrongProgram()
{
    for (int category = 0; category < SoftwareCategories; ++category) {
        const Int16 stored = SoftwareField(category);
        const Label label = Software[category].label;
        if (ProgramOf(category, stored) == nullptr) {
            continue;
        }
        bool fits = false;
        for (int i = 0; ProgramOf(category, i) != nullptr; ++i) {
            const Program& program = *ProgramOf(category, i);
            const bool isStored = stored == (program.storedAs != 0 ? program.storedAs : i);
            fits = fits || (isStored && program.name == ShownAt(label).text);
        }
        if (const std::string name(GetSoftwareName(category, stored)); !fits) {
            return Differs(label, name);
        }
    }
    return {};
}

} // namespace

QString WrongLabel(const QWidget& mainWindow)
{
    for (std::size_t i = 0; i < CountOf<Label>; ++i) {
        const auto label = static_cast<Label>(i);
        const QString name = Text(LabelNames[label]);
        const auto* control = dynamic_cast<GameLabel*>(mainWindow.findChild<QWidget*>(name));
        const bool red = ShownAt(label).colour == TextColour::Red;
        const bool nothing = ShownAt(label).text == GetHardwareName(0, 0);
        const QColor wanted = red ? colour::Danger : nothing ? colour::Faint : colour::LightCyan;
        if (!control || control->text() != Text(ShownAt(label).text) ||
            control->Colour() != wanted) {
            return name + " does not show what the rules hold: " + Text(ShownAt(label).text);
        }
    }
    if (Running::Now(Running::What::Load) || Running::Now(Running::What::LastBox)) {
        return {}; // half of a game is applied, or the dead one's was
    }
    for (const Expected& each : FromState()) {
        if (const QString wrong = Differs(each.label, each.text); !wrong.isEmpty()) {
            return wrong;
        }
    }
    return WrongProgram();
}

} // namespace torvenhall::robot
