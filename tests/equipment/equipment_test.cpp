#include "equipment/basEquipment.h"

#include "equipment/catalogue.h"
#include "equipment/shops.h"
#include "support/life.h"

using namespace torvenhall;

using Equipment = BegunLife;

TEST_F(Equipment, EveryPartIsOfferedAndBoughtForExactlyItsPrice)
{
    int score = 0;
    for (int category = 0; category < HardwareCategories; ++category) {
        const std::string name{GetHardwareCategoryName(category)};
        Offer next = HardwareOffer(category);
        for (int index = 1; next.available; ++index) {
            const Offer shown = next;
            const auto buy = [=] { BuyNextHardware(category); };
            const std::string part = GetHardwareName(category, index);
            const std::string cost = std::to_string(shown.price);
            EXPECT_EQ(shown.offered, part);
            EXPECT_EQ(shown.installed, GetHardwareName(category, index - 1));
            EXPECT_EQ(shown.caption, name + " - " + part + " - $" + cost);
            EXPECT_EQ(GetHardwareEntry(category, index), part + "|" + cost);
            Assign("Money=" + std::to_string(shown.price - 1));
            const std::string told = "У вас недостаточно денег на покупку " + part + " за $" + cost;
            EXPECT_EQ(HardwareOffer(category).refusal.value().text, told);
            EXPECT_EQ(Outcome(buy), "i Я тоже много хочу!!!: " + told);
            Assign("Money=" + cost);
            EXPECT_FALSE(HardwareOffer(category).refusal);
            lines.push_back(name + ": " + Outcome(buy));
            EXPECT_EQ(HardwareScore(), ++score);
            next = HardwareOffer(category);
            EXPECT_EQ(next.available, next.caption != shown.caption) << "the last part stays";
        }
    }
    ExpectKept("hardware.txt", lines);
}

TEST_F(Equipment, EveryProgramInstallsOnItsLeastComputerAndOnNoLesserOne)
{
    const Asked asked{
        {"HardCPU", 10}, {"HardHDD", 7}, {"HardRAM", 7}, {"HardVideo", 7}, {"SoftOS", 8}};
    for (int category = 0; category < SoftwareCategories; ++category) {
        std::string name, offer;
        for (int index = 1; !GetSoftwareName(category, index).empty(); ++index) {
            SoftwareField(category) = index - 1;
            name = GetSoftwareName(category, index);
            offer = SoftwareOffer(category).caption;
            EXPECT_TRUE(SoftwareOffer(category).available && offer.ends_with(" - " + name));
            std::string refused;
            const auto install = [&] {
                bool fits = false;
                const auto refusal = SoftwareRefusal(category, index);
                const std::string told = Outcome([&] { fits = InstallSoftware(category, index); });
                EXPECT_EQ(!refusal, fits);
                EXPECT_TRUE(fits || told == "i " + refusal->title + ": " + refusal->text);
                EXPECT_TRUE(fits || refused.empty() || told == refused);
                refused = fits ? refused : told;
                return fits;
            };
            const std::string conditions = Conditions(asked, install);
            SoftwareField(category) = 99;
            offer = offer.substr(0, offer.size() - name.size());
            const std::string done = Outcome([=] { InstallSoftware(category, index); });
            lines.push_back(Joined({offer + done, conditions, refused}, " | "));
        }
        EXPECT_FALSE(SoftwareOffer(category).available);
        EXPECT_EQ(SoftwareOffer(category).caption, offer + name) << "the last one stays";
    }
    ExpectKept("software.txt", lines);
}

TEST_F(Equipment, AShopOffersOnlyTheNextItemAndAnythingElseIsNothing)
{
    Given("SoftOS=2 Money=0");
    player.open = {"frmHard", "frmSoft"};
    // Part 901 would be number 1 of category 9.
    TryEach("shops.txt",
            {{"game", [](int) { InstallNextSoftware(5); }},
             {"buy", [](int category) { Trapped([=] { BuyNextHardware(category); }); }},
             {"part", [](int of) { InstallHardware(of / 100, of % 100, false); }},
             {"loss", [](int of) { InstallHardware(of / 100, of % 100, true); }},
             {"program", [](int of) { InstallSoftware(of / 100, of % 100); }},
             {"score", [](int) { Trapped(HardwareScore); }}});
    const int outside[][2]{{-1, 1}, {0, -1}, {0, 11}, {8, 5}, {9, 1}};
    for (const auto& [category, index] : outside) {
        EXPECT_EQ(GetHardwareEntry(category, index), "");
        EXPECT_EQ(GetHardwarePrice(category, index), 0);
        EXPECT_EQ(GetHardwareCategoryName(category).empty(), category < 0 || category > 8);
        EXPECT_EQ(GetSoftwareName(category, index), "");
        EXPECT_FALSE(SoftwareRefusal(category, index) || InstallSoftware(category, index));
    }
    for (Int16& (*const field)(Int16) : {HardwareField, SoftwareField}) {
        EXPECT_EQ(ErrorOf([=] { field(-1); }).number, error::Subscript);
        EXPECT_EQ(ErrorOf([=] { field(9); }).number, error::Subscript);
    }
    EXPECT_EQ(GetHardwareEntry(3, 0), "Нет вооще|0");
    Given("HardCPU=32767 HardRAM=1"); // an edited file's
    EXPECT_EQ(HardwareOffer(0).caption, "Процессор");
}
