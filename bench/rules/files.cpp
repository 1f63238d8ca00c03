// Software, saved games and the anecdotes.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>

#include "bench/rules/floors.h"
#include "bench/rules/quietplayer.h"
#include "core/GameState.h"
#include "equipment/basEquipment.h"
#include "equipment/software.h"
#include "resources/anecdotes.h"
#include "savegame/format.h"
#include "savegame/savegame.h"

namespace torvenhall::bench
{

namespace
{

/// The best computer, on which every program runs.
void BuildComputer()
{
    for (int category = 0; category < 9; ++category) {
        for (int index = 1; index <= 10; ++index) {
            InstallHardware(category, index, false);
        }
    }
}

void AllSoftware(benchmark::State& state)
{
    const RulesLife life;
    BuildComputer();
    for (auto _ : state) {
        for (int category = 0; category < static_cast<int>(std::size(Software)); ++category) {
            for (int index = 1; index <= 10; ++index) {
                benchmark::DoNotOptimize(InstallSoftware(category, index));
            }
        }
    }
}
BENCHMARK(AllSoftware);

/// The demands compared, the number kept, the name shown.
void AllSoftwareFloor(benchmark::State& state)
{
    const RulesLife life;
    BuildComputer();
    FloorLabel label;
    for (auto _ : state) {
        for (const SoftwareCategory& category : Software) {
            int index = 0;
            for (const Program& program : category.programs) {
                ++index;
                bool runs = !program.name.empty();
                for (const Demand& demand : program.demands) {
                    runs = runs && (demand.field == nullptr ||
                                    (GameState.*demand.field).value() >= demand.value);
                }
                if (runs) {
                    GameState.*category.field = index;
                    label.Clear();
                    label.Add(program.name);
                    benchmark::DoNotOptimize(label);
                }
            }
        }
    }
}
BENCHMARK(AllSoftwareFloor);

void SaveText(benchmark::State& state)
{
    const RulesLife life;
    for (auto _ : state) {
        benchmark::DoNotOptimize(EncodeGame(GameState));
    }
}
BENCHMARK(SaveText);

void ParseText(benchmark::State& state)
{
    const RulesLife life;
    const std::string bytes = EncodeGame(GameState);
    for (auto _ : state) {
        benchmark::DoNotOptimize(WholeGame(DecodeGame(bytes)));
    }
}
BENCHMARK(ParseText);

/// A copy with every byte changed: what both cannot do without.
void TextFloor(benchmark::State& state)
{
    const RulesLife life;
    const std::string bytes = EncodeGame(GameState);
    for (auto _ : state) {
        std::string copy = bytes;
        for (char& byte : copy) {
            ++byte;
        }
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(TextFloor);

void Save(benchmark::State& state)
{
    const RulesLife life;
    for (auto _ : state) {
        benchmark::DoNotOptimize(SaveGame());
    }
}
BENCHMARK(Save)->Unit(benchmark::kMicrosecond)->UseRealTime();

/// The same bytes and the same calls that make them last.
void SaveFloor(benchmark::State& state)
{
    const RulesLife life;
    const std::string bytes = EncodeGame(GameState), path = life.folder + "floor",
                      part = life.folder + "part";
    for (auto _ : state) {
        const int file = open(part.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
        bool done = write(file, bytes.data(), bytes.size()) > 0;
        done = fsync(file) == 0 && done;
        close(file);
        done = std::rename(part.c_str(), path.c_str()) == 0 && done;
        const int folder = open(life.folder.c_str(), O_RDONLY | O_CLOEXEC);
        done = fsync(folder) == 0 && done;
        close(folder);
        if (!done) {
            state.SkipWithError("the floor could not write");
        }
    }
}
BENCHMARK(SaveFloor)->Unit(benchmark::kMicrosecond)->UseRealTime();

void Load(benchmark::State& state)
{
    const RulesLife life;
    SaveGame();
    for (auto _ : state) {
        LoadGame();
    }
}
BENCHMARK(Load)->Unit(benchmark::kMicrosecond);

/// Without the list of games and without applying what is read.
void ReadSave(benchmark::State& state)
{
    const RulesLife life;
    SaveGame();
    const std::string path = life.folder + "SAVE/bench.QVS";
    for (auto _ : state) {
        benchmark::DoNotOptimize(DecodeGame(ReadWholeFile(path)));
    }
}
BENCHMARK(ReadSave)->Unit(benchmark::kMicrosecond);

std::string ReadPlainly(const std::string& path)
{
    struct stat told {
    };
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    std::string bytes;
    if (fstat(file, &told) == 0) {
        bytes.resize(static_cast<std::size_t>(told.st_size));
        bytes.resize(static_cast<std::size_t>(
            std::max(read(file, bytes.data(), bytes.size()), static_cast<ssize_t>(0))));
    }
    close(file);
    return bytes;
}

void LoadFloor(benchmark::State& state)
{
    const RulesLife life;
    SaveGame();
    const std::string path = life.folder + "SAVE/bench.QVS";
    for (auto _ : state) {
        benchmark::DoNotOptimize(ReadPlainly(path));
    }
}
BENCHMARK(LoadFloor)->Unit(benchmark::kMicrosecond);

std::string WriteAnecdotes(const std::string& folder, std::int64_t lines)
{
    const std::string path = folder + "ANECDOT.DAT";
    std::ofstream file(path, std::ios::binary);
    file << "**ANECDOT DATA FILE FOR TORVENHALL BY MARSHEND SOFTWARE**\r\n";
    for (std::int64_t line = 1; line < lines; ++line) {
        file << "A joke<CRLF>of two lines " << line % 10 << "\r\n";
    }
    return path;
}

void Anecdote(benchmark::State& state)
{
    const RulesLife life;
    WriteAnecdotes(life.folder, state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(GetAnecdote());
    }
}
BENCHMARK(Anecdote)->Arg(120)->Arg(32766)->Unit(benchmark::kMicrosecond);

void AnecdoteFloor(benchmark::State& state)
{
    const RulesLife life;
    const std::string path = WriteAnecdotes(life.folder, state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(ReadPlainly(path));
    }
}
BENCHMARK(AnecdoteFloor)->Arg(120)->Arg(32766)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace torvenhall::bench
