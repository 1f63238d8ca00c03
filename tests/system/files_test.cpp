#include "system/files.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "core/traps.h"
#include "support/life.h"
#include "system/basSystem.h"

namespace
{

/// Which flush fails next: 0 none, 1 the next one, 2 the one after it.
int failingFlush = 0;

} // namespace

// Stands before the C library's own, so that a disk can fail to order.
extern "C" int fsync(int file)
{
    if (failingFlush > 0 && --failingFlush == 0) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(syscall(SYS_fsync, file));
}

namespace torvenhall::test
{
namespace
{

class Files : public Life
{
protected:
    Texts Everything() const
    {
        Texts names;
        for (const auto& entry : std::filesystem::directory_iterator(Folder())) {
            names.push_back(entry.path().filename().string());
        }
        return names;
    }

    std::string path = Folder() + "игра.QVS";
};

int ErrorOfReplacing(const std::string& path, std::string_view bytes)
{
    return ErrorOf([&] { ReplaceFile(path, bytes); }).number;
}

TEST_F(Files, AReplacedFileHoldsExactlyTheNewBytesKeepsItsPermissionsAndIsAlone)
{
    const std::string bytes{"\x09\x0A\x0D\x1A\x00\xFF", 6};
    ReplaceFile(path, "a longer text before");
    std::filesystem::permissions(path, std::filesystem::perms{0604});
    ReplaceFile(path, bytes);
    EXPECT_EQ(ReadWholeFile(path), bytes);
    EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms{0604});
    EXPECT_EQ(Everything(), Texts{"игра.QVS"});
    OverwriteFile(path, "XY");
    EXPECT_EQ(ReadWholeFile(path), "XY" + bytes.substr(2)) << "overwriting does not shorten";
}

TEST_F(Files, GivenAFailingFlushOfFileOrFolderSuccessIsNotClaimed)
{
    for (const auto& [flush, left] : {std::pair{1, "old"}, {2, "new"}}) {
        ReplaceFile(path, "old");
        failingFlush = flush;
        EXPECT_EQ(ErrorOfReplacing(path, "new"), error::DeviceInputOutput);
        EXPECT_EQ(ReadWholeFile(path), left);
        EXPECT_EQ(Everything().size(), 1U);
    }
}

TEST_F(Files, GivenAFullDiskTheOldFileStaysAndTheErrorIsTold)
{
    ReplaceFile(path, "old");
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{100, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const int number = ErrorOfReplacing(path, std::string(1000, 'x'));
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(number, error::DiskFull);
    EXPECT_EQ(ReadWholeFile(path), "old");
    EXPECT_EQ(Everything().size(), 1U);
}

TEST_F(Files, APlaceThatCannotTakeAFileIsToldAndLeftAlone)
{
    MakeDirectory(path);
    EXPECT_EQ(ErrorOfReplacing(path, "new"), error::PathFileAccess);
    EXPECT_TRUE(IsDirectory(path));
    EXPECT_EQ(Everything().size(), 1U);
    EXPECT_EQ(ErrorOfReplacing(Folder() + "none/a", "new"), error::PathNotFound);
    EXPECT_EQ(ErrorOfReplacing(Folder() + std::string(300, 'n'), "new"), error::BadFileName);
    ReplaceFile(Folder() + "file", "");
    EXPECT_EQ(ErrorOfReplacing(Folder() + "file/a", "new"), error::PathNotFound);
}

TEST_F(Files, WhatThePlayerProtectedIsNotReplaced)
{
    constexpr uid_t somebody = 65534;
    const uid_t user = geteuid();
    ReplaceFile(path, "old");
    std::filesystem::permissions(path, std::filesystem::perms{0444});
    if (user == 0) {
        // Nothing is protected from the superuser.
        ASSERT_EQ(chown(Folder().c_str(), somebody, static_cast<gid_t>(-1)), 0);
        ASSERT_EQ(seteuid(somebody), 0);
    }
    const int protectedFile = ErrorOfReplacing(path, "new");
    std::filesystem::permissions(Folder(), std::filesystem::perms{0500});
    const int protectedFolder = ErrorOfReplacing(Folder() + "another", "new");
    std::filesystem::permissions(Folder(), std::filesystem::perms{0700});
    ASSERT_EQ(seteuid(user), 0);
    EXPECT_EQ(protectedFile, error::PathFileAccess);
    EXPECT_EQ(protectedFolder, error::PathFileAccess);
    EXPECT_EQ(ReadWholeFile(path), "old");
    EXPECT_EQ(Everything().size(), 1U);
}

TEST_F(Files, AKillAtAnyMomentLeavesTheOldBytesOrTheNewOnes)
{
    const std::string first(200'000, 'a');
    const std::string second(300'000, 'b');
    ReplaceFile(path, first);
    for (int round = 0; round < 30; ++round) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (;;) {
                ReplaceFile(path, second);
                ReplaceFile(path, first);
            }
        }
        usleep(static_cast<useconds_t>(1000 + 397 * round));
        kill(child, SIGKILL);
        ASSERT_EQ(waitpid(child, nullptr, 0), child);
        const std::string found = ReadWholeFile(path);
        ASSERT_TRUE(found == first || found == second) << found.size();
    }
}

TEST_F(Files, MissingThingsAreToldApart)
{
    const auto number = [](auto body) { return ErrorOf(body).number; };
    EXPECT_EQ(number([&] { ReadWholeFile(path); }), error::FileNotFound);
    EXPECT_EQ(number([&] { ReadWholeFile(Folder() + "none/a"); }), error::PathNotFound);
    EXPECT_EQ(number([&] { ReadWholeFile(Folder()); }), error::PathFileAccess);
    EXPECT_EQ(number([&] { DeleteFile(path); }), error::FileNotFound);
    EXPECT_EQ(number([&] { ChangeDirectory(path); }), error::PathNotFound);
    EXPECT_EQ(number([&] { MakeDirectory(Folder() + "none/a"); }), error::PathNotFound);
    ReplaceFile(path, "");
    EXPECT_NE(number([&] { MakeDirectory(path); }), 0);
    EXPECT_EQ(number([&] { DeleteFile(Folder()); }), error::PathFileAccess);
}

TEST_F(Files, NamesAreSortedWithoutRegardToCaseAndFoldersLeftOut)
{
    for (const char* name : {"б", "В", "a", "B", ".c"}) {
        ReplaceFile(Folder() + name, "");
    }
    std::ofstream(Folder() + "\xFF") << "not UTF-8";
    MakeDirectory(Folder() + "folder");
    EXPECT_EQ(FileNames(Folder()), (Texts{".c", "a", "B", "б", "В"}));
    EXPECT_TRUE(FileNames(Folder() + "none").empty());
}

TEST_F(Files, ANameThatLeavesTheFolderOrCannotBeHeldIsRefused)
{
    const std::string longest = std::string(125, 'n') + std::string(65 * 2, 'n');
    for (const std::string& name : Texts{"игра.QVS", " ", longest}) {
        EXPECT_TRUE(IsPossibleFileName(name)) << name;
        ReplaceFile(Folder() + name, "");
    }
    for (const std::string& name :
         Texts{"", ".", "..", "a/b", "a\\b", {"a\0b", 3}, longest + "n", "\xD0"}) {
        EXPECT_FALSE(IsPossibleFileName(name)) << name;
    }
}

} // namespace
} // namespace torvenhall::test
