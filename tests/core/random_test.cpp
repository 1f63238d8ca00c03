#include "core/random.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace torvenhall::test
{
namespace
{

TEST(Random, ValuesLieBelowOneAndSpreadEvenly)
{
    RandomDice dice(1);
    int lower = 0;
    for (int i = 0; i < 100000; ++i) {
        const float value = dice.Rnd();
        ASSERT_GE(value, 0.0F);
        ASSERT_LT(value, 1.0F);
        lower += value < 0.5F ? 1 : 0;
    }
    EXPECT_NEAR(lower, 50000, 1000);
}

TEST(Random, ReseedingWithTheSameValueNeverRepeatsASequence)
{
    RandomDice dice(1);
    std::set<float> firstDraws;
    for (int i = 0; i < 200; ++i) {
        dice.Randomize(121);
        firstDraws.insert(dice.Rnd());
    }
    EXPECT_GT(firstDraws.size(), 190U);
}

TEST(Random, SmallFractionsReseedDifferently)
{
    std::set<float> firstDraws;
    for (int i = 0; i < 100; ++i) {
        RandomDice dice(1);
        dice.Randomize(0.001 * i);
        firstDraws.insert(dice.Rnd());
    }
    EXPECT_GT(firstDraws.size(), 95U);
}

TEST(Random, TheSystemTimerReseedsToo)
{
    RandomDice once(1);
    RandomDice again(1);
    once.Randomize();
    again.Randomize();
    EXPECT_NE(once.Rnd(), again.Rnd());
}

} // namespace
} // namespace torvenhall::test
