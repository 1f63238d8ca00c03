#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "savegame/format.h"

namespace torvenhall
{

// The life in hand. While it is played, a copy of it is kept in a file of this
// running program's own, apart from the saved games; a normal end removes it.
// What is found at the next start outlived a power cut, a logout or a crash.

/// A life that was in hand when its program stopped.
struct KeptLife {
    std::string path;
    std::shared_ptr<void> lock; ///< while it is held no other program offers it
    int failure = 0;            ///< the run-time error when the file cannot be read
    SavedGame lines = {};
    std::optional<Game> game = {}; ///< what the lines tell; nothing when damaged
};

/// The lives that no running program has in hand, in the order of their files.
std::vector<KeptLife> FindKeptLives();
/// Renames a damaged one, so that it is not offered again; the path of its file
/// then. Errors as renaming raises them.
std::string SetKeptLifeAside(const KeptLife& kept);

/// The present life is in hand from now on, and no other; its file takes the
/// place of the one that it goes on from, if there is one.
void TakeLifeInHand(const KeptLife& from = {});
/// Writes the present life to this program's file, if one is in hand and
/// anything has changed. Nobody is told of a failure: what was kept before is
/// still there. While another life comes into being the one before is kept.
void KeepLife();
/// The life in hand is over (core/unwinding.h tells) or safe: deletes what was
/// kept of it.
void LetLifeGo();

} // namespace torvenhall
