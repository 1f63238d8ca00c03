#include "savegame/recovery.h"

#include "core/GameState.h"
#include "core/remembered.h"
#include "core/running.h"
#include "core/traps.h"
#include "core/unwinding.h"
#include "system/basSystem.h"
#include "system/convert.h"

namespace torvenhall
{

namespace
{

constexpr std::string_view Prefix = "life-";
constexpr std::string_view Extension = ".QVS"; // as a saved game's, which it could be

/// This program's own file.
struct Hand {
    bool holdsLife = false;
    std::string path;
    std::shared_ptr<void> lock;
    std::string kept; ///< the file's bytes, as far as this program wrote them
};
Remembered<Hand> hand;

std::string Folder()
{
    return AddBackslash(DataDirectory() + "RECOVERY");
}

std::string WithExtension(const std::string& path, std::string_view extension)
{
    return StripExtension(path) + std::string(extension);
}

/// The right to a kept life, while its pointer lives.
std::shared_ptr<void> Lock(const std::string& path)
{
    return LockFile(WithExtension(path, ".lock"));
}

/// A file that is nobody's yet.
bool FindOwnFile()
{
    constexpr int mostPrograms = 99;
    MakeDirectory(Folder());
    for (int number = 1; number <= mostPrograms && hand->path.empty(); ++number) {
        const std::string path =
            Folder() + std::string(Prefix) + Decimal(number) + std::string(Extension);
        if (FileExists(path)) {
            continue;
        }
        std::shared_ptr<void> lock = Lock(path);
        // Another program may have been quicker, and stopped since.
        if (lock && !FileExists(path)) {
            hand->path = path;
            hand->lock = std::move(lock);
        }
    }
    return !hand->path.empty();
}

/// What is kept in the midst of a day's events goes on at the end of the day
/// before: the clock that was seen goes back by hours at most.
std::string PresentLife()
{
    Game life = GameState;
    if (Running::Now(Running::What::Day)) {
        life.GameTime = {23, 59};
    }
    return EncodeGame(life);
}

} // namespace

std::vector<KeptLife> FindKeptLives()
{
    std::vector<KeptLife> found;
    TrappedSilently([&] {
        DeleteStrays(Folder());
        for (const std::string& name : FileNames(Folder())) {
            const std::string path = Folder() + name;
            if (!name.starts_with(Prefix) || !name.ends_with(Extension)) {
                continue;
            }
            KeptLife kept{path, Lock(path)};
            if (!kept.lock || !FileExists(path)) {
                continue;
            }
            kept.failure = ErrorOf([&] {
                               kept.lines = DecodeGame(ReadWholeFile(path));
                               kept.game = WholeGame(kept.lines);
                           }).number;
            found.push_back(std::move(kept));
        }
    });
    return found;
}

std::string SetKeptLifeAside(const KeptLife& kept)
{
    std::string aside = WithExtension(kept.path, ".damaged");
    for (int number = 2; FileExists(aside); ++number) {
        aside = WithExtension(kept.path, "." + Decimal(number) + ".damaged");
    }
    RenameFile(kept.path, aside);
    return aside;
}

void TakeLifeInHand(const KeptLife& from)
{
    LetLifeGo();
    if (!from.path.empty()) {
        hand->path = from.path;
        hand->lock = from.lock;
    }
    hand->holdsLife = true;
    WhenLifeIsOver(LetLifeGo);
}

void KeepLife()
{
    if (ProgramHasEnded() || Running::Now(Running::What::NewGame) ||
        Running::Now(Running::What::Load)) {
        return; // it was kept before, or is not to be
    }
    TrappedSilently([] {
        if (hand->holdsLife && (!hand->path.empty() || FindOwnFile())) {
            std::string present = PresentLife();
            if (present != hand->kept) {
                ReplaceFile(hand->path, present);
                hand->kept = std::move(present);
            }
        }
    });
}

void LetLifeGo()
{
    hand->holdsLife = false;
    if (!hand->path.empty()) {
        TrappedSilently([] { DeleteFile(hand->path); });
        hand->kept.clear();
    }
}

} // namespace torvenhall
