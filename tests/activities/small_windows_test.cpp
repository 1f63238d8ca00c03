// Education and the virus.

#include "activities/education.h"
#include "activities/virus.h"
#include "core/basGame.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

using EducationWindow = BegunLife;

TEST_F(EducationWindow, TwoClicksRestoreFlagAndCaption)
{
    GameState.AttendCourses = GameState.AttendSchool = False;
    for (const int attends : {0, -1, 0}) {
        EXPECT_EQ(GameState.AttendSchool, attends);
        EXPECT_EQ(GameState.AttendCourses, attends);
        EXPECT_EQ(LoadEducation().school, attends == 0 ? "Ходить в школу" : "Бросить эту школу");
        EXPECT_EQ(LoadEducation().courses, attends == 0 ? "Ходить на курсы" : "Бросить эти курсы");
        ToggleSchool();
        ToggleCourses();
    }
}

TEST_F(EducationWindow, AFinishedSchoolIsAnnouncedOnTheCoursesButton)
{
    GameState.AttendCourses = GameState.AttendSchool = False;
    struct {
        int intelligence, rank;
        bool schoolDone, coursesDone;
        const char* courses;
    } const cases[]{{100, 1, true, false, "Закончил эту школу!"},
                    {100, 8, true, true, "Закончил эту школу!"},
                    {110, 8, false, true, "Закончил эти курсы!"}};
    for (const auto& row : cases) {
        SetIntelligence(row.intelligence);
        SetEducation(row.rank);
        EXPECT_EQ(LoadEducation().school, "Ходить в школу");
        EXPECT_EQ(LoadEducation().courses, row.courses);
        EXPECT_EQ(LoadEducation().schoolDone, row.schoolDone);
        EXPECT_EQ(LoadEducation().coursesDone, row.coursesDone);
    }
}

using VirusWindow = BegunLife;

TEST_F(VirusWindow, LettingGoCostsATwentiethRoundedHalfToEven)
{
    struct {
        int money, left;
        const char* eaten;
    } const cases[]{{10, 10, "0"}, {30, 28, "2"},    {100, 95, "5"},
                    {0, 0, "0"},   {-30, -28, "-2"}, {-10, -10, "0"}};
    for (const auto& row : cases) {
        SetMoney(row.money);
        ReleaseVirus();
        EXPECT_EQ(Told(),
                  Texts{std::string("! Сообщение: Вирус сожрал ") + row.eaten + " баксов!"});
        EXPECT_EQ(GameState.Money, row.left);
    }
    // The charge follows the money of the moment, not of the message.
    SetMoney(100);
    player.whileBoxOpen.push_back([] { SetMoney(200); });
    ReleaseVirus();
    EXPECT_EQ(Told(), Texts{"! Сообщение: Вирус сожрал 5 баксов!"});
    EXPECT_EQ(GameState.Money, 190);
}

TEST_F(VirusWindow, AnyAntivirusWinsOnLuckAboveFiveAndNoneNever)
{
    for (const int antivirus : {0, 1, 4}) {
        for (int luck = 0; luck <= 10; ++luck) {
            GameState.SoftAntivirus = antivirus;
            SetMoney(100);
            dice.values = {0.3F, DrawOf(luck, 10)};
            FightVirus();
            const bool won = antivirus > 0 && luck > 5;
            EXPECT_EQ(player.boxes.back().text, won ? "Поздравляю! Вирус убит!"
                                                : antivirus == 0
                                                    ? "Нет у вас антивируса! Вирус сожрал 5 баксов!"
                                                    : "Не повезло! Он сожрал 5 баксов!");
            EXPECT_EQ(GameState.Money, won ? 100 : 95);
        }
    }
    EXPECT_EQ(dice.reseeds.back(), 0.3F * 10.0F) << "reseeded from the first draw";
}

} // namespace
} // namespace torvenhall::test
