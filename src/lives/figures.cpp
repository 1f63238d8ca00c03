#include "lives/figures.h"

#include <algorithm>

namespace torvenhall::lives
{

namespace
{

/// The value that a part of all does not exceed.
std::optional<int> Quantile(std::vector<int> values, double part)
{
    if (values.empty()) {
        return std::nullopt;
    }
    const auto at = static_cast<std::ptrdiff_t>(part * static_cast<double>(values.size() - 1));
    std::ranges::nth_element(values, values.begin() + at);
    return values[static_cast<std::size_t>(at)];
}

template <class Test>
double Share(const std::vector<Story>& stories, Test&& test)
{
    return static_cast<double>(std::ranges::count_if(stories, test)) /
           static_cast<double>(stories.size());
}

/// What a function tells of the stories that pass a test.
template <class Test, class Value>
std::vector<int> Values(const std::vector<Story>& stories, Test&& test, Value&& value)
{
    std::vector<int> values;
    for (const Story& story : stories) {
        if (test(story)) {
            values.push_back(value(story));
        }
    }
    return values;
}

int Age(const Story& story)
{
    return story.days;
}

bool IsDead(const Story& story)
{
    return story.end != End::Alive && story.end != End::Won;
}

} // namespace

double Figures::ShareOf(End end) const
{
    return Share(stories, [=](const Story& story) { return story.end == end; });
}

double Figures::AliveAfter(int days) const
{
    return Share(stories, [=](const Story& story) { return !IsDead(story) || story.days > days; });
}

double Figures::WonBy(int days) const
{
    return Share(stories,
                 [=](const Story& story) { return story.end == End::Won && story.days <= days; });
}

std::optional<int> Figures::AgeAt(End end, double part) const
{
    return Quantile(Values(
                        stories, [=](const Story& story) { return story.end == end; }, Age),
                    part);
}

std::optional<int> Figures::AgeAtDeath(double part) const
{
    return Quantile(Values(stories, IsDead, Age), part);
}

double Figures::ShareOfJob(int job) const
{
    const auto at = static_cast<std::size_t>(job);
    return Share(stories, [=](const Story& story) { return story.dayOfJob[at] != Never; });
}

std::optional<int> Figures::DayOfJob(int job) const
{
    const auto at = static_cast<std::size_t>(job);
    return Quantile(Values(
                        stories, [=](const Story& story) { return story.dayOfJob[at] != Never; },
                        [=](const Story& story) { return story.dayOfJob[at]; }),
                    0.5);
}

int Figures::Loads() const
{
    return Quantile(Values(
                        stories, [](const Story&) { return true; },
                        [](const Story& story) { return story.loads; }),
                    0.5)
        .value_or(0);
}

std::optional<int> Figures::MoneyAfter(int months, double part) const
{
    const auto at = static_cast<std::size_t>(months);
    return Quantile(Values(
                        stories, [=](const Story& story) { return story.months > months; },
                        [=](const Story& story) { return story.moneyByMonth[at]; }),
                    part);
}

std::vector<Figures> FiguresOf(const Options& options, std::span<const Story> stories)
{
    std::vector<Figures> all;
    for (const Policy* const policy : options.policies) {
        for (const int level : options.levels) {
            const auto of = stories.subspan(all.size() * static_cast<std::size_t>(options.lives),
                                            static_cast<std::size_t>(options.lives));
            all.push_back({std::string(policy->name), level, {of.begin(), of.end()}});
        }
    }
    return all;
}

} // namespace torvenhall::lives
