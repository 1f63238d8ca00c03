// The input's lines are names: of files in the folder of the saved games, and
// typed in the dialog that saves.

#include <algorithm>
#include <filesystem>

#include "savegame/format.h"
#include "savegame/savegame.h"
#include "system/text.h"
#include "target.h"

namespace fs = std::filesystem;

namespace torvenhall::fuzz
{

namespace
{

constexpr std::size_t MostNames = 3, LongestName = 300;

bool CanBeAFile(const std::string& name)
{
    constexpr std::size_t longest = 255;
    return !name.empty() && name != "." && name != ".." && name.size() <= longest &&
           name.find('/') == std::string::npos && name.find('\0') == std::string::npos;
}

std::set<std::string> FilesOf(const std::string& folder)
{
    std::set<std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        files.insert(entry.path().string().substr(folder.size()));
    }
    return files;
}

/// Types the name to save a game; it is refused, or the game is in the list.
void Save(const std::string& name)
{
    TheRules().Save(name);
    const bool isSaved = TheRules().player.games.size() == 1; // was not asked again
    if (name.empty()) {
        return;
    }
    const Texts listed = ListSavedGames();
    Require(!isSaved || std::ranges::find(listed, name) != listed.end(), "what is saved is listed");
    Count(isSaved ? "saved" : "refused");
}

} // namespace

std::size_t LongestInput()
{
    return MostNames * LongestName;
}

void Check(std::string_view input)
{
    static const Game sample = BegunLife();
    const std::string folder = TheRules().folder + "SAVE/", bytes = EncodeGame(sample);
    Texts names = Split(input, "\n");
    names.resize(std::min(names.size(), MostNames));
    for (const std::string& name : names) {
        if (CanBeAFile(name)) {
            WriteBytes(folder + name, bytes);
        }
        GameState = sample;
        Save(name);
    }
    Texts listed;
    Limited([&] { listed = ListSavedGames(); });
    for (const std::string& name : listed) {
        GameState.Money = -1;
        TheRules().Load(name);
        Require(EncodeGame(GameState) == bytes,
                "the listed game " + name + " loads: " + Joined(TheRules().player.boxes));
        Count("loaded");
    }
    for (const std::string& name : FilesOf(TheRules().folder + "SAVE/")) {
        fs::remove(folder + name);
    }
    Require(FilesOf(TheRules().top) == std::set<std::string>{"a", "a/b", "a/b/c", "a/b/c/SAVE"},
            "nothing is written outside the folder");
}

} // namespace torvenhall::fuzz
