#include "resources/modJpegInside.h"

#include <filesystem>
#include <fstream>

#include "support/life.h"
#include "system/basSystem.h"

namespace torvenhall::test
{
namespace
{

namespace fs = std::filesystem;

class Pictures : public Life
{
protected:
    Pictures()
    {
        player.pictures["HARDPICTURE"] = {std::byte{0xFF}, std::byte{0xD8}, std::byte{0xFF}};
        player.pictures["BITPICTURE"] = {std::byte{0xFF}};
    }

    fs::path Temp() const { return fs::path(Folder()) / "TEMP"; }
};

TEST_F(Pictures, APictureIsItsResourceTimeAfterTimeAndNoFileIsLeft)
{
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(LoadFormPicture("HARD").data(), player.pictures["HARDPICTURE"].data());
        EXPECT_TRUE(fs::is_empty(Temp()));
    }
    EXPECT_TRUE(player.boxes.empty());
}

TEST_F(Pictures, OnlyATempFolderThatWasThereBecomesTheCurrentOne)
{
    fs::current_path(Folder());
    LoadFormPicture("HARD");
    EXPECT_EQ(fs::current_path(), fs::canonical(Folder()));
    LoadFormPicture("HARD");
    EXPECT_EQ(fs::current_path(), fs::canonical(Temp()));
}

TEST_F(Pictures, AResourceThatIsMissingOrOneByteIsToldAndGivesNoPicture)
{
    for (const char* key : {"XYZ", "BIT"}) {
        player.Forget();
        EXPECT_TRUE(LoadFormPicture(key).empty());
        ASSERT_EQ(player.boxes.size(), 1U) << key;
        EXPECT_EQ(player.BoxTexts().front(), "JPEGInside Critical Error: "
                                             "Error 48: Picture not Exist or Data Damage Error");
        EXPECT_EQ(player.boxes.front().icon, Icon::Critical);
        EXPECT_TRUE(fs::is_empty(Temp())) << "the folder's effects come all the same";
    }
}

TEST_F(Pictures, ATempThatCannotBeUsedCostsNoPictureAndNoWord)
{
    std::ofstream(Temp()) << "a file in the folder's place";
    EXPECT_EQ(LoadFormPicture("HARD").size(), 3U);
    fs::remove(Temp());
    fs::create_directories(Temp() / "HARD.JPI" / "inner");
    EXPECT_EQ(LoadFormPicture("HARD").size(), 3U);
    EXPECT_TRUE(fs::exists(Temp() / "HARD.JPI" / "inner"));
    EXPECT_TRUE(player.boxes.empty());
}

TEST_F(Pictures, AFolderThatExistsBecomesTheCurrentOne)
{
    EXPECT_FALSE(DirExists(Folder() + "none"));
    EXPECT_TRUE(DirExists(Folder()));
    EXPECT_EQ(fs::current_path(), fs::canonical(Folder()));
}

} // namespace
} // namespace torvenhall::test
