#include "support/journal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

#include "system/text.h"

namespace torvenhall::test
{

// clang-format off
static const std::map<std::string, Int16 Game::*> Fields{
    {"SoftOS", &Game::SoftOS}, {"SoftProgramming", &Game::SoftProgramming}, {"SoftAntivirus", &Game::SoftAntivirus},
    {"SoftGraphic", &Game::SoftGraphic}, {"SoftBrowser", &Game::SoftBrowser}, {"SoftGames", &Game::SoftGames},
    {"HardCPU", &Game::HardCPU}, {"HardRAM", &Game::HardRAM}, {"HardVideo", &Game::HardVideo},
    {"HardHDD", &Game::HardHDD}, {"HardCDROM", &Game::HardCDROM}, {"HardComm", &Game::HardComm},
    {"HardSound", &Game::HardSound}, {"HardScanner", &Game::HardScanner}, {"HardPrinter", &Game::HardPrinter},
    {"SoftSize", &Game::SoftSize}, {"GameSpeed", &Game::GameSpeed}, {"WinMoney", &Game::WinMoney},
    {"GameLevel", &Game::GameLevel}, {"WifeFound", &Game::WifeFound}, {"Married", &Game::Married},
    {"Sons", &Game::Sons}, {"Daughters", &Game::Daughters}, {"Alimony", &Game::Alimony},
    {"Education", &Game::Education}, {"Intelligence", &Game::Intelligence}, {"CurrWork", &Game::CurrWork},
    {"AttendCourses", &Game::AttendCourses}, {"AttendSchool", &Game::AttendSchool}, {"WorkPay", &Game::WorkPay},
    {"Happy", &Game::Happy}, {"Health", &Game::Health}, {"EatLevel", &Game::EatLevel}};
// clang-format on

void ExpectKept(const std::string& file, Texts found)
{
    const std::string path = TORVENHALL_TEST_DATA + file;
    if (std::getenv("TORVENHALL_KEEP") != nullptr) {
        std::ofstream kept(path);
        std::ranges::copy(found, std::ostream_iterator<std::string>(kept, "\n"));
        return;
    }
    found.emplace_back(); // what follows the last line's end
    const Texts kept = Split(ReadWholeFile(path), "\n");
    for (std::size_t i = 0; i < std::min(kept.size(), found.size()); ++i) {
        ASSERT_EQ(kept[i], found[i]) << file << ", line " << i + 1;
    }
    EXPECT_EQ(kept.size(), found.size()) << file << " differs in its end";
}

void ExpectEach(const std::string& file,
                const std::function<std::string(const std::string&)>& outcome)
{
    Texts found;
    std::ifstream kept(TORVENHALL_TEST_DATA + file);
    for (std::string line; std::getline(kept, line);) {
        const std::string given = line.substr(0, line.find(": "));
        found.push_back(Joined({given, outcome(given)}, ": "));
    }
    EXPECT_FALSE(found.empty());
    ExpectKept(file, found);
}

Texts Grouped(int first, int last, const std::function<std::string(int)>& outcome)
{
    std::vector<std::pair<std::string, std::string>> groups; // outcome, numbers
    std::string now = outcome(first);
    for (int begin = first, number = first; number <= last; ++number) {
        const std::string next = number < last ? outcome(number + 1) : now + " no more";
        if (next != now) {
            const std::string end = number > begin ? ".." + std::to_string(number) : "";
            auto group = std::ranges::find(groups, now, &decltype(groups)::value_type::first);
            group = group == groups.end() ? groups.insert(group, {now, ""}) : group;
            group->second = Joined({group->second, std::to_string(begin) + end});
            begin = number + 1;
            now = next;
        }
    }
    Texts lines;
    for (const auto& [result, numbers] : groups) {
        lines.push_back(Joined({numbers, result}, ": "));
    }
    return lines;
}

void Assign(const std::string& fields)
{
    std::istringstream words(fields);
    for (std::string name, value; std::getline(words >> std::ws, name, '=') && words >> value;) {
        if (name == "Money") {
            GameState.Money = std::stoi(value);
        } else {
            GameState.*Fields.at(name) = std::stoi(value);
        }
    }
}

Texts WithChanges(Texts lines, const Game& before)
{
    std::tuple<std::string, std::string, std::int64_t> statistics[]{
        {"lblMoney=$", "Money ", before.Money.value()},
        {"lblHappy=", "Happy ", before.Happy.value()},
        {"lblHealth=", "Health ", before.Health.value()},
        {"lblEat=", "EatLevel ", before.EatLevel.value()}};
    for (std::string& line : lines) {
        for (auto& [shown, name, was] : statistics) {
            if (line.starts_with(shown)) {
                const std::int64_t by = std::stoll(line.substr(shown.size())) - was;
                was += by;
                line = name + (by < 0 ? "" : "+") + std::to_string(by) +
                       (line.ends_with(" red") ? " red" : "");
            }
        }
    }
    return lines;
}

std::string ChangedFields(const Game& before)
{
    Texts changed;
    const auto compare = [&](const std::string& name, const std::string& was,
                             const std::string& is) {
        changed.push_back(was == is ? "" : name + "=" + is);
    };
    compare("Money", Decimal(before.Money), Decimal(GameState.Money));
    compare("GameDate", DateText(before.GameDate), DateText(GameState.GameDate));
    compare("GameTime", TimeText(before.GameTime), TimeText(GameState.GameTime));
    compare("PlayerName", before.PlayerName, GameState.PlayerName);
    compare("WorkTitle", before.WorkTitle, GameState.WorkTitle);
    for (const auto& [name, field] : Fields) {
        compare(name, Decimal(before.*field), Decimal(GameState.*field));
    }
    return Joined(changed);
}

std::string Conditions(const Asked& asked, const std::function<bool()>& attempt)
{
    Texts conditions;
    std::string least;
    for (const auto& [name, enough] : asked) {
        std::string all;
        for (const auto& [other, plenty] : asked) {
            all += " " + other + "=" + std::to_string(plenty);
        }
        for (const std::string& values : Grouped(-1, enough + 1, [&, field = name](int value) {
                 Assign(all + " " + field + "=" + std::to_string(value));
                 return attempt() ? "enough" : "";
             })) {
            if (values.ends_with("enough")) {
                least += " " + name + "=" + std::to_string(std::stoi(values));
                conditions.push_back(
                    std::stoi(values) < 0 ? "" : name + " " + values.substr(0, values.find(':')));
            }
        }
    }
    Assign(least);
    EXPECT_TRUE(attempt()) << least << " is not enough";
    return Joined(conditions);
}

} // namespace torvenhall::test
