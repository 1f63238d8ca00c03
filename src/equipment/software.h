#pragma once

#include <algorithm>
#include <iterator>
#include <string_view>

#include "core/demands.h"
#include "core/labels.h"

namespace torvenhall
{

struct Program {
    std::string_view name;
    Demand demands[5];
    std::string_view refusal;
    int storedAs = 0; ///< kept in GameState as that number, 0 as its own
};

/// A kind of programs, one of which can be installed.
struct SoftwareCategory {
    std::string_view offer; ///< before the program's name on the shop's button
    Int16 Game::*field;     ///< the installed program's number
    Label label;
    /// Number 1 first; 0 is none. Saved games keep the numbers: further
    /// programs go to the end. An empty name ends the list.
    Program programs[10];
};

// The refusals do not always name what is asked, on purpose. The antivirus
// comes before programming, unlike the main window's labels.
inline constexpr SoftwareCategory Software[]{
    {"ОС - ",
     &Game::SoftOS,
     Label::lblOs,
     {{"Microsoft Windows 3.1",
       {{&Game::HardCPU, 1}, {&Game::HardHDD, 1}, {&Game::HardRAM, 1}, {&Game::HardVideo, 1}},
       "Слабая машинка!!!! Нужен 486 DX2-66, 850 Mb IDE, 8 Mb RAM, S3 Trio 64V+"},
      {"Microsoft Windows 95",
       {{&Game::HardCPU, 2}, {&Game::HardHDD, 1}, {&Game::HardRAM, 1}, {&Game::HardVideo, 1}},
       "Слабая машинка!!!! Нужен Pentium 133, 850 Mb IDE, 8 Mb RAM, S3 Trio 64V+"},
      {"Microsoft Windows 98",
       {{&Game::HardCPU, 2}, {&Game::HardHDD, 2}, {&Game::HardRAM, 2}, {&Game::HardVideo, 1}},
       "Слабая машинка!!!! Нужен Pentium 133, 1.3 Gb IDE, 16 Mb RAM, S3 Trio 64V+"},
      {"Microsoft Windows Millenium",
       {{&Game::HardCPU, 3}, {&Game::HardHDD, 3}, {&Game::HardRAM, 2}, {&Game::HardVideo, 1}},
       "Слабая машинка!!!! Нужен Celeron 300A, 4.8 Gb IDE, 32 Mb RAM, S3 Trio 64V+"},
      {"Microsoft Windows NT4",
       {{&Game::HardCPU, 3}, {&Game::HardHDD, 3}, {&Game::HardRAM, 2}, {&Game::HardVideo, 1}},
       "Слабая машинка!!!! Нужен Celeron 300A, 4.8 Gb IDE, 32 Mb RAM, S3 Trio 64V+"},
      {"Microsoft Windows 2000",
       {{&Game::HardCPU, 4}, {&Game::HardHDD, 3}, {&Game::HardRAM, 3}, {&Game::HardVideo, 2}},
       "Слабая машинка!!!! Нужен Intel Pentium II 350 MHz MMX,10 Gb IDE, 64 Mb RAM, "
       "nVidia Riva 128"},
      {"Linux (Last Version)",
       {{&Game::HardCPU, 3}, {&Game::HardHDD, 3}, {&Game::HardRAM, 2}, {&Game::HardVideo, 1}},
       "Слабая машинка!!!! Нужен Celeron 300A, 10 Gb IDE, 32 Mb RAM, S3 Trio 64V+"},
      {"Unix Professional",
       {{&Game::HardCPU, 5}, {&Game::HardHDD, 4}, {&Game::HardRAM, 3}, {&Game::HardVideo, 3}},
       "Слабая машинка!!!! Нужен Intel Pentium III 650 MHz SSE2, 32 Gb EIDE, 64 Mb RAM, "
       "nVidia Riva TNT"}}},
    {"Антивирус - ",
     &Game::SoftAntivirus,
     Label::lblAntiv,
     {{"Doctor Web", {{&Game::SoftOS, 1}}, "Установи Windows 3.1!!!!"},
      {"Antivirial Toolkit Pro", {{&Game::SoftOS, 2}}, "Установи Windows 95!!!!"},
      {"Norton Anti-Virus 2001", {{&Game::SoftOS, 6}}, "Установи Windows 2000!!!!"},
      {"AVP 3.5 Gold for Servers", {{&Game::SoftOS, 6}}, "Установи Windows 2000!!!!"}}},
    {"Прог-е - ",
     &Game::SoftProgramming,
     Label::lblProg,
     {{"Borland Pascal 7.0", {{&Game::SoftOS, 1}}, "Установи Windows 3.1!!!!"},
      {"Microsoft Visual Basic", {{&Game::SoftOS, 2}}, "Установи Windows 95!!!!"},
      {"Borland Delphi 5.0", {{&Game::SoftOS, 3}}, "Установи Windows 98!!!!"},
      {"Microsoft Visual C++", {{&Game::SoftOS, 5}}, "Установи Windows NT4!!!!"},
      {"Assembler PRO", {{&Game::SoftOS, 8, true}}, "Установи UNIX!!!!"}}},
    {"Графика - ",
     &Game::SoftGraphic,
     Label::lblGraphic,
     {{"Microsoft Paint", {{&Game::SoftOS, 2}}, "Установи Windows 95!!!!"},
      {"Adobe Photoshop 6.0",
       {{&Game::SoftOS, 3}, {&Game::HardVideo, 2}},
       "Установи Windows 98 и nVidia Riva TNT!!!!"},
      {"3D Studio MAX 4",
       {{&Game::SoftOS, 3}, {&Game::HardVideo, 4}},
       "Установи Windows 98 и nVidia Riva TNT2!!!!"},
      {"3D DesignStudio 2001",
       {{&Game::SoftOS, 3}, {&Game::HardVideo, 5}},
       "Установи Windows 98 и nVidia GeForce 256!!!!"}}},
    {"Интернет - ",
     &Game::SoftBrowser,
     Label::lblInet,
     {{"Internet Explorer 3.0", {{&Game::SoftOS, 2}}, "Установи Windows 95"},
      {"Internet Explorer 4.0", {{&Game::SoftOS, 2}}, "Установи Windows 95"},
      {"Internet Explorer 5.0", {{&Game::SoftOS, 3}}, "Установи Windows 98"},
      {"Netscape Navigator", {{&Game::SoftOS, 3}}, "Установи Windows 98"},
      {"Opera 5.1", {{&Game::SoftOS, 2}}, "Установи Windows 95"}}},
    {"Игра - ",
     &Game::SoftGames,
     Label::lblGames,
     {{.name = "DOOM-II",
       .demands = {{&Game::SoftOS, 1}},
       .refusal = "Установи Windows 3.1",
       .storedAs = 2}, // its shop goes on with the third, on purpose
      {"Duke 3 for MSDOS", {{&Game::SoftOS, 1}}, "Установи Windows 3.1"},
      {"Quake I", {{&Game::SoftOS, 2}}, "Установи Windows 95"},
      {"Quake II", {{&Game::SoftOS, 3}}, "Установи Windows 98"},
      {"Half-Life", {{&Game::SoftOS, 3}}, "Установи Windows 98"},
      {"Quake III Arena", {{&Game::SoftOS, 3}}, "Установи Windows 98"}}},
};
inline constexpr int SoftwareCategories{std::size(Software)};

constexpr bool IsWhole(const Program& program)
{
    return program.name.empty() == program.refusal.empty() &&
           program.name.empty() != AskSomething(program.demands);
}
static_assert(std::ranges::all_of(Software,
                                  [](const SoftwareCategory& category) {
                                      return std::ranges::all_of(category.programs, IsWhole);
                                  }),
              "each program asks for something and says so when it is refused");

} // namespace torvenhall
