// Education and the virus.

#include "activities/education.h"
#include "activities/virus.h"
#include "core/basGame.h"
#include "core/entry.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

class EducationWindow : public Life
{
protected:
    EducationWindow()
    {
        Begin();
        GameState.AttendCourses = GameState.AttendSchool = False;
    }
};

TEST_F(EducationWindow, TwoClicksRestoreFlagAndCaption)
{
    EXPECT_EQ(LoadEducation().school, "Ходить в школу");
    EXPECT_EQ(LoadEducation().courses, "Ходить на курсы");
    ToggleSchool();
    ToggleCourses();
    EXPECT_EQ(GameState.AttendSchool, -1);
    EXPECT_EQ(GameState.AttendCourses, -1);
    EXPECT_EQ(LoadEducation().school, "Бросить эту школу");
    EXPECT_EQ(LoadEducation().courses, "Бросить эти курсы");
    ToggleSchool();
    ToggleCourses();
    EXPECT_EQ(LoadEducation().school, "Ходить в школу");
    EXPECT_EQ(GameState.AttendCourses, 0);
}

TEST_F(EducationWindow, AFinishedSchoolIsAnnouncedOnTheCoursesButton)
{
    SetIntelligence(100);
    EXPECT_EQ(LoadEducation().school, "Ходить в школу");
    EXPECT_TRUE(LoadEducation().schoolDone);
    EXPECT_EQ(LoadEducation().courses, "Закончил эту школу!");
    EXPECT_FALSE(LoadEducation().coursesDone);

    SetEducation(8);
    EXPECT_EQ(LoadEducation().courses, "Закончил эту школу!");
    EXPECT_TRUE(LoadEducation().coursesDone);

    SetIntelligence(110);
    EXPECT_EQ(LoadEducation().courses, "Закончил эти курсы!");
    EXPECT_FALSE(LoadEducation().schoolDone);
}

class VirusWindow : public Life
{
protected:
    VirusWindow() { Begin(); }
};

TEST_F(VirusWindow, LettingGoCostsATwentiethRoundedHalfToEven)
{
    struct {
        int money, left;
        const char* text;
    } const cases[]{
        {10, 10, "Вирус сожрал 0 баксов!"},    {30, 28, "Вирус сожрал 2 баксов!"},
        {100, 95, "Вирус сожрал 5 баксов!"},   {0, 0, "Вирус сожрал 0 баксов!"},
        {-30, -28, "Вирус сожрал -2 баксов!"}, {-10, -10, "Вирус сожрал 0 баксов!"},
    };
    for (const auto& row : cases) {
        SetMoney(row.money);
        player.Forget();
        ReleaseVirus();
        ASSERT_EQ(player.boxes.size(), 1U);
        EXPECT_EQ(player.boxes[0].text, row.text);
        EXPECT_EQ(player.boxes[0].title, "Сообщение");
        EXPECT_EQ(player.boxes[0].icon, Icon::Exclamation);
        EXPECT_EQ(GameState.Money, row.left);
    }
}

TEST_F(VirusWindow, WithoutAnAntivirusTheFightIsLostWhateverTheLuck)
{
    SetMoney(100);
    dice.values = {0.3F, 0.99F};
    FightVirus();
    EXPECT_EQ(player.boxes.back().text, "Нет у вас антивируса! Вирус сожрал 5 баксов!");
    EXPECT_EQ(GameState.Money, 95);
    EXPECT_EQ(dice.reseeds.back(), 0.3F * 10.0F) << "reseeded from the first draw";
}

TEST_F(VirusWindow, AnyAntivirusWinsOnLuckAboveFive)
{
    for (int luck = 0; luck <= 10; ++luck) {
        GameState.SoftAntivirus = 1;
        SetMoney(100);
        dice.values = {0.5F, DrawOf(luck, 10)};
        FightVirus();
        EXPECT_EQ(player.boxes.back().text,
                  luck > 5 ? "Поздравляю! Вирус убит!" : "Не повезло! Он сожрал 5 баксов!");
        EXPECT_EQ(GameState.Money, luck > 5 ? 100 : 95);
    }
}

TEST_F(VirusWindow, TheChargeFollowsTheMoneyOfTheMomentNotOfTheMessage)
{
    SetMoney(100);
    player.whileBoxOpen.push_back([] { SetMoney(200); });
    ReleaseVirus();
    EXPECT_EQ(player.boxes.back().text, "Вирус сожрал 5 баксов!");
    EXPECT_EQ(GameState.Money, 190);
}

} // namespace
} // namespace torvenhall::test
