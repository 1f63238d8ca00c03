#include "lives/tables.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <sstream>

namespace torvenhall::lives
{

namespace
{

using Row = std::vector<std::string>;

constexpr std::array<std::string_view, Ends> EndNames{"alive", "won", "hunger", "illness", "leap"};

std::string DayOrNone(const std::optional<int>& day)
{
    return day ? std::to_string(*day) : "-";
}

std::string RunName(const Figures& figures)
{
    return figures.policy + ", " + std::string(LevelName(figures.level));
}

/// A row for each run under a row that names the columns.
template <class Cells>
Table TableOf(const std::string& title, Row columns, std::span<const Figures> all, Cells&& cells)
{
    columns.insert(columns.begin(), "policy, level");
    Table table{title, {std::move(columns)}};
    for (const Figures& figures : all) {
        Row row = cells(figures);
        row.insert(row.begin(), RunName(figures));
        table.rows.push_back(std::move(row));
    }
    return table;
}

Table Ending(std::span<const Figures> all)
{
    return TableOf(
        "What becomes of them, of 100; and on which day, in the middle (of 10, of 90)",
        {"won", "alive", "hunger", "illness", "leap", "win on day", "death on day", "loads"}, all,
        [](const Figures& figures) {
            Row row;
            for (const End end : {End::Won, End::Alive, End::Hunger, End::Illness, End::Leap}) {
                row.push_back(Percent(figures.ShareOf(end)));
            }
            const auto spread = [](const auto& age) {
                return !age(0.5) ? "-"
                                 : DayOrNone(age(0.5)) + " (" + DayOrNone(age(0.1)) + ", " +
                                       DayOrNone(age(0.9)) + ")";
            };
            row.push_back(spread([&](double part) { return figures.AgeAt(End::Won, part); }));
            row.push_back(spread([&](double part) { return figures.AgeAtDeath(part); }));
            row.push_back(std::to_string(figures.Loads()));
            return row;
        });
}

Table Surviving(std::span<const Figures> all)
{
    static constexpr std::array days{7, 30, 90, 180, 365, 730, 1825};
    Row columns;
    for (const int day : days) {
        columns.push_back(std::to_string(day));
    }
    return TableOf("Alive or winners after so many days, of 100", columns, all,
                   [](const Figures& figures) {
                       Row row;
                       for (const int day : days) {
                           row.push_back(Percent(figures.AliveAfter(day)));
                       }
                       return row;
                   });
}

Table Working(std::span<const Figures> all)
{
    Row columns;
    for (int job = 1; job <= TopJob; ++job) {
        columns.push_back(std::to_string(job));
    }
    return TableOf("Day of each job or a better one, in the middle, and who ever had it, of 100",
                   columns, all, [](const Figures& figures) {
                       Row row;
                       for (int job = 1; job <= TopJob; ++job) {
                           const auto day = figures.DayOfJob(job);
                           char share[16];
                           std::snprintf(share, sizeof share, " (%.0f)",
                                         100 * figures.ShareOfJob(job));
                           row.push_back(day ? std::to_string(*day) + share : "-");
                       }
                       return row;
                   });
}

Table Earning(std::span<const Figures> all)
{
    static constexpr std::array months{1, 2, 3, 4, 6, 9, 12, 18, 24, 60};
    Row columns;
    for (const int month : months) {
        columns.push_back(std::to_string(month));
    }
    return TableOf("Dollars of those who still play after so many months, in the middle", columns,
                   all, [](const Figures& figures) {
                       Row row;
                       for (const int month : months) {
                           row.push_back(DayOrNone(figures.MoneyAfter(month - 1, 0.5)));
                       }
                       return row;
                   });
}

/// The rest of a life's line; what never came to be is left empty.
void WriteLine(std::ostream& csv, const Story& story, int months)
{
    csv << ',' << EndNames[static_cast<std::size_t>(story.end)] << ',' << story.days << ','
        << story.loads << ',' << story.money;
    for (const int day : std::span(story.dayOfJob).subspan(1)) {
        csv << ',';
        if (day != Never) {
            csv << day;
        }
    }
    for (int month = 0; month < months; ++month) {
        csv << ',';
        if (month < story.months) {
            csv << story.moneyByMonth[static_cast<std::size_t>(month)];
        }
    }
    csv << '\n';
}

} // namespace

std::string Percent(double share)
{
    constexpr double rare = 0.0005;
    char text[16];
    std::snprintf(text, sizeof text, share > 0 && share < rare ? "%.3f" : "%.1f", 100 * share);
    return text;
}

std::vector<Table> TablesOf(std::span<const Figures> all)
{
    return {Ending(all), Surviving(all), Working(all), Earning(all)};
}

std::string AsText(const Table& table)
{
    std::vector<std::size_t> widths(table.rows.front().size());
    for (const Row& row : table.rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], row[i].size());
        }
    }
    std::string text = table.title + "\n";
    for (const Row& row : table.rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string room(widths[i] - row[i].size(), ' ');
            text += "  ";
            text += i == 0 ? row[i] + room : room + row[i];
        }
        text += '\n';
    }
    return text;
}

std::string AsCsv(std::span<const Figures> all)
{
    int months = 0;
    for (const Figures& figures : all) {
        for (const Story& story : figures.stories) {
            months = std::max(months, story.months);
        }
    }
    std::ostringstream csv;
    csv << "policy,level,life,end,days,loads,money";
    for (int job = 1; job <= TopJob; ++job) {
        csv << ",day_of_job_" << job;
    }
    for (int month = 1; month <= months; ++month) {
        csv << ",money_after_month_" << month;
    }
    csv << '\n';
    for (const Figures& figures : all) {
        for (std::size_t life = 0; life < figures.stories.size(); ++life) {
            csv << figures.policy << ',' << LevelName(figures.level) << ',' << life + 1;
            WriteLine(csv, figures.stories[life], months);
        }
    }
    return csv.str();
}

} // namespace torvenhall::lives
