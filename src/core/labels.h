#pragma once

#include <cstddef>
#include <string_view>

#include "system/table.h"

namespace torvenhall
{

/// The main window's displays, by their controls' names.
enum class Label : unsigned char {
    lblMoney,
    lblHappy,
    lblEat,
    lblHealth,
    lblEducation,
    lblStatus,
    lblFamily,
    lblCurrWork,
    lblGameLevel,
    lblGameSpeed,
    lblTime,
    lblMessage,
    lblhard0,
    lblhard1,
    lblhard2,
    lblhard3,
    lblhard4,
    lblhard5,
    lblhard6,
    lblhard7,
    lblhard8,
    lblOs,
    lblProg,
    lblAntiv,
    lblGraphic,
    lblInet,
    lblGames,
    lblOther,
};
template <>
inline constexpr std::size_t CountOf<Label> = 28;

/// "lblMoney" and so on; also the control's object name.
inline constexpr EnumArray<Label, std::string_view> LabelNames{{
    "lblMoney",   "lblHappy",    "lblEat",       "lblHealth",    "lblEducation", "lblStatus",
    "lblFamily",  "lblCurrWork", "lblGameLevel", "lblGameSpeed", "lblTime",      "lblMessage",
    "lblhard0",   "lblhard1",    "lblhard2",     "lblhard3",     "lblhard4",     "lblhard5",
    "lblhard6",   "lblhard7",    "lblhard8",     "lblOs",        "lblProg",      "lblAntiv",
    "lblGraphic", "lblInet",     "lblGames",     "lblOther",
}};
static_assert(LabelNames[Label::lblOther] == "lblOther");

} // namespace torvenhall
