#include <map>

#include "activities/work.h"
#include "core/basGame.h"
#include "events/basEvents.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

class LifeTable : public Life
{
protected:
    void Prepare(int level = 1)
    {
        Begin(level);
        GameState.AttendCourses = GameState.AttendSchool = False;
        Set(500, 500, 500, 1010);
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

/// The changes from 500 % everywhere and 1010 dollars, in the order of the
/// setters, by draw and level, and what comes before them.
struct Event {
    Texts first;
    Changes changes[3];
};
// clang-format off
const Event Wear{{}, {{{lblHappy, -5}, {lblEat, -10}, {lblHealth, -5}},
                      {{lblHappy, -5}, {lblEat, -5}, {lblHealth, -5}},
                      {{lblHappy, -1}, {lblEat, -5}, {lblHealth, -1}}}};
const std::map<int, Event> RareEvents{
    {4, {{}, {{{lblHealth, -30}, {lblEat, -60}},
              {{lblHealth, -15}, {lblEat, -20}},
              {{lblHealth, -5}, {lblEat, -10}}}}},
    {6, {{"message"}, {{{lblMoney, -252}, {lblHappy, -50}, {lblHealth, -30}, {lblEat, -40}},
                       {{lblMoney, -101}, {lblHappy, -20}, {lblHealth, -15}, {lblEat, -20}},
                       {{lblMoney, -20}, {lblHappy, -10}, {lblHealth, -5}, {lblEat, -10}}}}},
    {8, {{}, {}}},
    {10, {{"message"}, {{{lblHappy, -60}, {lblHealth, -40}, {lblEat, -5}},
                        {{lblHappy, -45}, {lblHealth, -30}, {lblEat, +2}},
                        {{lblHappy, -25}, {lblHealth, -15}, {lblEat, +10}}}}},
    {24, {{"box Жениться или не жениться... Поздно!!!", "lblFamily=PRST:0:0"}, {}}},
};
// clang-format on

TEST_F(LifeTable, EveryDrawOnEveryLevelHasItsEffectsInOrder)
{
    for (int level = 0; level <= 2; ++level) {
        for (int draw = 0; draw <= 25; ++draw) {
            SCOPED_TRACE("level " + std::to_string(level) + ", draw " + std::to_string(draw));
            Prepare(level);
            const auto rare = RareEvents.find(draw);
            const Event& event = rare == RareEvents.end() ? Wear : rare->second;
            Texts expected = event.first;
            const Texts labels = ShownBy(event.changes[level]);
            expected.insert(expected.end(), labels.begin(), labels.end());
            Roll(draw);
            EXPECT_EQ(player.journal, expected);
            if (draw == 10) {
                EXPECT_EQ(
                    player.messages,
                    Texts{"Сообщение от хирурга Skoska.: Кто-то напал на Вас и сломал ребро!"});
            }
        }
    }
}

TEST_F(LifeTable, DismissalSparesTheTopJobAndTheUnemployedButNotTheirHealth)
{
    for (int job = 0; job <= 12; ++job) {
        Prepare();
        SetWork(job);
        Roll(4);
        const bool dismissed = job > 0 && job < 12;
        EXPECT_EQ(GameState.CurrWork, dismissed ? 0 : job);
        EXPECT_EQ(player.messages,
                  dismissed ? Texts{"Сообщение от Вашего босса: Уважаемый Иван! Вы уволены!!!"}
                            : Texts{});
        EXPECT_EQ(GameState.Health, 485);
    }
}

TEST_F(LifeTable, BurglaryRoundsItsMessageAndItsChargeSeparatelyAndKeepsItsLevel)
{
    struct {
        int level, money, left;
        const char* named;
    } const cases[]{
        {0, 10, 8, "2"}, {0, 6, 4, "2"}, {1, 5, 4, "0"}, {2, 75, 74, "2"}, {2, -10, -10, "0"}};
    for (const auto& row : cases) {
        Prepare(row.level);
        SetMoney(row.money);
        player.duringWait.emplace_back([&] {
            Int16 another = (row.level + 1) % 3;
            SetGameLevel(another);
        });
        Roll(6);
        EXPECT_EQ(player.messages.at(0),
                  std::string("Сообщение от Майора Милиции Dutaig.: Мне очень жаль, но к вам "
                              "пробрались грабители и стащили ") +
                      row.named + " долларов.");
        EXPECT_EQ(GameState.Money, row.left);
        const int moods[]{450, 480, 490};
        EXPECT_EQ(GameState.Happy, moods[row.level]);
    }
}

TEST_F(LifeTable, ADivorcedPersonNeverMarriesAgain)
{
    Prepare();
    GameState.WifeFound = True;
    Roll(24);
    GameState.Married = 1; // neither True nor False, from an edited file
    Roll(24);
    EXPECT_TRUE(player.journal.empty());
}

TEST_F(LifeTable, ABirthNeedsAMarriageAndFewerThanThreeChildren)
{
    struct {
        int found, married, sons, daughters, born;
    } const cases[]{{-1, -1, 0, 0, 1}, {-1, -1, 1, 1, 1}, {-1, -1, 2, 1, 0},
                    {-1, 0, 0, 0, 0},  {0, 0, 0, 0, 0},   {1, -1, 0, 0, 0}};
    for (const auto& row : cases) {
        Prepare();
        GameState.WifeFound = row.found;
        GameState.Married = row.married;
        GameState.Sons = row.sons;
        GameState.Daughters = row.daughters;
        Roll(8);
        EXPECT_EQ(GameState.Sons + GameState.Daughters, row.sons + row.daughters + row.born);
    }
}

TEST_F(LifeTable, AMonthsEndGivesTheGamesMoodThenTakesAlimonyCoursesAndSchool)
{
    Prepare();
    GameState.SoftGames = 6;
    GameState.Alimony = 150;
    GameState.AttendCourses = GameState.AttendSchool = True;
    Roll(1, True);
    EXPECT_EQ(player.journal,
              (Texts{"lblHappy=495%", "lblEat=495%", "lblHealth=495%", "lblHappy=501%",
                     "lblMoney=$860", "lblMoney=$785", "lblStatus=USER", "box Доцент",
                     "lblMoney=$735", "lblEducation=30%"}));

    Prepare();
    GameState.AttendCourses = GameState.AttendSchool = 1; // neither True nor False
    Roll(1, True);
    EXPECT_EQ(GameState.Money, 1010);

    GameState.SoftGames = 32767;
    GameState.AttendSchool = True;
    Roll(1, True);
    EXPECT_EQ(ErrorTold(), 6);
    EXPECT_EQ(GameState.Money, 1010) << "an overflow ends the month";
}

TEST_F(LifeTable, AMonthOfCoursesRaisesTheRankAndTheLastOneEndsThem)
{
    Prepare();
    GameState.AttendCourses = True;
    SetEducation(6);
    player.open.insert(Window::frmEducation);
    Roll(1, True);
    EXPECT_EQ(GameState.Education, 7);
    EXPECT_EQ(GameState.Money, 935);
    EXPECT_EQ(Told(), Texts{"i Доцент: Поздравляем. Теперь Вы -- HACKER"});

    Roll(1, True);
    EXPECT_EQ(GameState.Education, 8);
    EXPECT_EQ(GameState.AttendCourses, False);
    EXPECT_EQ(Told(), Texts{"i Доцент: Вы прошли компьютерные курсы!"});
    EXPECT_EQ(player.journal.back(), "disable frmEducation.Command2");

    GameState.AttendCourses = True;
    Roll(1, True);
    EXPECT_EQ(GameState.Money, 860) << "nothing is charged at the top rank";
}

TEST_F(LifeTable, AMonthOfSchoolEndsOnlyAtHundredExactly)
{
    for (const auto& [before, after] : {std::pair{90, 100}, {95, 105}}) {
        Prepare();
        GameState.AttendSchool = True;
        SetIntelligence(before);
        player.open.insert(Window::frmEducation);
        Roll(1, True);
        EXPECT_EQ(GameState.Intelligence, after);
        EXPECT_EQ(Told(), after == 100
                              ? Texts{"i : Поздравляем! Вы имеете два высших образования!!!"}
                              : Texts{});
        Roll(1, True);
        EXPECT_EQ(GameState.Money, 960) << "nothing is charged any more";
        EXPECT_EQ(GameState.AttendSchool, True) << "not cleared, unlike the courses";
    }
}

} // namespace
} // namespace torvenhall::test
