#include "events/family.h"

#include "core/entry.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

using Texts = std::vector<std::string>;

class Family : public Life
{
protected:
    Family() { Begin(); }
};

TEST_F(Family, AWeddingShowsItsStopIconAndTheWife)
{
    player.whileBoxOpen.emplace_back([] { EXPECT_EQ(GameState.Married, False); });
    Marry();
    EXPECT_EQ(
        player.BoxTexts(),
        Texts{"Жениться или не жениться... Поздно!!!: Поздравляю! Вчера ты нашел свою жену! А "
              "сегодня ты женился! Поздравляем!!!!!"});
    EXPECT_EQ(player.boxes[0].icon, Icon::Critical);
    EXPECT_EQ(GameState.WifeFound, -1);
    EXPECT_EQ(GameState.Married, -1);
    EXPECT_EQ(LabelShown(Label::lblFamily), "PRST:0:0");
}

TEST_F(Family, TheMiddleOfThreeDrawsIsASon)
{
    GameState.WifeFound = GameState.Married = True;
    for (const auto& [value, son] : {std::pair{0.0F, false},
                                     {0.25F, false},
                                     {0.26F, true},
                                     {0.5F, true},
                                     {0.74F, true},
                                     {0.75F, false},
                                     {0.99F, false}}) {
        GameState.Sons = GameState.Daughters = 0;
        player.Forget();
        dice.values = {0.5F, value};
        ChildBirth();
        EXPECT_EQ(player.BoxTexts(), Texts{son ? "Медсестра: Поздравляем! У тебя родился сын!"
                                               : "Медбрат: Поздравляем! У тебя родилась дочка!"})
            << value;
        EXPECT_EQ(LabelShown(Label::lblFamily), son ? "PRST:1:0" : "PRST:0:1");
    }
    EXPECT_EQ(dice.reseeds.back(), 1.0) << "reseeded from twice the first draw";
}

TEST_F(Family, ADivorceWithChildrenCostsAlimony)
{
    GameState.WifeFound = GameState.Married = True;
    GameState.Sons = 1;
    GameState.Daughters = 2;
    Divorce();
    EXPECT_EQ(player.BoxTexts(),
              (Texts{"Наконец-то: От тебя ушла жена!!! Поздравляю!",
                     "ARMAGEDDON: Но не тут-то было! Она забрала детей и ты каждый месяц должен "
                     "выплачивать ей $150 !!!"}));
    EXPECT_EQ(player.boxes[0].icon, Icon::Information);
    EXPECT_EQ(player.boxes[1].icon, Icon::Critical);
    EXPECT_EQ(GameState.Alimony, 150);
    EXPECT_EQ(GameState.Married, False);
    EXPECT_EQ(LabelShown(Label::lblFamily), "LEFT:1:2");
}

TEST_F(Family, ADivorceWithoutChildrenCostsNothing)
{
    GameState.WifeFound = GameState.Married = True;
    Divorce();
    EXPECT_EQ(player.boxes.size(), 1U);
    EXPECT_EQ(GameState.Alimony, 0);
    EXPECT_EQ(LabelShown(Label::lblFamily), "LEFT:0:0");
}

TEST_F(Family, AnImpossibleMarriageAddsToWhatTheLabelShows)
{
    GameState.WifeFound = True;
    GameState.Married = 1;
    ShowFamily();
    ShowFamily();
    EXPECT_EQ(LabelShown(Label::lblFamily), "NO WIFE:0:0:0:0");
}

TEST_F(Family, ABirthIsToldWithTheInformationSignBeforeItCounts)
{
    GameState.WifeFound = GameState.Married = True;
    player.whileBoxOpen.emplace_back([] { EXPECT_EQ(GameState.Sons, 0); });
    dice.values = {0.5F, 0.5F};
    ChildBirth();
    EXPECT_EQ(player.boxes.at(0).icon, Icon::Information);
    EXPECT_EQ(GameState.Sons, 1);

    GameState.Sons = 32767;
    dice.values = {0.5F, 0.5F};
    ChildBirth();
    EXPECT_TRUE(player.boxes.back().text.starts_with("Возникла непредвиденная ошибка № 6"));
}

TEST_F(Family, AbsurdChildCountsAreReported)
{
    GameState.Sons = 700;
    EXPECT_EQ(AlimonyFor(), 0);
    ASSERT_EQ(player.boxes.size(), 1U);
    EXPECT_TRUE(player.boxes[0].text.starts_with("Возникла непредвиденная ошибка № 6"));
}

} // namespace
} // namespace torvenhall::test
