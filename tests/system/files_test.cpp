
#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "support/life.h"
#include "system/text.h"

namespace fs = std::filesystem;
using namespace torvenhall;

/// Which flush fails next: 0 none, 1 the next one, 2 the one after it.
static int failingFlush = 0;

// Stands before the C library's own, so that a disk can fail to order.
extern "C" int fsync(int file)
{
    if (failingFlush > 0 && --failingFlush == 0) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(syscall(SYS_fsync, file));
}

class Files : public Life
{
protected:
    /// What an attempt to replace the file ends with: the error, the bytes
    /// found then, and how many files there are.
    std::string Replacing(const std::string& bytes)
    {
        const int number = ErrorOf([&] { ReplaceFile(path, bytes); }).number;
        return std::to_string(number) + " " + ReadWholeFile(path) + " " +
               std::to_string(std::distance(fs::directory_iterator(folder), {}));
    }

    std::string path = folder + "игра.QVS";
};

TEST_F(Files, AReplacedFileHoldsExactlyTheNewBytesKeepsItsPermissionsAndIsAlone)
{
    const std::string bytes{"\x09\x0A\x0D\x1A\x00\xFF", 6};
    EXPECT_EQ(Replacing("a longer text before"), "0 a longer text before 1");
    fs::permissions(path, fs::perms{04715});
    EXPECT_EQ(Replacing(bytes), "0 " + bytes + " 1");
    EXPECT_EQ(fs::status(path).permissions(), fs::perms{0604}) << "a game is no program";
    fs::create_symlink(path, folder + "link");
    WriteNewFile(folder + "link", "XY");
    EXPECT_EQ(ReadWholeFile(folder + "link") + ReadWholeFile(path), "XY" + bytes);
}

TEST_F(Files, GivenAFailingFlushOrAFullDiskTheErrorIsToldAndTheOldFileStays)
{
    ReplaceFile(path, "old");
    failingFlush = 1;
    EXPECT_EQ(Replacing("new"), "57 old 1");
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{100, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const std::string found = Replacing(std::string(1000, 'x'));
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(found, "61 old 1");
    failingFlush = 2; // the folder's, when the new file is in place
    EXPECT_EQ(Replacing("new"), "57 new 1");
}

TEST_F(Files, WhatAKilledSaveLeftIsSweptUnlessItMayStillBeWritten)
{
    for (const char* name : {".torvenhall-1-0", ".torvenhall-2-0", "b.QVS", "torvenhall-3"}) {
        ReplaceFile(folder + name, "");
        const std::chrono::seconds age{std::string_view(name) == ".torvenhall-2-0" ? 40 : 90};
        fs::last_write_time(folder + name, fs::file_time_type::clock::now() - age);
    }
    DeleteStrays(folder);
    EXPECT_EQ(FileNames(folder), (Texts{".torvenhall-2-0", "b.QVS", "torvenhall-3"}));
}

TEST_F(Files, WhatThePlayerProtectedIsNotReplaced)
{
    constexpr uid_t somebody = 65534;
    const uid_t user = geteuid();
    ReplaceFile(path, "old");
    fs::permissions(path, fs::perms{0444});
    if (user == 0) {
        // Nothing is protected from the superuser.
        ASSERT_EQ(chown(folder.c_str(), somebody, static_cast<gid_t>(-1)), 0);
        ASSERT_EQ(seteuid(somebody), 0);
    }
    const std::string protectedFile = Replacing("new");
    fs::permissions(folder, fs::perms{0500});
    const int protectedFolder = ErrorOf([&] { ReplaceFile(folder + "another", "new"); }).number;
    fs::permissions(folder, fs::perms{0700});
    ASSERT_EQ(seteuid(user), 0);
    EXPECT_EQ(protectedFile, "75 old 1");
    EXPECT_EQ(protectedFolder, error::PathFileAccess);
}

TEST_F(Files, TroublesAreToldApartAndLeaveTheFolderAlone)
{
    const std::string file = folder + "file";
    ReplaceFile(file, "");
    ASSERT_EQ(mkfifo((folder + "pipe").c_str(), 0600), 0);
    ReplaceFile(folder + "large", "");
    fs::resize_file(folder + "large", LongestFile + 1);
    const std::map<std::string, std::function<void(const std::string&)>> verbs{
        {"read", ReadWholeFile},
        {"delete", DeleteFile},
        {"enter", ChangeDirectory},
        {"make", MakeDirectory},
        {"replace", [](const std::string& file) { ReplaceFile(file, "new"); }}};
    ExpectEach("files.txt", [&](const std::string& line) {
        std::istringstream words(ReplaceAll(line, "LONG", std::string(300, 'n')));
        std::string verb, name;
        words >> verb >> name;
        return std::to_string(ErrorOf([&] { verbs.at(verb)(folder + name); }).number);
    });
    EXPECT_TRUE(IsDirectory(path));
    EXPECT_EQ(FileNames(folder), (Texts{"file", "large"}));
    EXPECT_EQ(ErrorOf([&] { ReadWholeFile(path); }).path, path);
    EXPECT_TRUE(FileExists(file));
    EXPECT_FALSE(FileExists(folder));
    EXPECT_FALSE(FileExists(folder + "none") || fs::exists(folder + "none"));
}

TEST_F(Files, NamesAreSortedWithoutRegardToCaseAndImpossibleOnesRefused)
{
    const std::string longest(255, 'n');
    for (const std::string& name : Texts{"б", "В", "a", "B", " ", longest}) {
        EXPECT_EQ(FileNameTrouble(name), "") << name;
        ReplaceFile(folder + name, "");
    }
    ReplaceFile(folder + "\xFF", "not UTF-8");
    MakeDirectory(folder + "folder");
    EXPECT_EQ(FileNames(folder), (Texts{" ", "a", "B", longest, "б", "В"}));
    EXPECT_TRUE(FileNames(folder + "none").empty());
    for (const std::string& name : Texts{"", "..", "\xD0", "a/b", "a\\b", std::string{"a\0b", 3},
                                         "a\x1F", "a\u202Eb", longest + "n"}) {
        lines.push_back(FileNameTrouble(name));
    }
    ExpectKept("names.txt", lines);
}
