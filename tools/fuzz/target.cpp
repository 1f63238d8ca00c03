#include "target.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>

#include "game/entry.h"
#include "game/newgame.h"
#include "savegame/recovery.h"
#include "savegame/savegame.h"

namespace fs = std::filesystem;

namespace torvenhall::fuzz
{

namespace
{

// What is built to be debugged takes its time.
#ifdef __OPTIMIZE__
constexpr double MostSeconds = 0.1;
#else
constexpr double MostSeconds = 5;
#endif
constexpr std::size_t MostBytes = std::size_t{64} << 20U;

struct {
    std::size_t executions = 0;
    double slowest = 0; ///< seconds
    std::size_t largest = 0;
    std::map<std::string, std::size_t> outcomes;
} figures;

std::string_view current; ///< input

/// Of this process alone: how busy the machine is must not matter.
double ProcessorSeconds()
{
    std::timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

} // namespace

std::size_t largestAllocation = 0;

void Require(bool holds, std::string_view what)
{
    if (!holds) {
        const std::string kept = (fs::temp_directory_path() / FUZZ_TARGET ".failed").string();
        std::ofstream(kept, std::ios::binary) << current;
        std::cerr << FUZZ_TARGET ": this does not hold: " << what << "\nThe input is kept in "
                  << kept << std::endl;
        std::abort();
    }
}

void Limited(const std::function<void()>& reader)
{
    largestAllocation = 0;
    const double begun = ProcessorSeconds();
    reader();
    const double took = ProcessorSeconds() - begun;
    figures.slowest = std::max(figures.slowest, took);
    figures.largest = std::max(figures.largest, largestAllocation);
    Require(took <= MostSeconds, "nothing takes longer than 100 ms");
    Require(figures.largest <= MostBytes, "no allocation is larger than 64 MiB");
}

void Count(const std::string& outcome)
{
    ++figures.outcomes[outcome];
}

void PrintFigures()
{
    constexpr double milli = 1e-3, mebi = 1 << 20;
    std::cout << FUZZ_TARGET ": " << figures.executions << " executions, slowest "
              << figures.slowest / milli << " ms";
    if (figures.largest > 0) {
        std::cout << ", largest allocation " << static_cast<double>(figures.largest) / mebi
                  << " MiB";
    }
    std::string before = "; ";
    for (const auto& [outcome, times] : figures.outcomes) {
        std::cout << std::exchange(before, ", ") << outcome << ' ' << times;
    }
    std::cout << std::endl;
}

Rules::Rules()
{
    ::testing::GTEST_FLAG(break_on_failure) = true; // a question that nobody expected
    std::string pattern = (fs::temp_directory_path() / "torvenhall-fuzz-XXXXXX").string();
    Require(mkdtemp(pattern.data()) != nullptr, "a folder for the files");
    top = AddBackslash(pattern);
    folder = top + "a/b/c/";
    fs::create_directories(folder + "SAVE");
    dice.otherwise = 0.5F;
    StartRules({&player, &dice, &player}, folder);
}

Rules::~Rules()
{
    fs::current_path(fs::temp_directory_path());
    fs::remove_all(top);
}

void Rules::Save(const std::string& name)
{
    player.journal = player.boxes = {};
    player.games = {name, std::nullopt};
    Limited([] { EnterRules(SaveGame); });
}

void Rules::Load(const std::string& name)
{
    LetLifeGo(); // what else is kept of a life is not the matter
    player.journal = player.boxes = {};
    player.games = {name};
    player.names = {NewPlayer{"Иван", 1}}; // at a death
    dice.calls.clear();
    Limited([] { EnterRules(LoadGame); });
}

Rules& TheRules()
{
    static Rules rules;
    return rules;
}

Game BegunLife()
{
    TheRules().player.names = {NewPlayer{"Иван", 1}};
    EnterRules(NewGame);
    return GameState;
}

void WriteBytes(const std::string& path, std::string_view bytes)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), std::ssize(bytes));
    Require(file.flush().good(), "the target's own file is written");
}

std::string BytesOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace torvenhall::fuzz

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size)
{
    using namespace torvenhall::fuzz;
    if (figures.executions == 0) {
        TheRules(); // its start is nobody's input
        std::atexit(PrintFigures);
    }
    ++figures.executions;
    current = {data, std::min(size, LongestInput())};
    Check(current);
    return 0;
}
