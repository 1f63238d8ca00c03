// torvenhall-lives: plays many lives without a screen and tells what becomes of
// people. The lives are told on the standard output, all else on the other.

#include <chrono>
#include <cstdio>
#include <fstream>
#include <iostream>

#include <unistd.h>

#include "lives/figures.h"
#include "lives/page.h"
#include "lives/tables.h"
#include "lives/workers.h"

using namespace torvenhall;
using namespace torvenhall::lives;

namespace
{

constexpr int Failed = 1, BadUse = 2;

struct Unwritable : std::runtime_error {
    explicit Unwritable(const std::string& file) : runtime_error("cannot write " + file) {}
};

/// A bar on a terminal, a few times a second; elsewhere nothing.
class Progress
{
public:
    explicit Progress(int countOfAll) : all(countOfAll) {}
    ~Progress()
    {
        if (isTerminal) {
            std::fprintf(stderr, "\r\x1b[K");
        }
    }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void operator()(int done)
    {
        constexpr int width = 40;
        constexpr std::chrono::milliseconds between{100};
        const auto now = std::chrono::steady_clock::now();
        if (!isTerminal || (now < next && done < all)) {
            return;
        }
        next = now + between;
        const auto full = static_cast<std::size_t>(std::int64_t{width} * done / all);
        std::fprintf(stderr, "\r[%s%s] %d of %d lives", std::string(full, '#').c_str(),
                     std::string(width - full, ' ').c_str(), done, all);
    }

private:
    const int all;
    const bool isTerminal = isatty(STDERR_FILENO) != 0;
    std::chrono::steady_clock::time_point next{};
};

/// How fast it went: never the same twice, so beside the figures.
void TellSpeed(const Options& options, std::span<const Story> stories, double seconds)
{
    constexpr double daysOfYear = 365;
    double years = 0;
    for (const Story& story : stories) {
        years += static_cast<double>(story.daysPlayed) / daysOfYear;
    }
    std::fprintf(stderr, "%zu lives, %.0f game years in %.2f s by %d processes: %.0f a second\n",
                 stories.size(), years, seconds, options.jobs, years / seconds);
}

/// Opens a file or throws; what was in it stays.
void Open(std::ofstream& file, const std::string& path, std::ios::openmode mode)
{
    file.open(path, mode | std::ios::binary);
    if (!file) {
        throw Unwritable(path);
    }
}

/// Says at once that a file cannot be written, not after all the lives.
void MustBeWritable(const std::string& path)
{
    std::ofstream file;
    if (!path.empty()) {
        Open(file, path, std::ios::app);
    }
}

void WriteFile(const std::string& path, const std::string& bytes)
{
    std::ofstream file;
    Open(file, path, std::ios::trunc);
    if (!file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush()) {
        throw Unwritable(path);
    }
}

void Write(const Options& options, std::span<const Figures> all)
{
    if (!options.html.empty()) {
        WriteFile(options.html, PageOf(options, all));
    }
    if (!options.svg.empty()) {
        WriteFile(options.svg, CurvesOf(options, all));
    }
    if (options.csv) {
        std::cout << AsCsv(all);
    } else {
        for (const Table& table : TablesOf(all)) {
            std::cout << AsText(table) << '\n';
        }
    }
    if (!std::cout.flush()) {
        throw Unwritable("the standard output");
    }
}

void Play(const Options& options)
{
    MustBeWritable(options.html);
    MustBeWritable(options.svg);
    const auto start = std::chrono::steady_clock::now();
    std::vector<Story> stories;
    {
        Progress progress(TaskCount(options));
        stories = PlayAll(options, [&](int done) { progress(done); });
    }
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
    Write(options, FiguresOf(options, stories));
    TellSpeed(options, stories, passed.count());
}

} // namespace

int main(int argc, char** argv)
{
    try {
        const Options options = ReadOptions({argv + 1, argv + argc});
        if (options.help) {
            std::cout << Help();
        } else if (options.version) {
            std::cout << "torvenhall-lives " TORVENHALL_VERSION "\n";
        } else {
            Play(options);
        }
        return 0;
    } catch (const BadOption& option) {
        std::cerr << "torvenhall-lives: " << option.what << "; try --help\n";
        return BadUse;
    } catch (const std::exception& failure) {
        std::cerr << "torvenhall-lives: " << failure.what() << '\n';
    }
    return Failed;
}
