#include "core/random.h"

#include <gtest/gtest.h>

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
        ASSERT_TRUE(value >= 0.0F && value < 1.0F) << value;
        lower += value < 0.5F ? 1 : 0;
    }
    EXPECT_NEAR(lower, 50000, 1000);
}

TEST(Random, ReseedingNeverRepeatsASequenceAndTellsSmallFractionsApart)
{
    RandomDice kept(1);
    std::set<float> afterSame, afterFractions;
    for (int i = 0; i < 200; ++i) {
        kept.Randomize(121);
        afterSame.insert(kept.Rnd());
        RandomDice fresh(1);
        fresh.Randomize(0.001 * i);
        afterFractions.insert(fresh.Rnd());
    }
    EXPECT_GT(afterSame.size(), 190U);
    EXPECT_GT(afterFractions.size(), 190U);

    RandomDice once(1), again(1);
    once.Randomize();
    again.Randomize();
    EXPECT_NE(once.Rnd(), again.Rnd()) << "the system timer reseeds too";
}

} // namespace
} // namespace torvenhall::test
