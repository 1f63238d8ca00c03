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
    SavedGame lines = {};
    std::optional<Game> game = {}; ///< what the lines tell; nothing when damaged
};

/// The lives that no running program has in hand, in the order of their files.
std::vector<KeptLife> FindKeptLives();
/// Deletes a life that nobody wants to go on with.
void DropKeptLife(const KeptLife& kept);
/// Renames a damaged one, so that it is not offered again; the path of its file
/// then.
std::string SetKeptLifeAside(const KeptLife& kept);

/// The present life is in hand from now on, and no other; its file takes the
/// place of the one that it goes on from, if there is one.
void TakeLifeInHand(const KeptLife& from = {});
/// Writes the present life to this program's file, if one is in hand and
/// anything has changed. Nobody is told of a failure: what was kept before is
/// still there. A life whose last box is open is not kept any more.
void KeepLife();
/// The life in hand is over, or safe: deletes what was kept of it.
void LetLifeGo();

} // namespace torvenhall
