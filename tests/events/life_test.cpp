#include <map>

#include "activities/work.h"
#include "core/basGame.h"
#include "core/entry.h"
#include "events/basEvents.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

using Journal = std::vector<std::string>;

class LifeTable : public Life
{
protected:
    LifeTable() { Begin(); }

    void Prepare(int level)
    {
        Begin(level);
        SetHappy(500);
        SetHealth(500);
        SetEatLevel(500);
        SetMoney(1010);
        player.Forget();
    }

    void Roll(int draw, Int16 monthEnd = False)
    {
        dice.values = {0.5F, 0.25F, DrawOf(draw, 25)};
        if (draw == 8) {
            dice.values.insert(dice.values.end(), {0.5F, 0.5F});
        }
        LifeEvents(monthEnd);
        if (draw == 8) {
            dice.values.clear();
        }
        EXPECT_TRUE(dice.values.empty());
    }
};

/// The changes from 500 % everywhere and 1010 dollars by draw and level, in
/// the order of the setters.
const std::map<int, std::array<Journal, 3>> RareEvents{
    {4,
     {{{"lblHealth=470%", "lblEat=440%"},
       {"lblHealth=485%", "lblEat=480%"},
       {"lblHealth=495%", "lblEat=490%"}}}},
    {6,
     {{{"message", "lblMoney=$758", "lblHappy=450%", "lblHealth=470%", "lblEat=460%"},
       {"message", "lblMoney=$909", "lblHappy=480%", "lblHealth=485%", "lblEat=480%"},
       {"message", "lblMoney=$990", "lblHappy=490%", "lblHealth=495%", "lblEat=490%"}}}},
    {8, {{{}, {}, {}}}},
    {10,
     {{{"message", "lblHappy=440%", "lblHealth=460%", "lblEat=495%"},
       {"message", "lblHappy=455%", "lblHealth=470%", "lblEat=502%"},
       {"message", "lblHappy=475%", "lblHealth=485%", "lblEat=510%"}}}},
    {24,
     {{{"box Жениться или не жениться... Поздно!!!", "lblFamily=PRST:0:0"},
       {"box Жениться или не жениться... Поздно!!!", "lblFamily=PRST:0:0"},
       {"box Жениться или не жениться... Поздно!!!", "lblFamily=PRST:0:0"}}}},
};
const std::array<Journal, 3> Wear{{{"lblHappy=495%", "lblEat=490%", "lblHealth=495%"},
                                   {"lblHappy=495%", "lblEat=495%", "lblHealth=495%"},
                                   {"lblHappy=499%", "lblEat=495%", "lblHealth=499%"}}};

TEST_F(LifeTable, EveryDrawOnEveryLevelHasItsEffectsInOrder)
{
    for (int level = 0; level <= 2; ++level) {
        for (int draw = 0; draw <= 25; ++draw) {
            SCOPED_TRACE("level " + std::to_string(level) + ", draw " + std::to_string(draw));
            Prepare(level);
            Roll(draw);
            const auto rare = RareEvents.find(draw);
            const auto& expected = rare == RareEvents.end() ? Wear : rare->second;
            EXPECT_EQ(player.journal, expected[static_cast<std::size_t>(level)]);
        }
    }
}

TEST_F(LifeTable, TheTableReseedsFromAProductOfTwoDraws)
{
    Prepare(1);
    dice.reseeds.clear();
    Roll(1);
    EXPECT_EQ(dice.reseeds, (std::vector<std::optional<double>>{0.125}));
}

TEST_F(LifeTable, DismissalSparesTheTopJobAndTheUnemployedButNotTheirHealth)
{
    for (int job = 0; job <= 12; ++job) {
        Prepare(1);
        SetWork(job);
        player.Forget();
        Roll(4);
        const bool dismissed = job > 0 && job < 12;
        EXPECT_EQ(GameState.CurrWork, dismissed ? 0 : job);
        EXPECT_EQ(player.messages,
                  dismissed ? Journal{"Сообщение от Вашего босса: Уважаемый Иван! Вы уволены!!!"}
                            : Journal{});
        EXPECT_EQ(GameState.Health, 485);
    }
}

TEST_F(LifeTable, BurglaryRoundsItsMessageAndItsChargeSeparately)
{
    struct {
        int level, money, left;
        const char* named;
    } const cases[]{
        {0, 10, 8, "2"}, {0, 6, 4, "2"}, {1, 5, 4, "0"}, {2, 75, 74, "2"}, {2, -10, -10, "0"}};
    for (const auto& row : cases) {
        Prepare(row.level);
        SetMoney(row.money);
        player.Forget();
        Roll(6);
        EXPECT_EQ(player.messages.at(0),
                  std::string("Сообщение от Майора Милиции Dutaig.: Мне очень жаль, но к вам "
                              "пробрались грабители и стащили ") +
                      row.named + " долларов.");
        EXPECT_EQ(GameState.Money, row.left);
    }
}

TEST_F(LifeTable, ABurglaryKeepsTheLevelItBeganOn)
{
    Prepare(0);
    player.duringWait.emplace_back([] {
        Int16 easy = 2;
        SetGameLevel(easy);
    });
    Roll(6);
    EXPECT_EQ(GameState.Money, 758);
    EXPECT_EQ(GameState.Happy, 450);
}

TEST_F(LifeTable, ADivorcedPersonNeverMarriesAgain)
{
    Prepare(1);
    GameState.WifeFound = True;
    Roll(24);
    GameState.Married = 1; // neither True nor False, from an edited file
    Roll(24);
    EXPECT_TRUE(player.journal.empty());
}

TEST_F(LifeTable, AttendanceThatIsNotTrueCostsNothing)
{
    Prepare(1);
    GameState.AttendCourses = GameState.AttendSchool = 1;
    Roll(1, True);
    EXPECT_EQ(GameState.Money, 1010);
}

TEST_F(LifeTable, CoursesComeBeforeSchoolAtAMonthsEnd)
{
    Prepare(1);
    GameState.AttendCourses = GameState.AttendSchool = True;
    Roll(1, True);
    const Journal expected{"lblHappy=495%", "lblEat=495%",   "lblHealth=495%",
                           "lblHappy=495%", "lblMoney=$935", "lblStatus=USER",
                           "box Доцент",    "lblMoney=$885", "lblEducation=30%"};
    EXPECT_EQ(player.journal, expected);
}

TEST_F(LifeTable, TheSurgeonsMessageStandsAsWritten)
{
    Prepare(2);
    Roll(10);
    EXPECT_EQ(player.messages,
              Journal{"Сообщение от хирурга Skoska.: Кто-то напал на Вас и сломал ребро!"});
}

TEST_F(LifeTable, ABirthNeedsAMarriageAndFewerThanThreeChildren)
{
    struct {
        int found, married, sons, daughters;
        bool born;
    } const cases[]{{-1, -1, 0, 0, true}, {-1, -1, 1, 1, true}, {-1, -1, 2, 1, false},
                    {-1, 0, 0, 0, false}, {0, 0, 0, 0, false},  {1, -1, 0, 0, false}};
    for (const auto& row : cases) {
        Prepare(1);
        GameState.WifeFound = row.found;
        GameState.Married = row.married;
        GameState.Sons = row.sons;
        GameState.Daughters = row.daughters;
        Roll(8);
        EXPECT_EQ(GameState.Sons + GameState.Daughters,
                  row.sons + row.daughters + (row.born ? 1 : 0));
    }
}

TEST_F(LifeTable, AMonthsEndGivesTheGamesMoodThenTakesTheAlimony)
{
    Prepare(1);
    GameState.SoftGames = 6;
    GameState.Alimony = 150;
    Roll(1, True);
    EXPECT_EQ(player.journal, (Journal{"lblHappy=495%", "lblEat=495%", "lblHealth=495%",
                                       "lblHappy=501%", "lblMoney=$860"}));
}

TEST_F(LifeTable, AMonthOfCoursesRaisesTheRankAndTheLastOneEndsThem)
{
    Prepare(1);
    GameState.AttendCourses = True;
    SetEducation(6);
    player.open.insert(Window::frmEducation);
    player.Forget();
    Roll(1, True);
    EXPECT_EQ(GameState.Education, 7);
    EXPECT_EQ(GameState.Money, 935);
    EXPECT_EQ(player.BoxTexts(), Journal{"Доцент: Поздравляем. Теперь Вы -- HACKER"});

    player.Forget();
    Roll(1, True);
    EXPECT_EQ(GameState.Education, 8);
    EXPECT_EQ(GameState.AttendCourses, False);
    EXPECT_EQ(player.BoxTexts(), Journal{"Доцент: Вы прошли компьютерные курсы!"});
    EXPECT_EQ(player.journal.back(), "disable frmEducation.Command2");

    GameState.AttendCourses = True;
    Roll(1, True);
    EXPECT_EQ(GameState.Money, 860) << "nothing is charged at the top rank";
}

TEST_F(LifeTable, AMonthOfSchoolEndsOnlyAtHundredExactly)
{
    Prepare(1);
    GameState.AttendCourses = False;
    GameState.AttendSchool = True;
    SetIntelligence(90);
    player.open.insert(Window::frmEducation);
    player.Forget();
    Roll(1, True);
    EXPECT_EQ(GameState.Intelligence, 100);
    EXPECT_EQ(player.BoxTexts(), Journal{": Поздравляем! Вы имеете два высших образования!!!"});
    EXPECT_EQ(player.boxes[0].icon, Icon::Information);
    EXPECT_EQ(GameState.AttendSchool, True) << "not cleared, unlike the courses";
    Roll(1, True);
    EXPECT_EQ(GameState.Money, 960);

    Prepare(1);
    GameState.AttendSchool = True;
    SetIntelligence(95);
    Roll(1, True);
    Roll(1, True);
    EXPECT_EQ(GameState.Intelligence, 105);
    EXPECT_EQ(GameState.Money, 960);
    EXPECT_TRUE(player.boxes.empty());
}

TEST_F(LifeTable, AnOverflowIsReportedAndEndsTheMonth)
{
    Prepare(1);
    GameState.SoftGames = 32767;
    Roll(1, True);
    ASSERT_EQ(player.boxes.size(), 1U);
    EXPECT_TRUE(player.boxes[0].text.starts_with("Возникла непредвиденная ошибка № 6 : "));
}

} // namespace
} // namespace torvenhall::test
