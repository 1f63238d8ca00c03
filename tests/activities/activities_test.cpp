#include <limits>

#include "activities/education.h"
#include "activities/services.h"
#include "activities/virus.h"
#include "activities/work.h"
#include "support/life.h"

using namespace torvenhall;

using Activities = BegunLife;

TEST_F(Activities, EveryJobHasItsTitlePayAndRequirements)
{
    const Asked asked{{"Education", 8}, {"Intelligence", 100}, {"HardScanner", 6}, {"HardComm", 6}};
    for (int job = 1; job <= 12; ++job) {
        std::string refused, given;
        const auto apply = [&] {
            SetWork(0);
            const auto refusal = JobRefusal(job - 1);
            const std::string told = Outcome([&] { ApplyForJob(job - 1); });
            const bool isGiven = GameState.CurrWork == job;
            EXPECT_EQ(!refusal, isGiven);
            EXPECT_TRUE(isGiven || told == "i " + refusal->title + ": " + refusal->text);
            std::string& kept = isGiven ? given : refused;
            EXPECT_TRUE(kept.empty() || kept == told);
            kept = told;
            return isGiven;
        };
        const std::string conditions = Conditions(asked, apply);
        const std::string caption{Jobs[static_cast<std::size_t>(job)].caption};
        lines.push_back(Joined({caption, given, conditions, refused}, " | "));
    }
    Given("WorkPay=7 Money=100");
    for (const int unknown : {13, -1}) {
        EXPECT_FALSE(JobRefusal(unknown - 1)); // there is no such button
        Try("", [=] { ApplyForJob(unknown - 1); });
        Try("", [=] { SetWork(unknown); });
    }
    ExpectKept("jobs.txt", lines);
}

TEST_F(Activities, EveryServiceHasItsPriceAndItsSettersInOrder)
{
    for (const ServiceWindow* window : {&Entertainment, &Hospital, &FoodShop}) {
        const auto& [caption, picture, group, slogan, refusal, title, more, services] = *window;
        for (const std::string_view text : {caption, picture, group, slogan}) {
            lines.emplace_back(text);
        }
        for (std::size_t i = 0; i < services.size(); ++i) {
            const auto buyWith = [&](int money) {
                Assign("Happy=0 Health=0 EatLevel=0 Money=" + std::to_string(money));
                const auto refusal = ServiceRefusal(*window, services[i]);
                const bool enough = !refusal;
                const std::string outcome = Outcome([&] { BuyService(*window, i); });
                EXPECT_EQ(outcome.starts_with("i "), !enough);
                EXPECT_TRUE(enough || outcome == "i " + refusal->title + ": " + refusal->text);
                return i > 0 && !enough ? "refused" : outcome;
            };
            EXPECT_EQ(buyWith(std::numeric_limits<int>::min()), buyWith(-1));
            lines.push_back(std::string(services[i].caption) + " | " +
                            Joined(Grouped(-1, 300, buyWith), " | "));
        }
    }
    for (const char* given : {"Health=32760 Money=1000", "Health=50 Happy=-30 Money=1000"}) {
        Try(given, [] { BuyService(Hospital, 4); }); // too healthy; too sad
    }
    ExpectKept("services.txt", lines);
}

TEST_F(Activities, TheSchoolsButtonsFollowFlagsRankAndIntelligence)
{
    const auto shown = [](int rank) {
        GameState.Education = rank;
        const auto [school, courses, schoolDone, coursesDone] = LoadEducation();
        return std::string(school) + (schoolDone ? " (off) | " : " | ") + std::string(courses) +
               (coursesDone ? " (off)" : "");
    };
    for (const char* intelligence : {"Intelligence=99", "Intelligence=100", "Intelligence=101"}) {
        Assign(intelligence);
        lines.push_back(intelligence + (": rank " + Joined(Grouped(0, 10, shown), "; ")));
    }
    player.open = {"frmEducation"};
    for (void (*const toggle)() : {ToggleSchool, ToggleCourses, ToggleSchool, ToggleCourses}) {
        const std::string changed = Outcome(toggle);
        lines.push_back(changed + ": " + shown(1));
    }
    ExpectKept("education.txt", lines);
}

TEST_F(Activities, AVirusEatsATwentiethRoundedHalfToEvenUnlessItIsKilled)
{
    for (const char* money : {"Money=10", "Money=30", "Money=0", "Money=-30", "Money=-10"}) {
        Try(money, ReleaseVirus);
    }
    for (const char* antivirus : {"SoftAntivirus=-1", "SoftAntivirus=0", "SoftAntivirus=1"}) {
        Given(antivirus + std::string(" Money=100"));
        Walk(antivirus, 0, 10, [&](int luck) {
            dice.values = {0.25F, DrawOf(luck, 10)};
            FightVirus();
        });
    }
    EXPECT_TRUE(dice.calls.ends_with(" draw seed 2.5 draw")) << dice.calls;
    Meanwhile([] { SetMoney(200); }); // the charge follows the money of the moment
    Try("Money=100", ReleaseVirus);
    ExpectKept("virus.txt", lines);
}
