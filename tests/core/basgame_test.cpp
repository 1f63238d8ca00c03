#include "core/basGame.h"

#include "core/entry.h"
#include "core/life.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

class Statistics : public Life
{
};

struct VitalCase {
    const char* name;
    void (*set)(Int16);
    Label label;
    int stillLight; ///< the lowest light value
    int stillAlive; ///< the lowest value that does not kill
    const char* text;
    const char* title;
};

const VitalCase Vitals[]{
    {"health", SetHealth, Label::lblHealth, -30, -49,
     "Вы скончались от полученных травм. Время смерти -- 13:45", "Дана Скали"},
    {"satiety", SetEatLevel, Label::lblEat, -20, -34, "Вы умерли голодной смертью!",
     "Желаю тебе быть большим и тольстым"},
    {"mood", SetHappy, Label::lblHappy, -100, -74,
     "Вы спрыгнули с 15 этажа и разбились насмерть!!!", "Критический уровень настроения"},
};

TEST_F(Statistics, AVitalTurnsRedBelowItsWarningBoundAndKillsAtItsFatalOne)
{
    for (const VitalCase& vital : Vitals) {
        SCOPED_TRACE(vital.name);
        Begin();
        GameState.GameTime = {13, 45};

        vital.set(150);
        EXPECT_EQ(LabelShown(vital.label), "150%");
        const int lowestLight = std::max(vital.stillLight, vital.stillAlive);
        vital.set(lowestLight);
        EXPECT_EQ(player.colours[vital.label], TextColour::LightCyan);
        vital.set(vital.stillAlive);
        EXPECT_EQ(player.colours[vital.label],
                  vital.stillAlive >= vital.stillLight ? TextColour::LightCyan : TextColour::Red);
        EXPECT_TRUE(player.boxes.empty());
        if (vital.stillLight > vital.stillAlive) {
            vital.set(vital.stillLight - 1);
            EXPECT_EQ(player.colours[vital.label], TextColour::Red);
        }

        EXPECT_THROW(vital.set(vital.stillAlive - 1), LifeEnd);
        ASSERT_EQ(player.boxes.size(), 1U);
        EXPECT_EQ(player.boxes[0].text, vital.text);
        EXPECT_EQ(player.boxes[0].title, vital.title);
        EXPECT_EQ(player.boxes[0].icon, Icon::Information);
    }
}

TEST_F(Statistics, AMoodThatKillsIsStillShownLightAboveMinusHundred)
{
    Begin();
    EXPECT_THROW(SetHappy(-100), LifeEnd);
    EXPECT_EQ(player.colours[Label::lblHappy], TextColour::LightCyan);
    EXPECT_THROW(SetHappy(-101), LifeEnd);
    EXPECT_EQ(player.colours[Label::lblHappy], TextColour::Red);
}

TEST_F(Statistics, MoneyIsShownWithItsSignAndNeverRefused)
{
    SetMoney(-5);
    EXPECT_EQ(LabelShown(Label::lblMoney), "$-5");
    SetMoney(2147483647);
    EXPECT_EQ(LabelShown(Label::lblMoney), "$2147483647");
}

TEST_F(Statistics, TheEducationLabelShowsIntelligenceAndTheStatusLabelTheRank)
{
    SetIntelligence(110);
    EXPECT_EQ(LabelShown(Label::lblEducation), "110%");
    const char* words[]{"",        "BEGIN", "USER",   "GAMER", "LAMER",
                        "PROG-ER", "ADMIN", "HACKER", "PROF",  ""};
    for (int rank = 0; rank <= 9; ++rank) {
        SetEducation(rank);
        EXPECT_EQ(LabelShown(Label::lblStatus), words[rank]);
        EXPECT_EQ(GameState.Education, rank);
    }
}

TEST_F(Statistics, ALevelSetsItsTargetAndAnUnknownOneChangesNothing)
{
    struct {
        int level, money;
        const char* caption;
    } const levels[]{{0, 30000, "Сложность: Сложная"},
                     {1, 10000, "Сложность: Нормальная"},
                     {2, 5000, "Сложность: Лёгкая"},
                     {3, 5000, "Сложность: Лёгкая"}};
    for (const auto& row : levels) {
        Int16 level = row.level;
        SetGameLevel(level);
        EXPECT_EQ(GameState.WinMoney, row.money);
        EXPECT_EQ(GameState.GameLevel, std::min(row.level, 2));
        EXPECT_EQ(LabelShown(Label::lblGameLevel), row.caption);
    }
    EXPECT_TRUE(player.boxes.empty());
}

TEST_F(Statistics, NoSelectedLevelTellsThePlayerAndBecomesTheNormalOne)
{
    Int16 level = -1;
    SetGameLevel(level);
    EXPECT_EQ(level, 1);
    EXPECT_EQ(GameState.WinMoney, 10000);
    ASSERT_EQ(player.boxes.size(), 1U);
    EXPECT_EQ(player.boxes[0].text, "Вы не выбрали уровень сложности игры. Сложность будет "
                                    "установлена по-умелчанию (нормальная)");
    EXPECT_EQ(player.boxes[0].title, "Ты чё, ослеп???");
    EXPECT_EQ(player.boxes[0].icon, Icon::Exclamation);
}

TEST_F(Statistics, AnySpeedIsStoredButOnlyThreeHaveACaption)
{
    SetGameSpeed(15);
    EXPECT_EQ(LabelShown(Label::lblGameSpeed), "Скорость игры: Медленная");
    SetGameSpeed(30);
    EXPECT_EQ(LabelShown(Label::lblGameSpeed), "Скорость игры: Нормальная");
    SetGameSpeed(60);
    EXPECT_EQ(LabelShown(Label::lblGameSpeed), "Скорость игры: Быстрая");
    SetGameSpeed(45);
    EXPECT_EQ(GameState.GameSpeed, 45);
    EXPECT_EQ(LabelShown(Label::lblGameSpeed), "Скорость игры: Быстрая");
}

} // namespace
} // namespace torvenhall::test
