#include "system/basSystem.h"

#include <filesystem>

#include "support/life.h"

namespace torvenhall::test
{
namespace
{

using System = Life;

TEST_F(System, ASeparatorIsAddedOnceAndStrippedOnceAndOnlyTheLastExtensionGoes)
{
    EXPECT_EQ(AddBackslash("C:\\", '\\'), "C:\\");
    EXPECT_EQ(AddBackslash("C:\\GAME", '\\'), "C:\\GAME\\");
    EXPECT_EQ(StripBackslash("C:\\GAME\\\\", '\\'), "C:\\GAME\\");
    EXPECT_EQ(StripBackslash("C:\\GAME", '\\'), "C:\\GAME");
    const std::pair<const char*, const char*> names[]{
        {"save.one.qvs", "save.one"}, {"save", "save"}, {".qvs", ""}, {"save.", "save"}};
    for (const auto& [name, stripped] : names) {
        EXPECT_EQ(StripExtension(name), stripped) << name;
    }
}

TEST_F(System, TheShiftMovesEveryByteByOneAndBack)
{
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        const std::string lower(1, static_cast<char>((byte + 255) % 256));
        EXPECT_EQ(ShiftCharsDown(text), lower) << byte;
        EXPECT_EQ(ShiftCharsUp(lower), text) << byte;
    }
}

TEST_F(System, AFileExistsIfItOpensAndAskingNeverMakesOne)
{
    const std::string path = Folder() + "файл";
    EXPECT_FALSE(FileExists(path));
    EXPECT_FALSE(std::filesystem::exists(path));
    ReplaceFile(path, "");
    EXPECT_TRUE(FileExists(path));
    EXPECT_FALSE(FileExists(Folder()));
}

TEST_F(System, EverythingLiesBesideTheProgramUnlessAShareFolderIsThere)
{
    const auto program = std::filesystem::path(ProgramFile()).parent_path();
    FindDirectories("no/such/folder");
    EXPECT_EQ(std::filesystem::path(ProgramDirectory()), program / "");
    EXPECT_EQ(DataDirectory(), ProgramDirectory());

    const auto share = std::filesystem::path(Folder()) / "share";
    std::filesystem::create_directory(share);
    ASSERT_EQ(setenv("XDG_DATA_HOME", (Folder() + "data").c_str(), 1), 0);
    FindDirectories(share.lexically_relative(program).string());
    EXPECT_EQ(ProgramDirectory(), Folder() + "share/");
    EXPECT_EQ(DataDirectory(), Folder() + "data/torvenhall/");
    EXPECT_TRUE(IsDirectory(DataDirectory()));

    ASSERT_EQ(setenv("XDG_DATA_HOME", "relative", 1), 0);
    ASSERT_EQ(setenv("HOME", Folder().c_str(), 1), 0);
    EXPECT_EQ(UserDataDirectory(), Folder() + ".local/share/torvenhall");
}

} // namespace
} // namespace torvenhall::test
