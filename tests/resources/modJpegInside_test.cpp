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

TEST_F(Pictures, APictureIsItsResourceAndOnlyATempFolderThatWasThereBecomesTheCurrentOne)
{
    EXPECT_FALSE(DirExists(Folder() + "none"));
    EXPECT_TRUE(DirExists(Folder()));
    for (const fs::path& current : {fs::path(Folder()), Temp()}) {
        EXPECT_EQ(LoadFormPicture("HARD").data(), player.pictures["HARDPICTURE"].data());
        EXPECT_EQ(fs::current_path(), fs::canonical(current));
        EXPECT_TRUE(fs::is_empty(Temp())) << "no file is left";
    }
    EXPECT_EQ(Told(), Texts{});
}

TEST_F(Pictures, AResourceThatIsMissingOrOneByteIsToldAndGivesNoPicture)
{
    for (const char* key : {"XYZ", "BIT"}) {
        EXPECT_TRUE(LoadFormPicture(key).empty());
        EXPECT_EQ(Told(), Texts{"x JPEGInside Critical Error: Error 48: Picture not Exist or Data "
                                "Damage Error"});
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

} // namespace
} // namespace torvenhall::test
