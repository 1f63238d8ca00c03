#include "lives/options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <functional>
#include <map>
#include <thread>

namespace torvenhall::lives
{

namespace
{

constexpr std::array<std::string_view, 3> LevelNames{"hard", "normal", "easy"};

template <class Number>
Number ReadNumber(const std::string& option, const std::string& text, Number least, Number most)
{
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || stopped != end || number < least || number > most) {
        throw BadOption{option + " takes a number from " + std::to_string(least) + " to " +
                        std::to_string(most) + ", not \"" + text + "\""};
    }
    return number;
}

/// The parts between commas.
std::vector<std::string> ListOf(const std::string& text)
{
    std::vector<std::string> parts(1);
    for (const char character : text) {
        if (character == ',') {
            parts.emplace_back();
        } else {
            parts.back() += character;
        }
    }
    return parts;
}

std::vector<const Policy*> ReadPolicies(const std::string& text)
{
    if (text == "all") {
        return {Policies().begin(), Policies().end()};
    }
    std::vector<const Policy*> policies;
    for (const std::string& name : ListOf(text)) {
        policies.push_back(PolicyOf(name));
        if (policies.back() == nullptr) {
            throw BadOption{"there is no way of playing called \"" + name + "\""};
        }
    }
    return policies;
}

std::vector<int> ReadLevels(const std::string& text)
{
    if (text == "all") {
        return {0, 1, 2};
    }
    std::vector<int> levels;
    for (const std::string& name : ListOf(text)) {
        const auto* const level = std::ranges::find(LevelNames, name);
        if (level == LevelNames.end()) {
            throw BadOption{"there is no difficulty called \"" + name + "\""};
        }
        levels.push_back(static_cast<int>(level - LevelNames.begin()));
    }
    return levels;
}

} // namespace

Options ReadOptions(std::span<char* const> words)
{
    Options options;
    options.policies = ReadPolicies("manual");
    options.levels = ReadLevels("all");
    options.jobs = static_cast<int>(std::clamp(std::thread::hardware_concurrency(), 1U, 256U));
    const std::map<std::string, std::function<void()>> switches{
        {"--csv", [&] { options.csv = true; }},
        {"--help", [&] { options.help = true; }},
        {"--version", [&] { options.version = true; }},
    };
    using Value = const std::string&;
    const std::map<std::string, std::function<void(Value)>> settings{
        {"--policy", [&](Value text) { options.policies = ReadPolicies(text); }},
        {"--level", [&](Value text) { options.levels = ReadLevels(text); }},
        {"--lives", [&](Value text) { options.lives = ReadNumber("--lives", text, 1, 100000); }},
        {"--years", [&](Value text) { options.years = ReadNumber("--years", text, 1, 1000); }},
        {"--jobs", [&](Value text) { options.jobs = ReadNumber("--jobs", text, 1, 256); }},
        {"--seed",
         [&](Value text) { options.seed = ReadNumber("--seed", text, 0UL, ~std::uint64_t{0}); }},
        {"--html", [&](Value text) { options.html = text; }},
        {"--svg", [&](Value text) { options.svg = text; }},
    };
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string word = words[i];
        if (const auto found = switches.find(word); found != switches.end()) {
            found->second();
            continue;
        }
        const auto setting = settings.find(word);
        if (setting == settings.end()) {
            throw BadOption{"there is no option \"" + word + "\""};
        }
        if (++i == words.size()) {
            throw BadOption{word + " needs a value"};
        }
        setting->second(words[i]);
    }
    return options;
}

std::string Help()
{
    std::string text =
        "torvenhall-lives plays many lives of the game without a screen and tells what\n"
        "becomes of people.\n\n"
        "  --policy NAME,...   how they are played, or all (manual):\n";
    for (const Policy* const policy : Policies()) {
        std::string name{policy->name};
        name.resize(12, ' ');
        text += "                        " + name + std::string(policy->says) + "\n";
    }
    return text + "  --level NAME,...    hard, normal, easy, or all (all)\n"
                  "  --lives N           so many for each policy on each level (1000)\n"
                  "  --seed N            the same seed gives the same lives (1)\n"
                  "  --years N           the longest life (10)\n"
                  "  --jobs N            processes at a time (one for each core)\n"
                  "  --csv               a line for each life instead of the tables\n"
                  "  --html FILE         the tables and curves as one page, besides\n"
                  "  --svg FILE          the curves as one picture, besides\n"
                  "  --help, --version\n";
}

std::string_view LevelName(int level)
{
    return LevelNames[static_cast<std::size_t>(level)];
}

} // namespace torvenhall::lives
