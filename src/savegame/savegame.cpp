#include "savegame/savegame.h"

#include <algorithm>
#include <optional>

#include "activities/work.h"
#include "core/GameState.h"
#include "core/running.h"
#include "core/shown.h"
#include "core/timelabel.h"
#include "core/title.h"
#include "core/traps.h"
#include "core/unwinding.h"
#include "core/waits.h"
#include "equipment/basEquipment.h"
#include "equipment/catalogue.h"
#include "events/family.h"
#include "savegame/recovery.h"
#include "system/basSystem.h"
#include "system/text.h"

namespace torvenhall
{

namespace
{

constexpr std::string_view Extension = ".QVS";

std::string SaveFolder()
{
    return DataDirectory() + "SAVE";
}

std::string SavePath(const std::string& file)
{
    return AddBackslash(SaveFolder()) + file;
}

std::string FileOf(const std::string& name)
{
    return name + std::string(Extension);
}

/// The files of the saved games, whatever the case of their extension; of two
/// that differ in nothing else, the one that saving writes comes first.
std::vector<std::string> SavedFiles()
{
    std::vector<std::string> files = FileNames(SaveFolder());
    std::erase_if(files, [](const std::string& file) {
        return file.size() <= Extension.size() || !FoldCase(file).ends_with(FoldCase(Extension));
    });
    return files;
}

/// The saved games' names; a folder that cannot be read is told, and must not
/// keep the player from saving.
std::vector<std::string> GamesToSaveOver()
{
    std::vector<std::string> names;
    Trapped([&] { names = ListSavedGames(); });
    return names;
}

std::optional<std::string> AskForGame(bool saving, const std::string& name = {},
                                      const std::string& trouble = {})
{
    return AskGameName({.saving = saving,
                        .caption = saving ? "Сохранение игры" : "Загрузка игры",
                        .heading = "Доступные игры:",
                        .confirm = saving ? "Сохранить" : "Загрузить",
                        .name = name,
                        .games = saving ? GamesToSaveOver() : ListSavedGames(),
                        .trouble = trouble});
}

void WriteGame(const std::string& name)
{
    // The folder may have gone while the name was asked for.
    MakeDirectory(SaveFolder());
    ReplaceFile(SavePath(FileOf(name)), EncodeGame(GameState));
}

/// Installs what the fields hold already, so that it is shown and checked.
void InstallEquipment()
{
    for (int category = 0; category < HardwareCategories; ++category) {
        InstallHardware(category, HardwareField(category), false);
    }
    for (int category = 0; category < SoftwareCategories; ++category) {
        if (!InstallSoftware(category, SoftwareField(category))) {
            // Lost hardware never uninstalls: the program stays.
            ShowSoftware(category);
        }
    }
}

void ApplyGame(const SavedGame& game)
{
    ShowLabel(Label::lblMessage, "");
    for (std::size_t line = 2; line <= SavedLines; ++line) {
        if (line > game.size()) {
            throw RuntimeError{error::TypeMismatch}; // the file ends too soon
        }
        ApplyLine(line, game[line - 1]);
    }
    InstallEquipment();
    ShowFamily();
    SetWork(GameState.CurrWork);
    ShowTitle();
}

/// The lines before a damaged one stay applied, so all that they have stored is
/// shown: nobody plays on with another computer than the one on screen.
void ShowWhatIsApplied()
{
    for (int category = 0; category < HardwareCategories; ++category) {
        InstallHardware(category, HardwareField(category), false);
    }
    for (int category = 0; category < SoftwareCategories; ++category) {
        ShowSoftware(category);
    }
    ShowFamily();
    SetWork(-1); // keeps the job
    ShowTitle();
}

/// The file of a listed game.
std::optional<std::string> PathOf(const std::string& name)
{
    const std::vector<std::string> files = SavedFiles();
    const auto file = std::ranges::find(files, name, StripExtension);
    return file == files.end() ? std::nullopt : std::optional(SavePath(*file));
}

void LoadNamedGame(const std::string& name)
{
    const std::optional<std::string> path = PathOf(name);
    if (!path) {
        MsgBox("Файл игры " + FileOf(name) + " не найден!", "Ошибка", Icon::Critical);
        return;
    }
    SavedGame game;
    const RuntimeError failure = ErrorOf([&] { game = DecodeGame(ReadWholeFile(*path)); });
    if (failure.number != 0) {
        throw RuntimeError{failure.number, *path};
    }
    if (game.front() != ApplicationTitle) {
        MsgBox("Некорректная версия", "Загрузка игры", Icon::Critical);
        return;
    }
    KeepLife(); // should nobody go on with the one that comes
    ContinueGame(game);
}

} // namespace

void DeleteStraySaves()
{
    TrappedSilently([] { DeleteStrays(SaveFolder()); });
}

bool SaveGame()
{
    bool written = false;
    Trapped([&] {
        MakeDirectory(SaveFolder());
        std::string name, trouble;
        for (;;) {
            const std::optional<std::string> entered = AskForGame(true, name, trouble);
            if (!entered || entered->empty()) {
                return;
            }
            name = *entered;
            trouble = FileNameTrouble(FileOf(name));
            written = trouble.empty() && Trapped([&] { WriteGame(name); });
            if (written) {
                return;
            }
        }
    });
    return written;
}

void LoadGame()
{
    Trapped([] {
        const std::optional<std::string> name = AskForGame(false);
        if (name && !name->empty()) {
            LoadNamedGame(*name);
        }
    });
}

void ContinueGame(const SavedGame& game)
{
    // No tick comes between the lines, nor under the boxes that they cause.
    BeginAnotherLife();
    const Running load(Running::What::Load);
    const RuntimeError failure = ErrorOf([&] { ApplyGame(game); });
    ShowTime();
    if (failure.number != 0) {
        ShowWhatIsApplied();
        ReportError(failure.number, failure.path);
    }
}

std::vector<std::string> ListSavedGames()
{
    std::vector<std::string> names;
    for (const std::string& file : SavedFiles()) {
        names.push_back(StripExtension(file));
    }
    // A file's name sorts by its extension too.
    std::ranges::sort(names, {},
                      [](const std::string& name) { return std::pair(FoldCase(name), name); });
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

} // namespace torvenhall
