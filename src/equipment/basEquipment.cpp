#include "equipment/basEquipment.h"

#include <string>

#include "core/basGame.h"
#include "core/shown.h"
#include "core/traps.h"
#include "core/waits.h"
#include "equipment/catalogue.h"
#include "system/convert.h"
#include "system/table.h"

namespace torvenhall
{

namespace
{

std::optional<MessageBox> PriceRefusal(const std::string& name, Int16 price)
{
    if (GameState.Money - price >= 0) {
        return std::nullopt;
    }
    return MessageBox{"У вас недостаточно денег на покупку " + name + " за $" + Decimal(price),
                      "Я тоже много хочу!!!"};
}

/// Takes the price, or refuses.
bool Pay(const std::string& name, Int16 price)
{
    if (const auto refusal = PriceRefusal(name, price)) {
        MsgBox(refusal->text, refusal->title, refusal->icon);
        return false;
    }
    SetMoney(GameState.Money - price);
    return true;
}

std::optional<MessageBox> ProgramRefusal(const Program& program)
{
    return RefusalOf(program.demands, program.refusal, "Ну у Вас и запросы...");
}

} // namespace

Int16& HardwareField(Int16 category)
{
    return GameState.*At(Hardware, category).field;
}

Int16& SoftwareField(Int16 category)
{
    return GameState.*At(Software, category).field;
}

std::optional<MessageBox> HardwareRefusal(Int16 category, Int16 index)
{
    return PriceRefusal(GetHardwareName(category, index), GetHardwarePrice(category, index));
}

std::optional<MessageBox> SoftwareRefusal(Int16 category, Int16 index)
{
    const Program* program = ProgramOf(category, index);
    return program != nullptr ? ProgramRefusal(*program) : std::nullopt;
}

void InstallHardware(Int16 category, Int16 index, bool pay)
{
    Trapped([&] {
        const std::string name = GetHardwareName(category, index);
        const Int16 price = GetHardwarePrice(category, index);
        if (pay && !Pay(name, price)) {
            return;
        }
        if (const HardwareCategory* row = Find(Hardware, category)) {
            ShowLabel(row->label, name);
            GameState.*row->field = index;
        }
    });
}

bool InstallSoftware(Int16 category, Int16 index)
{
    bool installed = false;
    Trapped([&] {
        const Program* program = ProgramOf(category, index);
        if (program == nullptr) {
            return;
        }
        if (const auto refusal = ProgramRefusal(*program)) {
            MsgBox(refusal->text, refusal->title, refusal->icon);
            return;
        }
        const SoftwareCategory& row = At(Software, category);
        ShowLabel(row.label, program->name);
        GameState.*row.field = program->storedAs != 0 ? program->storedAs : index;
        installed = true;
    });
    return installed;
}

void ShowSoftware(Int16 category)
{
    const SoftwareCategory& row = At(Software, category);
    ShowLabel(row.label, GetSoftwareName(category, GameState.*row.field));
}

void SetSoftSize(Int16 megabytes)
{
    ShowLabel(Label::lblOther, Decimal(megabytes) + " Мб");
    GameState.SoftSize = megabytes;
}

Int16 HardwareScore()
{
    Int16 score = 0;
    for (const HardwareCategory& category : Hardware) {
        score = score + GameState.*category.field;
    }
    return score;
}

} // namespace torvenhall
