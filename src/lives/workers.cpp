#include "lives/workers.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <span>
#include <type_traits>

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include "lives/player.h"
#include "system/basSystem.h"

namespace torvenhall::lives
{

namespace
{

static_assert(std::is_trivially_copyable_v<Story>, "a story is sent as its bytes");

struct Worker {
    pid_t process = -1;
    int stories = -1; ///< the pipe's reading end
};

/// The folder of the saved games of those who save, one inside it for each
/// process; gone when all is played.
class Folder
{
public:
    Folder()
    {
        if (mkdtemp(path.data()) == nullptr) {
            throw WorkerLost("no folder for saved games in " +
                             std::filesystem::temp_directory_path().string());
        }
    }
    ~Folder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    std::string path = (std::filesystem::temp_directory_path() / "torvenhall-XXXXXX").string();
};

bool WriteWhole(int pipe, std::span<const Story> stories)
{
    const auto bytes = std::as_bytes(stories);
    for (std::size_t sent = 0; sent < bytes.size();) {
        const ssize_t count = write(pipe, bytes.data() + sent, bytes.size() - sent);
        if (count < 0 && errno != EINTR) {
            return false;
        }
        sent += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return true;
}

/// False at the pipe's end.
bool ReadWhole(int pipe, Story& story)
{
    char* bytes = reinterpret_cast<char*>(&story);
    for (std::size_t received = 0; received < sizeof story;) {
        const ssize_t count = read(pipe, bytes + received, sizeof story - received);
        if (count == 0 || (count < 0 && errno != EINTR)) {
            return false;
        }
        received += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return true;
}

/// Every so many-th life: neighbours are alike, so each process has as much to do.
[[noreturn]] void Work(const Options& options, int first, int pipe, const std::string& folder)
{
    if (!folder.empty()) {
        std::filesystem::create_directory(folder);
    }
    // Short lives are told a few at a time: each waking of the reader costs some.
    using Clock = std::chrono::steady_clock;
    constexpr std::size_t enough = 64;
    constexpr std::chrono::milliseconds longest{50};
    std::vector<Story> untold;
    bool isHeard = true;
    Clock::time_point told = Clock::now();
    for (int task = first; isHeard && task < TaskCount(options); task += options.jobs) {
        untold.push_back(PlayTask(options, task, folder));
        if (untold.size() == enough || Clock::now() - told > longest) {
            isHeard = WriteWhole(pipe, untold);
            untold.clear();
            told = Clock::now();
        }
    }
    _exit(isHeard && WriteWhole(pipe, untold) ? 0 : 1);
}

Worker Start(const Options& options, int first, const std::string& folder)
{
    int pipes[2];
    if (pipe(pipes) != 0) {
        throw WorkerLost("no pipe to another process");
    }
    const pid_t process = fork();
    if (process == 0) {
        close(pipes[0]);
        Work(options, first, pipes[1],
             folder.empty() ? folder : AddBackslash(folder + "/" + std::to_string(first)));
    }
    close(pipes[1]);
    if (process < 0) {
        close(pipes[0]);
        throw WorkerLost("no other process could be started");
    }
    return {process, pipes[0]};
}

/// The processes at work; none is left behind.
class Team
{
public:
    explicit Team(const Options& options)
    {
        if (std::ranges::any_of(options.policies, &Policy::loadsPerNight)) {
            folder.emplace();
        }
        for (int i = 0; i < std::min(options.jobs, TaskCount(options)); ++i) {
            workers.push_back(Start(options, i, folder ? folder->path : ""));
        }
    }
    ~Team() { std::ranges::for_each(workers, Dismiss); }
    Team(const Team&) = delete;
    Team& operator=(const Team&) = delete;

    /// Waits for a story; false when all have been told.
    bool Next(Story& story)
    {
        while (!workers.empty()) {
            std::vector<pollfd> waiting;
            for (const Worker& worker : workers) {
                waiting.push_back({worker.stories, POLLIN, 0});
            }
            poll(waiting.data(), waiting.size(), -1);
            for (std::size_t i = workers.size(); i-- > 0;) {
                if (waiting[i].revents == 0) {
                    continue;
                }
                if (ReadWhole(workers[i].stories, story)) {
                    return true;
                }
                Dismiss(workers[i]);
                workers.erase(workers.begin() + static_cast<std::ptrdiff_t>(i));
            }
        }
        return false;
    }

private:
    /// One that still plays stops when nobody listens any more.
    static void Dismiss(const Worker& worker)
    {
        close(worker.stories);
        waitpid(worker.process, nullptr, 0);
    }

    std::optional<Folder> folder;
    std::vector<Worker> workers;
};

/// The seeds of neighbouring lives have nothing in common; a life's seed is the
/// same for every policy and level.
std::uint64_t SeedOf(const Options& options, int task)
{
    constexpr std::uint64_t odd = 0xD1342543DE82EF95U;
    return (options.seed + 1) * odd +
           static_cast<std::uint64_t>(task % options.lives) * 0x9E3779B97F4A7C15U * odd;
}

} // namespace

int TaskCount(const Options& options)
{
    return static_cast<int>(options.policies.size() * options.levels.size()) * options.lives;
}

Story PlayTask(const Options& options, int task, const std::string& folder)
{
    constexpr int daysOfYear = 365;
    const auto run = static_cast<std::size_t>(task / options.lives);
    const Policy& policy = *options.policies[run / options.levels.size()];
    const int level = options.levels[run % options.levels.size()];
    Story story =
        Player(policy, level, SeedOf(options, task), folder).Live(options.years * daysOfYear);
    story.task = task;
    return story;
}

std::vector<Story> PlayAll(const Options& options, const std::function<void(int)>& progress)
{
    const auto count = static_cast<std::size_t>(TaskCount(options));
    std::vector<Story> stories(count);
    std::size_t told = 0;
    Team team(options);
    for (Story story; team.Next(story);) {
        stories[static_cast<std::size_t>(story.task)] = story;
        progress(static_cast<int>(++told));
    }
    if (told != count) {
        throw WorkerLost("a process that played has stopped: " + std::to_string(told) + " of " +
                         std::to_string(count) + " lives were told");
    }
    return stories;
}

} // namespace torvenhall::lives
