#include "equipment/catalogue.h"

#include <gtest/gtest.h>

namespace torvenhall::test
{
namespace
{

TEST(Catalogue, EveryHardwareListRisesInPriceToItsHighestIndex)
{
    const int highest[]{10, 7, 7, 7, 6, 6, 6, 6, 4};
    for (int category = 0; category < HardwareCategories; ++category) {
        EXPECT_EQ(GetHardwareName(category, 0), "Нет вооще");
        EXPECT_EQ(GetHardwarePrice(category, 0), 0);
        for (int index = 1; index <= highest[category]; ++index) {
            EXPECT_GT(GetHardwarePrice(category, index), GetHardwarePrice(category, index - 1))
                << category << "/" << index;
        }
        EXPECT_EQ(GetHardwareEntry(category, highest[category] + 1), "");
        EXPECT_EQ(GetHardwarePrice(category, highest[category] + 1), 0);
        EXPECT_EQ(GetHardwareEntry(category, -1), "");
    }
    EXPECT_EQ(GetHardwareEntry(9, 1), "");
    EXPECT_EQ(GetHardwareCategoryName(-1), "");
    EXPECT_EQ(GetHardwareName(3, 6), "72 Gb UWSCSI/320") << "cut at the last bar";
    EXPECT_EQ(GetHardwarePrice(7, 6), 1450);
}

TEST(Catalogue, SoftwareNumbersPutTheAntivirusBeforeTheProgrammingTool)
{
    const int counts[]{8, 4, 5, 4, 5, 6};
    for (int category = 0; category < SoftwareCategories; ++category) {
        EXPECT_EQ(GetSoftwareName(category, 0), "Нет вооще");
        EXPECT_NE(GetSoftwareName(category, counts[category]), "");
        EXPECT_EQ(GetSoftwareName(category, counts[category] + 1), "");
    }
    EXPECT_EQ(GetSoftwareName(6, 1), "");
}

} // namespace
} // namespace torvenhall::test
