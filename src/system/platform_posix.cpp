#include <array>
#include <cerrno>
#include <csignal>
#include <fstream>
#include <system_error>
#include <utility>

#include <fcntl.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "system/basSystem.h"
#include "system/errors.h"
#include "system/platform.h"

namespace torvenhall
{

namespace
{

constexpr mode_t OrdinaryMode = 0666;

/// An open file or folder.
class Descriptor
{
public:
    Descriptor() = default;
    explicit Descriptor(int opened) : number(opened) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor(Descriptor&& other) noexcept : number(std::exchange(other.number, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(number, other.number);
        return *this;
    }
    ~Descriptor()
    {
        if (number >= 0) {
            ::close(number);
        }
    }
    int Number() const { return number; }
    bool IsOpen() const { return number >= 0; }
    /// Whether closing succeeded: some file systems tell of a failed write
    /// only here.
    bool Close()
    {
        // An interrupted close has closed.
        return ::close(std::exchange(number, -1)) == 0 || errno == EINTR;
    }

private:
    int number = -1;
};

std::error_code LastError()
{
    const bool overQuota = errno == EDQUOT;
    return {overQuota ? ENOSPC : errno, std::generic_category()};
}

/// Repeats a call that a signal has interrupted.
template <class Call>
auto Retried(Call&& call)
{
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

Descriptor Open(const std::string& path, int flags, mode_t mode = 0)
{
    return Descriptor(Retried([&] { return ::open(path.c_str(), flags | O_CLOEXEC, mode); }));
}

void RaiseUnless(bool succeeded, std::string_view path)
{
    if (!succeeded) {
        RaiseFileError(LastError(), Sought::File, path);
    }
}

bool WriteAll(int file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = Retried([&] { return ::write(file, bytes.data(), bytes.size()); });
        if (written <= 0) {
            errno = written == 0 ? EIO : errno;
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool Flush(int file)
{
    return Retried([&] { return ::fsync(file); }) == 0;
}

/// Some network file systems cannot flush a folder and say so; those order
/// the rename by themselves.
bool FlushFolder(int folder)
{
    return Flush(folder) || errno == EINVAL || errno == ENOTSUP;
}

/// A new, empty file that vanishes unless it is renamed.
class TemporaryFile
{
public:
    explicit TemporaryFile(int inFolder) : folder(inFolder)
    {
        // A file left by a killed process of the same number may be in the way.
        constexpr int attempts = 100;
        for (int attempt = 0; attempt < attempts && !file.IsOpen(); ++attempt) {
            name = std::string(StrayPrefix) + std::to_string(::getpid()) + "-" +
                   std::to_string(attempt);
            file = Descriptor(Retried([&] {
                return ::openat(folder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                                OrdinaryMode);
            }));
            if (!file.IsOpen() && errno != EEXIST) {
                break;
            }
        }
        mustGo = file.IsOpen();
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile()
    {
        if (mustGo) {
            ::unlinkat(folder, name.c_str(), 0);
        }
    }

    bool IsOpen() const { return mustGo; }
    bool Fill(std::string_view bytes)
    {
        return WriteAll(file.Number(), bytes) && Flush(file.Number()) && file.Close();
    }
    /// Gives it the permissions of the file that it is going to replace. Where
    /// the file system has none, that is no reason to lose a game.
    void TakePermissionsOf(const std::string& target)
    {
        struct stat old {
        };
        if (Retried([&] { return ::fstatat(folder, target.c_str(), &old, 0); }) == 0) {
            static_cast<void>(
                Retried([&] { return ::fchmod(file.Number(), old.st_mode & OrdinaryMode); }));
        }
    }
    bool RenameTo(const std::string& target)
    {
        const bool renamed =
            Retried([&] { return ::renameat(folder, name.c_str(), folder, target.c_str()); }) == 0;
        mustGo = !renamed;
        return renamed;
    }

private:
    int folder;
    std::string name;
    Descriptor file;
    bool mustGo = false;
};

} // namespace

std::string ReadWholeFile(const std::string& path)
{
    // Not blocking: a pipe of that name must not stop the game.
    const Descriptor file = Open(path, O_RDONLY | O_NONBLOCK);
    RaiseUnless(file.IsOpen(), path);
    struct stat status {
    };
    RaiseUnless(::fstat(file.Number(), &status) == 0, path);
    if (!S_ISREG(status.st_mode)) {
        throw RuntimeError{error::PathFileAccess, path};
    }
    if (std::cmp_greater(status.st_size, LongestFile)) {
        throw RuntimeError{error::BadRecordLength, path};
    }
    // In one piece; once more where that was not all, or more is written meanwhile.
    constexpr std::size_t more = 4096;
    const auto whole = static_cast<std::size_t>(status.st_size);
    std::size_t most = whole + more;
    std::string bytes;
    while (bytes.size() <= LongestFile) {
        const std::size_t before = bytes.size();
        bytes.resize(before + most);
        const ssize_t count =
            Retried([&] { return ::read(file.Number(), bytes.data() + before, most); });
        RaiseUnless(count >= 0, path);
        bytes.resize(before + static_cast<std::size_t>(count));
        if (count == 0 || bytes.size() == whole) {
            return bytes;
        }
        most = more;
    }
    throw RuntimeError{error::BadRecordLength, path};
}

void ReplaceFile(const std::string& path, std::string_view bytes)
{
    const std::size_t nameAt = path.rfind(PathSeparator) + 1;
    const std::string folderPath = nameAt == 0 ? "." : path.substr(0, nameAt);
    const std::string name = path.substr(nameAt);

    // The folder is opened first, so that nothing is in place yet if it cannot
    // be.
    const Descriptor folder = Open(folderPath, O_RDONLY | O_DIRECTORY);
    RaiseUnless(folder.IsOpen(), path);
    // A rename would not mind a file that the player has protected.
    const int writable =
        Retried([&] { return ::faccessat(folder.Number(), name.c_str(), W_OK, AT_EACCESS); });
    RaiseUnless(writable == 0 || errno == ENOENT, path);

    TemporaryFile temporary(folder.Number());
    RaiseUnless(temporary.IsOpen(), path);
    temporary.TakePermissionsOf(name);
    RaiseUnless(temporary.Fill(bytes), path);
    RaiseUnless(temporary.RenameTo(name), path);
    RaiseUnless(FlushFolder(folder.Number()), path);
}

void FlushDirectory(const std::filesystem::path& directory)
{
    const Descriptor folder = Open(directory.string(), O_RDONLY | O_DIRECTORY);
    RaiseUnless(folder.IsOpen() && FlushFolder(folder.Number()), directory.string());
}

void WriteNewFile(const std::string& path, std::string_view bytes)
{
    static_cast<void>(::unlink(path.c_str()));
    Descriptor file = Open(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, OrdinaryMode);
    RaiseUnless(file.IsOpen(), path);
    RaiseUnless(WriteAll(file.Number(), bytes) && file.Close(), path);
}

std::shared_ptr<void> LockFile(const std::string& path)
{
    auto file =
        std::make_shared<Descriptor>(Open(path, O_RDWR | O_CREAT | O_NOFOLLOW, OrdinaryMode));
    const bool locked =
        file->IsOpen() && Retried([&] { return ::flock(file->Number(), LOCK_EX | LOCK_NB); }) == 0;
    return locked ? file : nullptr;
}

bool OpensForReading(const std::string& path)
{
    const Descriptor file = Open(path, O_RDONLY | O_NONBLOCK);
    return file.IsOpen() && !IsDirectory(path);
}

std::string PlatformNameTrouble(std::string_view name)
{
    constexpr std::size_t longest = 255;
    return std::string(name.size() <= longest ? "" : NameTooLong);
}

void GiveMemoryBack()
{
#ifdef __GLIBC__
    // A limit that is set does not grow with the first large block that is freed.
    constexpr int large = 256 * 1024;
    ::mallopt(M_MMAP_THRESHOLD, large);
#endif
}

std::vector<std::string> ProgramArguments(int count, char** given)
{
    return {given, given + count};
}

void SpeakToConsole() {} // it has one

int WatchEndRequests()
{
    static std::array<int, 2> ends{-1, -1};
    constexpr int flags = O_CLOEXEC | O_NONBLOCK;
    if (::pipe2(ends.data(), flags) != 0) {
        return -1;
    }
    struct sigaction watched {
    };
    watched.sa_handler = [](int) {
        const int before = errno;
        if (::write(ends[1], "", 1) < 0) {
            // A full pipe is as readable.
        }
        errno = before;
    };
    // Not for the first time only: a closing terminal says so twice.
    watched.sa_flags = SA_RESTART;
    for (const int request : {SIGTERM, SIGHUP, SIGINT}) {
        struct sigaction present {
        };
        // What the program was started to ignore, it ignores.
        if (::sigaction(request, nullptr, &present) == 0 && present.sa_handler != SIG_IGN) {
            ::sigaction(request, &watched, nullptr);
        }
    }
    return ends[0];
}

bool OnBattery()
{
    // Batteries of mice count as such, so what tells is a mains that gives nothing.
    bool mains = false, gives = false;
    std::error_code failure;
    const std::filesystem::path supplies = "/sys/class/power_supply";
    for (const auto& supply : std::filesystem::directory_iterator(supplies, failure)) {
        std::string type, online;
        std::ifstream(supply.path() / "type") >> type;
        std::ifstream(supply.path() / "online") >> online;
        mains |= type == "Mains";
        gives |= type == "Mains" && online == "1";
    }
    return mains && !gives;
}

std::string GetWindowsDir()
{
    return {};
}

bool GetKeyValue(const std::string& /*keyName*/, const std::string& /*valueName*/,
                 std::string& /*value*/)
{
    return false;
}

} // namespace torvenhall
