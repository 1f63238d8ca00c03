// Plays game years by the rules, without windows, by chance: everything that the
// windows offer, on each difficulty, with the invariants held after each day and
// each action and the memory flat. A violation tells the seed, which replays it.
//
//   soak [--long] [--years N] [--level 0..2] [--seed N]

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <optional>

#include <unistd.h>

#include "player.h"
#include "system/basSystem.h"

using namespace torvenhall;
using namespace torvenhall::soak;

namespace
{

constexpr int DaysOfYear = 365;
constexpr long MostMemoryGrowth = 512; // KiB

/// Kibibytes of resident memory, 0 where nobody tells.
long ResidentMemory()
{
    long pages = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> pages >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

/// The sanitizers keep what is freed for a while; their own leak check stands
/// in for the bound.
constexpr bool MemoryIsBounded =
#ifdef TORVENHALL_SANITIZE
    false;
#else
    true;
#endif

class Folder
{
public:
    Folder()
    {
        if (mkdtemp(path.data()) == nullptr) {
            throw Violation{"no folder for the saved games"};
        }
    }
    ~Folder()
    {
        std::filesystem::current_path("/"); // the game makes its own folder the current one
        std::filesystem::remove_all(path);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    std::string path = (std::filesystem::temp_directory_path() / "torvenhall-soak-XXXXXX").string();
};

/// Plays the years of one difficulty; false where something did not hold.
bool Soak(int level, int years, std::uint64_t seed)
{
    using Clock = std::chrono::steady_clock;
    const Folder folder;
    Player player(level, seed, AddBackslash(folder.path));
    try {
        const Clock::time_point start = Clock::now();
        const std::int64_t days = std::int64_t{DaysOfYear} * years;
        player.Play(days / 10);
        const long before = ResidentMemory();
        player.Play(days - days / 10);
        const long after = ResidentMemory();
        const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
        std::printf("level %d, seed %llu: %lld years, %d lives, %d deaths, %d wins, %d program "
                    "starts, %lld actions, %d overflows; memory %ld -> %ld KiB; %.1f years/s\n",
                    level, static_cast<unsigned long long>(seed),
                    static_cast<long long>(player.days / DaysOfYear), player.lives,
                    player.window.deaths, player.window.wins, player.starts,
                    static_cast<long long>(player.actions), player.window.overflows, before, after,
                    years / seconds);
        std::fflush(stdout);
        if (MemoryIsBounded && after > before + MostMemoryGrowth) {
            throw Violation{"the memory grows"};
        }
        return true;
    } catch (const Violation& violation) {
        std::cout << "FAILED on level " << level << ", seed " << seed << ", day " << player.days
                  << ": " << violation.what << "; the last actions were\n"
                  << player.LastActions();
        return false;
    }
}

} // namespace

int main(int argc, char** argv)
{
    std::map<std::string, long> options{{"--years", 20}, {"--level", -1}, {"--seed", 2001}};
    for (int i = 1; i < argc; ++i) {
        const auto option = options.find(argv[i]);
        if (std::string_view(argv[i]) == "--long") {
            options["--years"] = 1000;
        } else if (option != options.end() && i + 1 < argc) {
            option->second = std::stol(argv[++i]);
        } else {
            std::cerr << "usage: soak [--long] [--years N] [--level 0..2] [--seed N]\n";
            return 2;
        }
    }
    bool held = true;
    for (int level = 0; level <= 2; ++level) {
        if (options["--level"] == -1 || options["--level"] == level) {
            held = Soak(level, static_cast<int>(options["--years"]),
                        static_cast<std::uint64_t>(options["--seed"])) &&
                   held;
        }
    }
    return held ? 0 : 1;
}
