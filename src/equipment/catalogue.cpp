#include "equipment/catalogue.h"

#include "system/convert.h"
#include "system/table.h"

namespace torvenhall
{

namespace
{

constexpr std::string_view Nothing = "Нет вооще";
constexpr Part NoPart{.name = Nothing};
constexpr Program NoProgram{.name = Nothing, .demands = {}, .refusal = {}};

/// The item of a list by its number, nullptr outside.
template <class List>
auto ItemOf(const List& list, const auto& none, Int16 index)
{
    const auto* item = index == 0 ? &none : Find(list, Int32{index} - 1);
    return item == nullptr || item->name.empty() ? nullptr : item;
}

const Part* PartOf(Int16 category, Int16 index)
{
    const HardwareCategory* row = Find(Hardware, category);
    return row != nullptr ? ItemOf(row->parts, NoPart, index) : nullptr;
}

std::string_view NameOf(const auto* row)
{
    return row != nullptr ? row->name : std::string_view{};
}

} // namespace

std::string GetHardwareEntry(Int16 category, Int16 index)
{
    const Part* part = PartOf(category, index);
    return part != nullptr ? std::string(part->name) + '|' + Decimal(part->price) : std::string{};
}

std::string GetHardwareName(Int16 category, Int16 index)
{
    return std::string(NameOf(PartOf(category, index)));
}

Int16 GetHardwarePrice(Int16 category, Int16 index)
{
    const Part* part = PartOf(category, index);
    return part != nullptr ? part->price : 0;
}

std::string_view GetHardwareCategoryName(Int16 category)
{
    return NameOf(Find(Hardware, category));
}

const Program* ProgramOf(Int16 category, Int16 index)
{
    const SoftwareCategory* row = Find(Software, category);
    return row != nullptr ? ItemOf(row->programs, NoProgram, index) : nullptr;
}

std::string_view GetSoftwareName(Int16 category, Int16 index)
{
    return NameOf(ProgramOf(category, index));
}

} // namespace torvenhall
