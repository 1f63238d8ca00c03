#include "core/basGame.h"

#include "core/life.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

using Statistics = Life;

TEST_F(Statistics, AVitalTurnsRedBelowItsWarningBoundAndKillsAtItsFatalOne)
{
    constexpr auto Light = TextColour::LightCyan;
    constexpr auto Red = TextColour::Red;
    const char* injuries = "i Дана Скали: Вы скончались от полученных травм. Время смерти -- 13:45";
    const char* hunger = "i Желаю тебе быть большим и тольстым: Вы умерли голодной смертью!";
    const char* despair = "i Критический уровень настроения: Вы спрыгнули с 15 этажа и разбились "
                          "насмерть!!!";
    struct {
        void (*set)(Int16);
        Label label;
        int value;
        TextColour colour;
        const char* death;
    } const cases[]{
        {SetHealth, lblHealth, 150, Light, nullptr}, {SetHealth, lblHealth, -30, Light, nullptr},
        {SetHealth, lblHealth, -31, Red, nullptr},   {SetHealth, lblHealth, -49, Red, nullptr},
        {SetHealth, lblHealth, -50, Red, injuries},  {SetEatLevel, lblEat, 150, Light, nullptr},
        {SetEatLevel, lblEat, -20, Light, nullptr},  {SetEatLevel, lblEat, -21, Red, nullptr},
        {SetEatLevel, lblEat, -34, Red, nullptr},    {SetEatLevel, lblEat, -35, Red, hunger},
        {SetHappy, lblHappy, 150, Light, nullptr},   {SetHappy, lblHappy, -74, Light, nullptr},
        {SetHappy, lblHappy, -75, Light, despair},   {SetHappy, lblHappy, -100, Light, despair},
        {SetHappy, lblHappy, -101, Red, despair},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(std::string(LabelName(row.label)) + " " + std::to_string(row.value));
        Begin();
        GameState.GameTime = {13, 45};
        if (row.death != nullptr) {
            EXPECT_THROW(row.set(row.value), LifeEnd);
        } else {
            EXPECT_NO_THROW(row.set(row.value));
        }
        EXPECT_EQ(Told(), row.death != nullptr ? Texts{row.death} : Texts{});
        EXPECT_EQ(LabelShown(row.label), std::to_string(row.value) + "%");
        EXPECT_EQ(player.colours[row.label], row.colour);
    }
}

TEST_F(Statistics, TheOthersAreShownInTheirOwnWordsAndNeverRefused)
{
    for (const int money : {-5, 2147483647}) {
        SetMoney(money);
        EXPECT_EQ(LabelShown(lblMoney), "$" + std::to_string(money));
    }
    SetIntelligence(110);
    EXPECT_EQ(LabelShown(lblEducation), "110%");
    const char* ranks[]{"",        "BEGIN", "USER",   "GAMER", "LAMER",
                        "PROG-ER", "ADMIN", "HACKER", "PROF",  ""};
    for (int rank = 0; rank <= 9; ++rank) {
        SetEducation(rank);
        EXPECT_EQ(LabelShown(lblStatus), ranks[rank]);
        EXPECT_EQ(GameState.Education, rank);
    }
    const std::pair<int, const char*> speeds[]{
        {15, "Медленная"}, {30, "Нормальная"}, {60, "Быстрая"}, {45, "Быстрая"}};
    for (const auto& [speed, caption] : speeds) {
        SetGameSpeed(speed);
        EXPECT_EQ(LabelShown(lblGameSpeed), std::string("Скорость игры: ") + caption);
        EXPECT_EQ(GameState.GameSpeed, speed) << "an unknown speed is kept without a caption";
    }
}

TEST_F(Statistics, ALevelSetsItsTargetAnUnknownOneNothingAndNoneTheNormalOne)
{
    struct {
        int asked, level, money;
        const char* caption;
    } const levels[]{{0, 0, 30000, "Сложность: Сложная"},
                     {1, 1, 10000, "Сложность: Нормальная"},
                     {2, 2, 5000, "Сложность: Лёгкая"},
                     {3, 2, 5000, "Сложность: Лёгкая"}};
    Int16 level;
    for (const auto& row : levels) {
        level = row.asked;
        SetGameLevel(level);
        EXPECT_EQ(GameState.WinMoney, row.money);
        EXPECT_EQ(GameState.GameLevel, row.level);
        EXPECT_EQ(LabelShown(lblGameLevel), row.caption);
    }
    EXPECT_EQ(Told(), Texts{});
    level = -1;
    SetGameLevel(level);
    EXPECT_EQ(level, 1);
    EXPECT_EQ(GameState.WinMoney, 10000);
    EXPECT_EQ(Told(), Texts{"! Ты чё, ослеп???: Вы не выбрали уровень сложности игры. Сложность "
                            "будет установлена по-умелчанию (нормальная)"});
}

} // namespace
} // namespace torvenhall::test
