#include "equipment/basEquipment.h"

#include <array>
#include <string>

#include "core/basGame.h"
#include "core/traps.h"
#include "core/waits.h"
#include "equipment/catalogue.h"
#include "equipment/requirements.h"
#include "system/convert.h"

namespace torvenhall
{

namespace
{

using Field = Int16 GameStateRecord::*;

constexpr std::array<Field, HardwareCategories> HardwareFields{
    &GameStateRecord::HardCPU,   &GameStateRecord::HardRAM,     &GameStateRecord::HardVideo,
    &GameStateRecord::HardHDD,   &GameStateRecord::HardCDROM,   &GameStateRecord::HardComm,
    &GameStateRecord::HardSound, &GameStateRecord::HardScanner, &GameStateRecord::HardPrinter,
};

struct SoftwareSlot {
    Field field;
    Label label;
};

constexpr std::array<SoftwareSlot, SoftwareCategories> SoftwareSlots{{
    {&GameStateRecord::SoftOS, Label::lblOs},
    {&GameStateRecord::SoftAntivirus, Label::lblAntiv},
    {&GameStateRecord::SoftProgramming, Label::lblProg},
    {&GameStateRecord::SoftGraphic, Label::lblGraphic},
    {&GameStateRecord::SoftBrowser, Label::lblInet},
    {&GameStateRecord::SoftGames, Label::lblGames},
}};

constexpr int GamesCategory = 5;

/// The category as an index; error 9 outside the table.
template <class Table>
const auto& SlotOf(const Table& table, Int16 category)
{
    if (category < 0 || category.value() >= static_cast<int>(table.size())) {
        throw RuntimeError{error::Subscript, {}};
    }
    return table[static_cast<std::size_t>(category.value())];
}

Label HardwareLabel(Int16 category)
{
    return static_cast<Label>(static_cast<int>(Label::lblhard0) + category.value());
}

/// The first game is stored under the second one's index, on purpose.
Int16 StoredIndex(Int16 category, Int16 index)
{
    return category == GamesCategory && index == 1 ? Int16{2} : index;
}

/// Takes the price, or refuses.
bool Pay(const std::string& name, Int16 price)
{
    if (GameState.Money - price < 0) {
        MsgBox("У вас недостаточно денег на покупку " + name + " за $" + Decimal(price),
               "Я тоже много хочу!!!", Icon::Information);
        return false;
    }
    SetMoney(GameState.Money - price);
    return true;
}

} // namespace

Int16& HardwareField(Int16 category)
{
    return GameState.*SlotOf(HardwareFields, category);
}

Int16& SoftwareField(Int16 category)
{
    return GameState.*SlotOf(SoftwareSlots, category).field;
}

void InstallHardware(Int16 category, Int16 index, bool pay)
{
    Trapped([&] {
        const std::string name = GetHardwareName(category, index);
        const Int16 price = GetHardwarePrice(category, index);
        if (pay && !Pay(name, price)) {
            return;
        }
        if (category >= 0 && category < HardwareCategories) {
            ShowLabel(HardwareLabel(category), name);
            HardwareField(category) = index;
        }
    });
}

bool InstallSoftware(Int16 category, Int16 index)
{
    bool installed = false;
    Trapped([&] {
        const std::string_view name = GetSoftwareName(category, index);
        if (name.empty()) {
            return;
        }
        const Requirement* rule = RequirementOf(category, index);
        if (rule != nullptr && !IsMet(*rule)) {
            MsgBox(rule->refusal, "Ну у Вас и запросы...", Icon::Information);
            return;
        }
        const SoftwareSlot& slot = SlotOf(SoftwareSlots, category);
        ShowLabel(slot.label, name);
        GameState.*slot.field = StoredIndex(category, index);
        installed = true;
    });
    return installed;
}

void ShowSoftware(Int16 category)
{
    const SoftwareSlot& slot = SlotOf(SoftwareSlots, category);
    ShowLabel(slot.label, GetSoftwareName(category, GameState.*slot.field));
}

void SetSoftSize(Int16 megabytes)
{
    ShowLabel(Label::lblOther, Decimal(megabytes) + " Мб");
    GameState.SoftSize = megabytes;
}

Int16 HardwareScore()
{
    Int16 score = 0;
    for (const Field field : HardwareFields) {
        score = score + GameState.*field;
    }
    return score;
}

} // namespace torvenhall
