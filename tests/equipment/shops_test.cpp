#include "equipment/shops.h"

#include <array>

#include "core/basGame.h"
#include "equipment/basEquipment.h"
#include "equipment/catalogue.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

using Shops = BegunLife;

TEST_F(Shops, ExactlyThePriceBuysTheNextPartAndNothingIsTradedIn)
{
    EXPECT_EQ(HardwareOffer(0).caption, "Процессор - 486 DX2-66 MHz - $25");
    SetMoney(24);
    BuyNextHardware(0);
    EXPECT_EQ(Told(), Texts{"i Я тоже много хочу!!!: У вас недостаточно денег на покупку 486 "
                            "DX2-66 MHz за $25"});
    EXPECT_EQ(GameState.HardCPU, 0);
    EXPECT_EQ(GameState.Money, 24);
    const std::pair<int, const char*> parts[]{{25, "486 DX2-66 MHz"}, {60, "Pentium 133 MHz"}};
    for (const auto& [price, name] : parts) {
        SetMoney(price);
        BuyNextHardware(0);
        EXPECT_EQ(GameState.Money, 0);
        EXPECT_EQ(LabelShown(lblhard0), name);
    }
    GameState.HardCPU = 10;
    EXPECT_EQ(HardwareOffer(0).caption, "Процессор - Intel Pentium 4 1500 MHz - $620");
    EXPECT_FALSE(HardwareOffer(0).available);
    GameState.HardCPU = 32767;
    EXPECT_NO_THROW(HardwareOffer(0)) << "an index from an edited file";
}

TEST_F(Shops, EverySlotWritesItsOwnFieldAndLabelAndCountsInTheScore)
{
    for (int category = 0; category < HardwareCategories; ++category) {
        InstallHardware(category, category % 4 + 1, false);
    }
    const auto& state = GameState;
    const std::array fields{state.HardCPU,   state.HardRAM,     state.HardVideo,
                            state.HardHDD,   state.HardCDROM,   state.HardComm,
                            state.HardSound, state.HardScanner, state.HardPrinter};
    for (int category = 0; category < HardwareCategories; ++category) {
        EXPECT_EQ(fields[static_cast<std::size_t>(category)], category % 4 + 1);
        const auto label = static_cast<Label>(static_cast<int>(lblhard0) + category);
        EXPECT_EQ(LabelShown(label), GetHardwareName(category, category % 4 + 1));
    }
    EXPECT_EQ(GameState.Money, 15) << "nothing is paid without payment";
    InstallHardware(9, 1, false);
    EXPECT_EQ(HardwareScore(), 1 + 2 + 3 + 4 + 1 + 2 + 3 + 4 + 1);
    GameState.HardCPU = GameState.HardRAM = 20000;
    EXPECT_THROW(HardwareScore(), RuntimeError) << "an overflow is an error and not a wrap";
}

/// The least computer on which an item installs, in the order of the checks:
/// processor, disk, memory, video card, operating system.
struct Least {
    int category, index;
    int parts[5];
    const char* refusal;
};

// clang-format off
const Least Requirements[]{
    {0, 1, {1, 1, 1, 1, 0}, "Слабая машинка!!!! Нужен 486 DX2-66, 850 Mb IDE, 8 Mb RAM, S3 Trio 64V+"},
    {0, 2, {2, 1, 1, 1, 0}, "Слабая машинка!!!! Нужен Pentium 133, 850 Mb IDE, 8 Mb RAM, S3 Trio 64V+"},
    {0, 3, {2, 2, 2, 1, 0}, "Слабая машинка!!!! Нужен Pentium 133, 1.3 Gb IDE, 16 Mb RAM, S3 Trio 64V+"},
    {0, 4, {3, 3, 2, 1, 0}, "Слабая машинка!!!! Нужен Celeron 300A, 4.8 Gb IDE, 32 Mb RAM, S3 Trio 64V+"},
    {0, 5, {3, 3, 2, 1, 0}, "Слабая машинка!!!! Нужен Celeron 300A, 4.8 Gb IDE, 32 Mb RAM, S3 Trio 64V+"},
    {0, 6, {4, 3, 3, 2, 0}, "Слабая машинка!!!! Нужен Intel Pentium II 350 MHz MMX,10 Gb IDE, 64 Mb RAM, nVidia Riva 128"},
    {0, 7, {3, 3, 2, 1, 0}, "Слабая машинка!!!! Нужен Celeron 300A, 10 Gb IDE, 32 Mb RAM, S3 Trio 64V+"},
    {0, 8, {5, 4, 3, 3, 0}, "Слабая машинка!!!! Нужен Intel Pentium III 650 MHz SSE2, 32 Gb EIDE, 64 Mb RAM, nVidia Riva TNT"},
    {1, 1, {0, 0, 0, 0, 1}, "Установи Windows 3.1!!!!"},
    {1, 2, {0, 0, 0, 0, 2}, "Установи Windows 95!!!!"},
    {1, 3, {0, 0, 0, 0, 6}, "Установи Windows 2000!!!!"},
    {1, 4, {0, 0, 0, 0, 6}, "Установи Windows 2000!!!!"},
    {2, 1, {0, 0, 0, 0, 1}, "Установи Windows 3.1!!!!"},
    {2, 2, {0, 0, 0, 0, 2}, "Установи Windows 95!!!!"},
    {2, 3, {0, 0, 0, 0, 3}, "Установи Windows 98!!!!"},
    {2, 4, {0, 0, 0, 0, 5}, "Установи Windows NT4!!!!"},
    {2, 5, {0, 0, 0, 0, 8}, "Установи UNIX!!!!"},
    {3, 1, {0, 0, 0, 0, 2}, "Установи Windows 95!!!!"},
    {3, 2, {0, 0, 0, 2, 3}, "Установи Windows 98 и nVidia Riva TNT!!!!"},
    {3, 3, {0, 0, 0, 4, 3}, "Установи Windows 98 и nVidia Riva TNT2!!!!"},
    {3, 4, {0, 0, 0, 5, 3}, "Установи Windows 98 и nVidia GeForce 256!!!!"},
    {4, 1, {0, 0, 0, 0, 2}, "Установи Windows 95"},
    {4, 2, {0, 0, 0, 0, 2}, "Установи Windows 95"},
    {4, 3, {0, 0, 0, 0, 3}, "Установи Windows 98"},
    {4, 4, {0, 0, 0, 0, 3}, "Установи Windows 98"},
    {4, 5, {0, 0, 0, 0, 2}, "Установи Windows 95"},
    {5, 1, {0, 0, 0, 0, 1}, "Установи Windows 3.1"},
    {5, 2, {0, 0, 0, 0, 1}, "Установи Windows 3.1"},
    {5, 3, {0, 0, 0, 0, 2}, "Установи Windows 95"},
    {5, 4, {0, 0, 0, 0, 3}, "Установи Windows 98"},
    {5, 5, {0, 0, 0, 0, 3}, "Установи Windows 98"},
    {5, 6, {0, 0, 0, 0, 3}, "Установи Windows 98"},
};
// clang-format on

constexpr Int16 GameStateRecord::*RequirementFields[]{
    &GameStateRecord::HardCPU, &GameStateRecord::HardHDD, &GameStateRecord::HardRAM,
    &GameStateRecord::HardVideo, &GameStateRecord::SoftOS};

TEST_F(Shops, EverySoftwareItemInstallsOnItsLeastComputerAndOnNoLesserOne)
{
    for (const Least& row : Requirements) {
        SCOPED_TRACE(std::string(GetSoftwareName(row.category, row.index)));
        for (int lacking = -1; lacking < 5; ++lacking) {
            if (lacking >= 0 && row.parts[lacking] == 0) {
                continue;
            }
            for (int i = 0; i < 5; ++i) {
                GameState.*RequirementFields[i] = row.parts[i] - (i == lacking ? 1 : 0);
            }
            const Int16 before = SoftwareField(row.category);
            EXPECT_EQ(InstallSoftware(row.category, row.index), lacking < 0);
            if (lacking >= 0) {
                EXPECT_EQ(SoftwareField(row.category), before);
            }
            EXPECT_EQ(Told(), lacking < 0
                                  ? Texts{}
                                  : Texts{std::string("i Ну у Вас и запросы...: ") + row.refusal});
        }
    }
}

TEST_F(Shops, AssemblerWantsUnixAndNothingElseAndWhatIsNotInTheListIsSilentlyRefused)
{
    for (int system = 0; system <= 9; ++system) {
        GameState.SoftOS = system;
        EXPECT_EQ(InstallSoftware(2, 5), system == 8) << system;
    }
    Told();
    GameState.SoftOS = 8;
    for (const auto& [category, index] : {std::pair{0, 9}, {6, 1}, {0, -1}}) {
        EXPECT_FALSE(InstallSoftware(category, index));
    }
    EXPECT_EQ(Told(), Texts{});
    EXPECT_EQ(GameState.SoftOS, 8);
    InstallHardware(0, 0, false);
    EXPECT_EQ(GameState.SoftOS, 8) << "lost hardware leaves the software in place";
}

TEST_F(Shops, TheFirstGameIsShownButStoredAsTheSecond)
{
    GameState.SoftOS = 2;
    InstallNextSoftware(5);
    EXPECT_EQ(LabelShown(lblGames), "DOOM-II");
    EXPECT_EQ(GameState.SoftGames, 2);
    EXPECT_EQ(SoftwareOffer(5).caption, "Игра - Quake I");
}

TEST_F(Shops, TheSoftwareButtonsHaveTheirPrefixesAndEndWithTheLastItem)
{
    const char* first[]{"ОС - Microsoft Windows 3.1",       "Антивирус - Doctor Web",
                        "Прог-е - Borland Pascal 7.0",      "Графика - Microsoft Paint",
                        "Интернет - Internet Explorer 3.0", "Игра - DOOM-II"};
    const char* last[]{"ОС - Unix Professional", "Антивирус - AVP 3.5 Gold for Servers",
                       "Прог-е - Assembler PRO", "Графика - 3D DesignStudio 2001",
                       "Интернет - Opera 5.1",   "Игра - Quake III Arena"};
    const int highest[]{8, 4, 5, 4, 5, 6};
    for (int category = 0; category < SoftwareCategories; ++category) {
        EXPECT_EQ(SoftwareOffer(category).caption, first[category]);
        EXPECT_TRUE(SoftwareOffer(category).available);
        SoftwareField(category) = highest[category];
        EXPECT_EQ(SoftwareOffer(category).caption, last[category]);
        EXPECT_FALSE(SoftwareOffer(category).available);
    }
}

} // namespace
} // namespace torvenhall::test
