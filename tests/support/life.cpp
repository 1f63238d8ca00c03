#include "support/life.h"

#include <cstdint>
#include <filesystem>
#include <map>

#include "core/basGame.h"
#include "core/life.h"
#include "core/waits.h"
#include "game/entry.h"
#include "game/newgame.h"
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

void Life::Set(int happy, int health, int eat, int money)
{
    SetHappy(happy);
    SetHealth(health);
    SetEatLevel(eat);
    SetMoney(money);
    player.Forget();
}

void Life::NextLifeIs(const std::string& name)
{
    player.Forget();
    player.names.push_back(NewPlayer{name, 1});
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

std::string Life::LabelShown(Label label) const
{
    const auto found = player.labels.find(label);
    return found == player.labels.end() ? "" : found->second;
}

Texts Life::ShownBy(const Changes& changes)
{
    // Wider than the money, whose deepest debt a row may go below.
    std::map<Label, std::int64_t> now{{lblMoney, GameState.Money.value()},
                                      {lblHappy, GameState.Happy.value()},
                                      {lblHealth, GameState.Health.value()},
                                      {lblEat, GameState.EatLevel.value()}};
    Texts shown;
    for (const auto& [label, by] : changes) {
        const std::string number = std::to_string(now.at(label) += by);
        shown.push_back(std::string(LabelName(label)) +
                        (label == lblMoney ? "=$" + number : "=" + number + "%"));
    }
    return shown;
}

Texts Life::Told()
{
    Texts told;
    for (const MessageBox& box : player.boxes) {
        told.push_back(std::string{"i!?x"[static_cast<int>(box.icon)]} + " " + box.title + ": " +
                       box.text);
    }
    player.boxes.clear();
    return told;
}

int Life::ErrorTold()
{
    const Texts told = Told();
    EXPECT_LE(told.size(), 1U);
    if (told.empty()) {
        return 0;
    }
    const std::string sign = "№ ";
    const std::size_t found = told[0].find(sign);
    if (found != std::string::npos) {
        return std::stoi(told[0].substr(found + sign.size()));
    }
    EXPECT_NE(told[0].find("Несовпадение типов данных"), std::string::npos) << told[0];
    return 13;
}

} // namespace torvenhall::test
