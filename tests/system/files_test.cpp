#ifndef _WIN32
#include <cstdarg>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

#include "support/life.h"
#include "system/text.h"

namespace fs = std::filesystem;
using namespace torvenhall;

#ifndef _WIN32
/// The call to the disk that fails to order: its name, which one from now on,
/// and how; without an error number it does nothing.
static struct {
    std::string_view call;
    int which = 0, error = 0;
    bool forEver = false;
} fault;

static bool Fails(std::string_view call)
{
    if (call != fault.call || fault.which == 0 || (fault.which > 1 && fault.which-- > 1)) {
        return false;
    }
    fault.which = fault.forEver ? 1 : 0;
    errno = fault.error;
    return true;
}

// These stand before the C library's own.
extern "C" {
int fsync(int file)
{
    return Fails("fsync") ? -1 : static_cast<int>(syscall(SYS_fsync, file));
}
int close(int file)
{
    const long closed = syscall(SYS_close, file);
    return Fails("close") ? -1 : static_cast<int>(closed);
}
ssize_t write(int file, const void* bytes, std::size_t count)
{
    return Fails("write") ? (errno == 0 ? 0 : -1) : syscall(SYS_write, file, bytes, count);
}
ssize_t read(int file, void* bytes, std::size_t count)
{
    return Fails("read") ? static_cast<ssize_t>(count) : syscall(SYS_read, file, bytes, count);
}
int openat(int folder, const char* path, int flags, ...)
{
    va_list mode;
    va_start(mode, flags);
    const long opened =
        Fails("open") ? -1 : syscall(SYS_openat, folder, path, flags, va_arg(mode, mode_t));
    va_end(mode);
    return static_cast<int>(opened);
}
int open(const char* path, int flags, ...)
{
    va_list mode;
    va_start(mode, flags);
    const int opened = openat(AT_FDCWD, path, flags, va_arg(mode, mode_t));
    va_end(mode);
    return opened;
}
}
#endif

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
#ifdef _WIN32
    EXPECT_EQ(Replacing(bytes), "0 " + bytes + " 1");
#else
    fs::permissions(path, fs::perms{04715});
    EXPECT_EQ(Replacing(bytes), "0 " + bytes + " 1");
    EXPECT_EQ(fs::status(path).permissions(), fs::perms{0604}) << "a game is no program";
    fs::create_symlink(path, folder + "link");
    WriteNewFile(folder + "link", "XY");
    EXPECT_EQ(ReadWholeFile(folder + "link") + ReadWholeFile(path), "XY" + bytes);
#endif
}

#ifndef _WIN32
TEST_F(Files, GivenACallThatFailsTheErrorIsToldAndTheOldFileOrTheNewOneIsThereAlone)
{
    const std::map<std::string, std::function<void()>> verbs{
        {"replace", [&] { ReplaceFile(path, "new"); }},
        {"new", [&] { WriteNewFile(path, "new"); }},
        {"read", [&] { ReadWholeFile(path); }},
        {"make", [&] { MakeDirectory(folder + "made"); }}};
    // In the file: what is done, the call, which one, its error; a + fails for ever.
    ExpectEach("faults.txt", [&](const std::string& line) {
        std::istringstream words(line);
        std::string verb, call, error, often;
        int which = 0, failure = 0;
        words >> verb >> call >> which >> error >> often;
        for (const char* name = ""; error != "nothing" && (name == nullptr || name != error);) {
            name = strerrorname_np(++failure);
        }
        ReplaceFile(path, "old");
        fault = {call, which, failure, often == "+"};
        const int number = ErrorOf(verbs.at(verb)).number;
        fault = {};
        fs::remove(folder + "made");
        return std::to_string(number) + " " + (fs::exists(path) ? ReadWholeFile(path) : "none") +
               " " + std::to_string(std::distance(fs::directory_iterator(folder), {}));
    });
}

#endif

TEST_F(Files, WhatAKilledSaveLeftIsSweptUnlessItMayStillBeWritten)
{
    for (const char* name :
         {".torvenhall-1-0", ".torvenhall-2-0", ".torvenhall-3-0.QVS", "b.QVS"}) {
        ReplaceFile(folder + name, "");
        const std::chrono::seconds age{std::string_view(name) == ".torvenhall-2-0" ? 40 : 90};
        fs::last_write_time(folder + name, fs::file_time_type::clock::now() - age);
    }
    DeleteStrays(folder);
    EXPECT_EQ(FileNames(folder), (Texts{".torvenhall-2-0", ".torvenhall-3-0.QVS", "b.QVS"}));
}

#ifndef _WIN32
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
        {"list", FileNames},
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

#endif

TEST_F(Files, NamesAreSortedWithoutRegardToCase)
{
    for (const char* name : {"б", "В", "a", "B", " ", "\xFF"}) {
        ReplaceFile(folder + name, "");
    }
    MakeDirectory(folder + "folder");
    EXPECT_EQ(FileNames(folder), (Texts{" ", "a", "B", "б", "В"})) << "only what is UTF-8";
    for (const char* name : {"", ".", ".."}) {
        EXPECT_NE(FileNameTrouble(name), "");
    }
}
