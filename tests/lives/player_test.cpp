#include <gtest/gtest.h>

#include "core/basGame.h"
#include "core/demands.h"
#include "equipment/hardware.h"
#include "lives/player.h"
#include "lives/tables.h"
#include "lives/workers.h"
#include "support/life.h"

namespace torvenhall::lives
{
namespace
{

constexpr std::uint64_t Seed = 2001;

/// How many of a hundred who follow the manual live so long.
int Survivors(int level, int days)
{
    int alive = 0;
    for (std::uint64_t i = 0; i < 100; ++i) {
        const Story story = Player(Manual, level, Seed + i, "").Live(days);
        alive += story.end == End::Alive ? 1 : 0;
    }
    return alive;
}

TEST(Living, TheManualKeepsWhatItPromisesOfTheFirstWeeks)
{
    EXPECT_GE(Survivors(2, 90), 93) << "easy, in April";
    EXPECT_GE(Survivors(1, 7), 95) << "normal, after a week";
}

std::string CsvOf(Options options, int jobs)
{
    options.jobs = jobs;
    return AsCsv(FiguresOf(options, PlayAll(options, [](int) {})));
}

TEST(Living, TheSameSeedGivesTheSameLivesInAnyNumberOfProcesses)
{
    Options options;
    options.policies = {&Manual, &Climber, &Reloader};
    options.levels = {1};
    options.lives = 2;
    options.years = 1;
    const std::string alone = CsvOf(options, 1);
    EXPECT_EQ(alone, CsvOf(options, 3));
    options.seed = 2;
    EXPECT_NE(alone, CsvOf(options, 3)) << "another seed";
}

/// While the game is paused time stands still, nothing is had for nothing and
/// nobody buys on credit.
void ExpectLegal(const Game& before)
{
    const Game& after = GameState;
    EXPECT_TRUE(after.GameDate == before.GameDate && after.GameTime == before.GameTime);
    EXPECT_TRUE(after.Education == before.Education && after.Intelligence == before.Intelligence);
    EXPECT_TRUE(after.Money == before.Money || (after.Money < before.Money && after.Money >= 0));
    int gains = 0;
    for (const auto field : {&Game::Happy, &Game::Health, &Game::EatLevel}) {
        gains += after.*field > before.*field ? 1 : 0;
    }
    for (const HardwareCategory& category : Hardware) {
        gains += after.*category.field > before.*category.field ? 1 : 0;
    }
    EXPECT_TRUE(gains == 0 || after.Money < before.Money) << gains << " for nothing";
    EXPECT_TRUE(after.CurrWork == before.CurrWork || AreMet(At(Jobs, after.CurrWork).demands));
}

TEST(Living, EveryPolicyDoesOnlyWhatAPlayerCan)
{
    const std::string folder = MakeFolder();
    int acts = 0;
    for (const Policy* const policy : Policies()) {
        for (const int level : {0, 1, 2}) {
            SCOPED_TRACE(std::string(policy->name) + " on level " + std::to_string(level));
            Player player(*policy, level, Seed, folder);
            player.afterActing = [&](const Game& before) {
                ++acts;
                ExpectLegal(before);
            };
            player.Live(150);
        }
    }
    EXPECT_GT(acts, 1000);
    std::filesystem::remove_all(folder);
}

TEST(Living, SaysWhichOptionItDoesNotKnow)
{
    for (const auto& [words, told] :
         {std::pair<std::vector<std::string>, std::string>{{"--polcy", "saver"},
                                                           "there is no option \"--polcy\""},
          {{"--policy", "miser"}, "there is no way of playing called \"miser\""},
          {{"--lives", "0"}, "--lives takes a number from 1 to 100000, not \"0\""},
          {{"--csv", "--seed"}, "--seed needs a value"}}) {
        std::vector<std::string> copies = words;
        std::vector<char*> pointers;
        for (std::string& word : copies) {
            pointers.push_back(word.data());
        }
        try {
            ReadOptions(pointers);
            ADD_FAILURE() << "taken: " << words.front();
        } catch (const BadOption& option) {
            EXPECT_EQ(option.what, told);
        }
    }
}

} // namespace
} // namespace torvenhall::lives
