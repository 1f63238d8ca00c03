#include "events/basEvents.h"

#include "events/family.h"
#include "events/message.h"
#include "support/life.h"

using namespace torvenhall;

class Events : public BegunLife
{
protected:
    Events() { Given("Happy=500 Health=500 EatLevel=500 Money=1010 WorkPay=7"); }

    /// A day whose event is drawn; milk is spilt over a part, and the life
    /// table brings ordinary wear.
    void Day(int draw, int part = 3)
    {
        dice.values = {DrawOf(draw, 50)};
        if (draw == 35 && GameState.Married == True && GameState.Sons + GameState.Daughters > 0) {
            dice.values.push_back(DrawOf(part, 8));
        }
        dice.otherwise = DrawOf(9, 25);
        DailyEvents();
    }
    /// A draw from the life table.
    void LifeTable(int draw, Int16 monthEnd = False)
    {
        dice.values = {0.5F, 0.25F, DrawOf(draw, 25)};
        dice.otherwise = 0.5F;
        LifeEvents(monthEnd);
    }
};

TEST_F(Events, EveryDrawHasItsMessageAndItsEffectsInOrder)
{
    for (const char* family : {"Married=-1", "Married=0", "Married=1"}) {
        Given(family + std::string(" Sons=1 SoftOS=1 Money=1000"));
        Walk(family, 0, 50, [this](int draw) { Day(draw); });
    }
    for (const char* level : {"GameLevel=0", "GameLevel=1", "GameLevel=2"}) {
        Given(level + std::string(" CurrWork=1 WifeFound=0 Married=0 Sons=0 Money=1010"));
        Walk(level, 0, 25, [this](int draw) { LifeTable(draw); });
    }
    ExpectKept("draws.txt", lines);
}

TEST_F(Events, EachCaseHasItsEffectsInOrder)
{
    Given("SoftGames=6");
    player.open = {"frmHard", "frmEducation"};
    TryEach("events.txt", {{"day", [this](int draw) { Day(draw); }},
                           {"milk", [this](int part) { Day(35, part); }},
                           {"life", [this](int draw) { LifeTable(draw); }},
                           {"month", [this](int monthEnd) { LifeTable(1, monthEnd); }},
                           {"taxes", [](int) { PayTaxes(); }},
                           {"burglary",
                            [this](int level) { // keeps the level that it began with
                                Meanwhile([=] { GameState.GameLevel = level; });
                                LifeTable(6);
                            }},
                           {"child",
                            [this](int percent) {
                                dice.values = {0.5F, DrawOf(percent, 100)};
                                const int sons = GameState.Sons.value();
                                Meanwhile([=] { EXPECT_EQ(GameState.Sons, sons); });
                                ChildBirth();
                            }},
                           {"wedding",
                            [this](int) {
                                Meanwhile([] { EXPECT_EQ(GameState.Married, False); });
                                Marry();
                            }},
                           {"alimony", [](int) { AlimonyFor(); }},
                           {"family", [](int) { ShowFamily(); }}});
}

TEST_F(Events, AMessageIsTypedAtTenCharactersASecondHeldForTwoAndCleared)
{
    PayTaxes();
    EXPECT_NE(LabelShown(lblMessage), "") << "the taxes' message stands";
    player.atEachWait = [&] { lines.push_back(LabelShown(lblMessage)); };
    ShowMessage("Ёж");
    EXPECT_NEAR(player.seconds, 3 * 0.1 + 2, 0.001);
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    EXPECT_EQ(lines, (Texts{"", "Ё", "Ёж"}));
    EXPECT_EQ(LabelShown(lblMessage), "");
}

TEST_F(Events, EachReseedsTheDiceBeforeItDraws)
{
    dice.calls.clear();
    dice.values = {DrawOf(1, 50), 0.5F, 0.25F, DrawOf(1, 25), 0.5F, 0.5F};
    DailyEvents();
    ChildBirth();
    EXPECT_EQ(dice.calls, " seed draw draw draw seed 0.125 draw draw seed 1 draw");
}
