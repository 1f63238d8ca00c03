#include <set>

#include "core/random.h"
#include "core/waits.h"
#include "game/cheats.h"
#include "support/life.h"

using namespace torvenhall;

using Statistics = BegunLife;

TEST_F(Statistics, TheirSettersDoAsTheTablesSay)
{
    GameState.GameTime = {13, 45};
    Given("Happy=0 Health=0 EatLevel=0 GameSpeed=1 GameLevel=9 WinMoney=9 Money=0");
    for (void (*const set)(Int16) : {SetHealth, SetEatLevel, SetHappy}) {
        for (const std::string& line : Grouped(-110, 150, [&](int value) {
                 Assign("Happy=0 Health=0 EatLevel=0");
                 std::string outcome = Outcome([&] { set(value); });
                 const std::string number = std::to_string(value);
                 return outcome.replace(outcome.find(number), number.size(), "N");
             })) {
            lines.push_back(line);
        }
    }
    Walk("SetEducation", -1, 10, [](int rank) { SetEducation(rank); });
    Walk("SetIntelligence", 110, 110, [](int value) { SetIntelligence(value); });
    Walk("SetGameLevel", -1, 3, [](int asked) {
        Int16 level = asked;
        SetGameLevel(level);
        EXPECT_EQ(level, asked == -1 ? 1 : asked) << "for its caller too";
    });
    for (const int value : {15, 30, 45, 60}) {
        Try("", [=] { SetGameSpeed(value); });
    }
    Walk("SetMoney", -1, 0, [](int money) { SetMoney(money); });
    for (const char* code : {"QUOKKAFOX", "ZEPHR", "MARLIN", "WOMBAT", "TANGERINE", "PELICAN",
                             "quokkafox", " ZEPHR", "MARLIN ", ""}) {
        player.inputs = {code};
        GameState.Intelligence = 5;
        lines.push_back('"' + std::string(code) + "\": " + Outcome(EnterCheat));
    }
    player.inputs = {std::nullopt};
    Try("(cancelled)", EnterCheat);
    player.inputs = {"WOMBAT"};
    Try("Health=32767", EnterCheat);
    ExpectKept("statistics.txt", lines);
}

TEST_F(Statistics, AnErrorIsReportedInItsWords)
{
    for (const int number : {1, 5, 6, 7, 9, 11, 13, 52, 53, 57, 58, 61, 67, 70, 75, 76}) {
        Try("", [=] { Trapped([=] { throw RuntimeError{number}; }); });
    }
    ExpectKept("errors.txt", lines);
    EXPECT_EQ(Outcome([] { Trapped([] { throw std::bad_alloc(); }); }), lines[3]);
    EXPECT_EQ(Outcome([] { Trapped([] {}); }), "");
}

TEST_F(Statistics, APauseLastsAndTheNetworksRoundsItsSecondsHalfToEven)
{
    for (const auto& [seconds, least] : {std::pair{-1, 0.0}, {0, 0.0}, {1, 0.5}, {10, 9.5}}) {
        player.seconds = 0;
        WaitSeconds(seconds);
        EXPECT_NEAR(player.seconds, least, 0.002) << seconds;
    }
    player.seconds = 0;
    Meanwhile([this] { player.seconds -= 0.4; }); // woken too soon
    Pause(2);
    EXPECT_NEAR(player.seconds, 2, 0.001);
}

TEST(Random, ValuesLieBelowOneAndReseedingRepeatsNoSequence)
{
    RandomDice kept(1), again(1);
    again.Randomize();
    EXPECT_NE(kept.Rnd(), again.Rnd()) << "the system timer reseeds";
    std::set<float> values, fractions;
    float sum = 0;
    for (int i = 0; i < 1000; ++i) {
        kept.Randomize(121);
        RandomDice fresh(1);
        fresh.Randomize(1e-4 * i);
        fractions.insert(fresh.Rnd());
        sum += *values.insert(kept.Rnd()).first;
    }
    EXPECT_TRUE(*values.begin() >= 0 && *values.rbegin() < 1);
    EXPECT_NEAR(sum, 500, 50);
    EXPECT_GT(std::min(values.size(), fractions.size()), 990U);
}
