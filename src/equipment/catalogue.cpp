#include "equipment/catalogue.h"

#include <array>
#include <span>

#include "system/convert.h"

namespace torvenhall
{

namespace
{

using List = std::span<const std::string_view>;

constexpr std::string_view Nothing = "Нет вооще";

constexpr std::string_view Processors[]{"Нет вооще|0",
                                        "486 DX2-66 MHz|25",
                                        "Pentium 133 MHz|60",
                                        "Celeron 300A|90",
                                        "Pentium II 300 MHz MMX|125",
                                        "Pentium III 650 MHz SSE2|200",
                                        "Pentium III EB 850 MHz|250",
                                        "AMD Athlon 900 MHz|300",
                                        "AMD Athlon 1100 MHz|420",
                                        "Intel Pentium 4 1300 MHz|500",
                                        "Intel Pentium 4 1500 MHz|620"};
constexpr std::string_view Memory[]{
    "Нет вооще|0", "8 Mb|10",   "16 Mb|25",   "32 Mb|35",
    "64 Mb|50",    "128 Mb|85", "256 Mb|200", "512 Mb DDR SDRAM|700"};
constexpr std::string_view VideoCards[]{"Нет вооще|0",
                                        "S3 Trio 1 Mb|8",
                                        "nVidia Riva 128 4 Mb|15",
                                        "nVidia Riva TNT 8 Mb|30",
                                        "nVidia Riva TNT2 Ultra 32 Mb|75",
                                        "nVidia GeForce 256 32 Mb|125",
                                        "nVidia GeForce 2 32 Mb|175",
                                        "3DFX Voodoo V 64 Mb 6 GPU|250"};
constexpr std::string_view HardDisks[]{
    "Нет вооще|0",   "850 Mb IDE|40",  "1.3 Gb IDE|85",        "4.8 Gb IDE|100",
    "10 Gb IDE|150", "32 Gb EIDE|200", "72 Gb UWSCSI/320|350", "80 Gb 15000 rpm FC 2GB/S|650"};
constexpr std::string_view OpticalDrives[]{"Нет вооще|0",
                                           "4x Speed|8",
                                           "24x Speed|20",
                                           "40x Speed|50",
                                           "4x/4x/32x Speed CD-RW|170",
                                           "12x/40x Speed DVD|200",
                                           "4x/2x/8x Speed DVD-RW|850"};
constexpr std::string_view Modems[]{"Нет вооще|0",
                                    "9600 bps|10",
                                    "14400 bps|16",
                                    "33600 bps|30",
                                    "56000 bps V90|50",
                                    "T128 baud ISDN Device|200",
                                    "DVB 2 Mb/s Satelette Device|600"};
constexpr std::string_view SoundCards[]{"Нет вооще|0",
                                        "22 kHz 8 bit ESS|5",
                                        "44 kHz 16 bit ESS ES1688|10",
                                        "44 kHz 16 bit SB32|50",
                                        "48 kHz 16 bit 3D SB32PRO|75",
                                        "90 kHz 32 bit 3D Sound Studio Device|200",
                                        "90 kHz 32 bit 3D Hardware Mixer Device|250"};
constexpr std::string_view Scanners[]{"Нет вооще|0",
                                      "Agfa Home-4 Manual|20",
                                      "Mustek ScanExpress 600CP|60",
                                      "Mustek ScanExpress 6000P USB|70",
                                      "Mustek Paragon Pro SCSI|150",
                                      "UMAX Astra 4000 SCSI|250",
                                      "ProfScan S450 A0 14000 dpi SCSI|1450"};
constexpr std::string_view Printers[]{"Нет вооще|0", "Epson LX400|50", "Xerox C6|100",
                                      "HP LaserJet 1400 dpi|400", "Lexmark T610|1000"};

struct HardwareCategory {
    std::string_view name;
    List entries;
};

constexpr HardwareCategory Hardware[]{
    {"Процессор", Processors}, {"ОЗУ", Memory},           {"Видеокарта", VideoCards},
    {"Винчестер", HardDisks},  {"CD-ROM", OpticalDrives}, {"Модем", Modems},
    {"Звук", SoundCards},      {"Сканер", Scanners},      {"Принтер", Printers},
};
static_assert(std::size(Hardware) == HardwareCategories);

constexpr std::string_view OperatingSystems[]{Nothing,
                                              "Microsoft Windows 3.1",
                                              "Microsoft Windows 95",
                                              "Microsoft Windows 98",
                                              "Microsoft Windows Millenium",
                                              "Microsoft Windows NT4",
                                              "Microsoft Windows 2000",
                                              "Linux (Last Version)",
                                              "Unix Professional"};
constexpr std::string_view Antiviruses[]{Nothing, "Doctor Web", "Antivirial Toolkit Pro",
                                         "Norton Anti-Virus 2001", "AVP 3.5 Gold for Servers"};
constexpr std::string_view ProgrammingTools[]{Nothing,
                                              "Borland Pascal 7.0",
                                              "Microsoft Visual Basic",
                                              "Borland Delphi 5.0",
                                              "Microsoft Visual C++",
                                              "Assembler PRO"};
constexpr std::string_view GraphicsPackages[]{Nothing, "Microsoft Paint", "Adobe Photoshop 6.0",
                                              "3D Studio MAX 4", "3D DesignStudio 2001"};
constexpr std::string_view Browsers[]{Nothing,
                                      "Internet Explorer 3.0",
                                      "Internet Explorer 4.0",
                                      "Internet Explorer 5.0",
                                      "Netscape Navigator",
                                      "Opera 5.1"};
constexpr std::string_view Games[]{Nothing,    "DOOM-II",   "Duke 3 for MSDOS", "Quake I",
                                   "Quake II", "Half-Life", "Quake III Arena"};

// Antivirus before programming, unlike the main window's labels.
constexpr List Software[]{OperatingSystems, Antiviruses, ProgrammingTools,
                          GraphicsPackages, Browsers,    Games};
static_assert(std::size(Software) == SoftwareCategories);

std::string_view ItemOf(List list, Int16 index)
{
    if (index < 0 || index.value() >= static_cast<int>(list.size())) {
        return {};
    }
    return list[static_cast<std::size_t>(index.value())];
}

bool IsHardware(Int16 category)
{
    return category >= 0 && category < HardwareCategories;
}

} // namespace

std::string_view GetHardwareEntry(Int16 category, Int16 index)
{
    if (!IsHardware(category)) {
        return {};
    }
    return ItemOf(Hardware[static_cast<std::size_t>(category.value())].entries, index);
}

std::string GetHardwareName(Int16 category, Int16 index)
{
    const std::string_view entry = GetHardwareEntry(category, index);
    return std::string(entry.substr(0, entry.find('|')));
}

Int16 GetHardwarePrice(Int16 category, Int16 index)
{
    const std::string_view entry = GetHardwareEntry(category, index);
    return entry.empty() ? Int16{0} : ReadInt16(entry.substr(entry.find('|') + 1));
}

std::string_view GetHardwareCategoryName(Int16 category)
{
    return IsHardware(category) ? Hardware[static_cast<std::size_t>(category.value())].name
                                : std::string_view{};
}

std::string_view GetSoftwareName(Int16 category, Int16 index)
{
    if (category < 0 || category >= SoftwareCategories) {
        return {};
    }
    return ItemOf(Software[static_cast<std::size_t>(category.value())], index);
}

} // namespace torvenhall
