#pragma once

#include <iterator>
#include <string_view>

#include "core/GameState.h"
#include "core/labels.h"

namespace torvenhall
{

struct Part {
    std::string_view name;
    int price = 0; ///< dollars
};

/// A slot of the computer and the parts that fit into it.
struct HardwareCategory {
    std::string_view name;
    Int16 Game::*field; ///< the installed part's number
    Label label;
    /// Number 1 first; 0 is an empty slot. Saved games keep the numbers:
    /// further parts go to the end. An
    /// empty name ends the list.
    Part parts[12];
};

inline constexpr HardwareCategory Hardware[]{
    {"Процессор",
     &Game::HardCPU,
     Label::lblhard0,
     {{"486 DX2-66 MHz", 25},
      {"Pentium 133 MHz", 60},
      {"Celeron 300A", 90},
      {"Pentium II 300 MHz MMX", 125},
      {"Pentium III 650 MHz SSE2", 200},
      {"Pentium III EB 850 MHz", 250},
      {"AMD Athlon 900 MHz", 300},
      {"AMD Athlon 1100 MHz", 420},
      {"Intel Pentium 4 1300 MHz", 500},
      {"Intel Pentium 4 1500 MHz", 620}}},
    {"ОЗУ",
     &Game::HardRAM,
     Label::lblhard1,
     {{"8 Mb", 10},
      {"16 Mb", 25},
      {"32 Mb", 35},
      {"64 Mb", 50},
      {"128 Mb", 85},
      {"256 Mb", 200},
      {"512 Mb DDR SDRAM", 700}}},
    {"Видеокарта",
     &Game::HardVideo,
     Label::lblhard2,
     {{"S3 Trio 1 Mb", 8},
      {"nVidia Riva 128 4 Mb", 15},
      {"nVidia Riva TNT 8 Mb", 30},
      {"nVidia Riva TNT2 Ultra 32 Mb", 75},
      {"nVidia GeForce 256 32 Mb", 125},
      {"nVidia GeForce 2 32 Mb", 175},
      {"3DFX Voodoo V 64 Mb 6 GPU", 250}}},
    {"Винчестер",
     &Game::HardHDD,
     Label::lblhard3,
     {{"850 Mb IDE", 40},
      {"1.3 Gb IDE", 85},
      {"4.8 Gb IDE", 100},
      {"10 Gb IDE", 150},
      {"32 Gb EIDE", 200},
      {"72 Gb UWSCSI/320", 350},
      {"80 Gb 15000 rpm FC 2GB/S", 650}}},
    {"CD-ROM",
     &Game::HardCDROM,
     Label::lblhard4,
     {{"4x Speed", 8},
      {"24x Speed", 20},
      {"40x Speed", 50},
      {"4x/4x/32x Speed CD-RW", 170},
      {"12x/40x Speed DVD", 200},
      {"4x/2x/8x Speed DVD-RW", 850}}},
    {"Модем",
     &Game::HardComm,
     Label::lblhard5,
     {{"9600 bps", 10},
      {"14400 bps", 16},
      {"33600 bps", 30},
      {"56000 bps V90", 50},
      {"T128 baud ISDN Device", 200},
      {"DVB 2 Mb/s Satelette Device", 600}}},
    {"Звук",
     &Game::HardSound,
     Label::lblhard6,
     {{"22 kHz 8 bit ESS", 5},
      {"44 kHz 16 bit ESS ES1688", 10},
      {"44 kHz 16 bit SB32", 50},
      {"48 kHz 16 bit 3D SB32PRO", 75},
      {"90 kHz 32 bit 3D Sound Studio Device", 200},
      {"90 kHz 32 bit 3D Hardware Mixer Device", 250}}},
    {"Сканер",
     &Game::HardScanner,
     Label::lblhard7,
     {{"Agfa Home-4 Manual", 20},
      {"Mustek ScanExpress 600CP", 60},
      {"Mustek ScanExpress 6000P USB", 70},
      {"Mustek Paragon Pro SCSI", 150},
      {"UMAX Astra 4000 SCSI", 250},
      {"ProfScan S450 A0 14000 dpi SCSI", 1450}}},
    {"Принтер",
     &Game::HardPrinter,
     Label::lblhard8,
     {{"Epson LX400", 50},
      {"Xerox C6", 100},
      {"HP LaserJet 1400 dpi", 400},
      {"Lexmark T610", 1000}}},
};
inline constexpr int HardwareCategories{std::size(Hardware)};

/// The score of a computer with the best part in every slot: a part's number
/// tells how many there are up to it.
inline constexpr int CompleteComputer = [] {
    int score = 0;
    for (const HardwareCategory& category : Hardware) {
        for (const Part& part : category.parts) {
            score += part.name.empty() ? 0 : 1;
        }
    }
    return score;
}();
static_assert(CompleteComputer == 59, "the computer that wins");

} // namespace torvenhall
