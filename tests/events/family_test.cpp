#include "events/family.h"

#include "support/life.h"

namespace torvenhall::test
{
namespace
{

class Family : public BegunLife
{
protected:
    static void BeMarried(int sons, int daughters)
    {
        GameState.WifeFound = GameState.Married = True;
        GameState.Sons = sons;
        GameState.Daughters = daughters;
    }
};

TEST_F(Family, AWeddingShowsItsStopIconAndThenTheWife)
{
    player.whileBoxOpen.emplace_back([] { EXPECT_EQ(GameState.Married, False); });
    Marry();
    EXPECT_EQ(Told(),
              Texts{"x Жениться или не жениться... Поздно!!!: Поздравляю! Вчера ты нашел свою "
                    "жену! А сегодня ты женился! Поздравляем!!!!!"});
    EXPECT_EQ(GameState.WifeFound, -1);
    EXPECT_EQ(GameState.Married, -1);
    EXPECT_EQ(LabelShown(lblFamily), "PRST:0:0");
}

TEST_F(Family, TheMiddleOfThreeDrawsIsASonAndIsToldBeforeItCounts)
{
    const std::pair<float, bool> draws[]{{0.0F, false}, {0.25F, false}, {0.26F, true}, {0.5F, true},
                                         {0.74F, true}, {0.75F, false}, {0.99F, false}};
    for (const auto& [value, son] : draws) {
        BeMarried(0, 0);
        dice.values = {0.5F, value};
        player.whileBoxOpen.emplace_back(
            [] { EXPECT_EQ(GameState.Sons + GameState.Daughters, 0); });
        ChildBirth();
        EXPECT_EQ(Told(), Texts{son ? "i Медсестра: Поздравляем! У тебя родился сын!"
                                    : "i Медбрат: Поздравляем! У тебя родилась дочка!"})
            << value;
        EXPECT_EQ(LabelShown(lblFamily), son ? "PRST:1:0" : "PRST:0:1");
    }
    EXPECT_EQ(dice.reseeds.back(), 1.0) << "reseeded from twice the first draw";
}

TEST_F(Family, ADivorceCostsAlimonyForEachChild)
{
    BeMarried(1, 2);
    Divorce();
    const std::string left = "i Наконец-то: От тебя ушла жена!!! Поздравляю!";
    EXPECT_EQ(Told(), (Texts{left, "x ARMAGEDDON: Но не тут-то было! Она забрала детей и ты каждый "
                                   "месяц должен выплачивать ей $150 !!!"}));
    EXPECT_EQ(GameState.Alimony, 150);
    EXPECT_EQ(GameState.Married, False);
    EXPECT_EQ(LabelShown(lblFamily), "LEFT:1:2");

    Begin();
    BeMarried(0, 0);
    Divorce();
    EXPECT_EQ(Told(), Texts{left});
    EXPECT_EQ(GameState.Alimony, 0);
    EXPECT_EQ(LabelShown(lblFamily), "LEFT:0:0");
}

TEST_F(Family, AnImpossibleMarriageAddsToWhatTheLabelShows)
{
    GameState.WifeFound = True;
    GameState.Married = 1;
    ShowFamily();
    ShowFamily();
    EXPECT_EQ(LabelShown(lblFamily), "NO WIFE:0:0:0:0");
}

TEST_F(Family, AbsurdChildCountsAreReported)
{
    BeMarried(700, 0);
    EXPECT_EQ(AlimonyFor(), 0);
    EXPECT_EQ(ErrorTold(), 6);
    GameState.Sons = 32767;
    dice.values = {0.5F, 0.5F};
    ChildBirth();
    EXPECT_TRUE(Told().back().find("№ 6 ") != std::string::npos);
}

} // namespace
} // namespace torvenhall::test
