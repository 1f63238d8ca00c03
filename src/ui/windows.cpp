#include "ui/windows.h"

#include <algorithm>
#include <array>

#include "core/port.h"
#include "game/commands.h"
#include "ui/frmAbout.h"
#include "ui/frmEducation.h"
#include "ui/frmHappy.h"
#include "ui/frmHard.h"
#include "ui/frmHospital.h"
#include "ui/frmNetwork.h"
#include "ui/frmPause.h"
#include "ui/frmShop.h"
#include "ui/frmSoft.h"
#include "ui/frmVirus.h"
#include "ui/frmWork.h"

namespace torvenhall
{

namespace
{

template <class Made>
std::unique_ptr<GameWindow> Make(QWidget* owner)
{
    return std::make_unique<Made>(owner);
}

// clang-format off
constexpr std::array Rows{
    WindowRow{"frmHard", Make<frmHard>, "cmdHard", "Железо", Glyph::Chip,
              "mnuGameUpgrade", "Апгрейд компьютера"},
    WindowRow{"frmSoft", Make<frmSoft>, "cmdSoft", "Программы", Glyph::Diskette,
              "mnuGameSoft", "Установка ПО"},
    WindowRow{"frmHappy", Make<frmHappy>, "cmdHappy", "Развлечения", Glyph::Dice,
              "mnuGameHappy", "Развлечения"},
    WindowRow{"frmHospital", Make<frmHospital>, "cmdHealth", "Больница", Glyph::Cross,
              "mnuGameHosp", "Больница"},
    WindowRow{"frmShop", Make<frmShop>, "cmdShop", "Магазин", Glyph::Basket,
              "mnuGameShop", "Магазин"},
    WindowRow{"frmWork", Make<frmWork>, "cmdWork", "Работа", Glyph::Briefcase,
              "mnugameWork", "Центр занятости"},
    // The school is reached by its button only, on purpose.
    WindowRow{"frmEducation", Make<frmEducation>, "cmdSchool", "Школа", Glyph::Book,
              "mnuGameSchool", "Школа", false},
    WindowRow{"frmNetwork", Make<frmNetwork>, "cmdInInet", "Выход в свет", Glyph::Globe,
              "mnuGameInNet", "Выход в свет", true, GoOnline},
    WindowRow{"frmVirus", Make<frmVirus>},
    WindowRow{"frmPause", Make<frmPause>},
    WindowRow{"frmAbout", Make<frmAbout>},
};
// clang-format on

constexpr bool HasRow(std::string_view name)
{
    return std::ranges::find(Rows, name, &WindowRow::name) != Rows.end();
}
static_assert(HasRow(window::frmHard) && HasRow(window::frmSoft) && HasRow(window::frmEducation) &&
              HasRow(window::frmNetwork) && HasRow(window::frmVirus) && HasRow(window::frmPause));

} // namespace

std::span<const WindowRow> WindowTable()
{
    return Rows;
}

const WindowRow* FindWindow(std::string_view name)
{
    const auto* const found = std::ranges::find(Rows, name, &WindowRow::name);
    return found == Rows.end() ? nullptr : found;
}

void Open(const WindowRow& row)
{
    if (row.open != nullptr) {
        row.open();
    } else {
        Windows().OpenWindow(row.name);
    }
}

} // namespace torvenhall
