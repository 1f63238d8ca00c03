#include "support/life.h"

#include <filesystem>

#include "core/entry.h"
#include "core/life.h"
#include "core/newgame.h"
#include "core/outside.h"
#include "network/network.h"
#include "system/basSystem.h"

namespace torvenhall::test
{

namespace
{

std::string MakeOwnFolder()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "torvenhall-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        ADD_FAILURE() << "no folder for the test's files";
    }
    return AddBackslash(pattern);
}

} // namespace

Life::Life() : ownFolder(MakeOwnFolder())
{
    ResetLife();
    ResetLabels();
    ResetNetwork();
    GameState = {};
    Connect({&player, &dice, &clock});
    SetDirectories(ownFolder, ownFolder);
}

Life::~Life()
{
    // The game may have made its own folder the current one.
    std::filesystem::current_path(std::filesystem::temp_directory_path());
    std::filesystem::remove_all(ownFolder);
    Connect({});
}

void Life::Begin(int level, const std::string& name)
{
    player.names.push_back(NewPlayer{name, level});
    EnterRules(NewGame);
    player.Forget();
}

void Life::Tick(int times)
{
    for (int i = 0; i < times; ++i) {
        EnterTick();
    }
}

void Life::FinishDay()
{
    const Date today = GameState.GameDate;
    for (int i = 0; i < 100 && GameState.GameDate == today; ++i) {
        EnterTick();
    }
}

void Life::PlainDays()
{
    dice.otherwise = DrawOf(1, 50);
}

std::string Life::LabelShown(Label label) const
{
    const auto found = player.labels.find(label);
    return found == player.labels.end() ? "" : found->second;
}

} // namespace torvenhall::test
