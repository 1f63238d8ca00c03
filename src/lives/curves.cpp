#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <functional>
#include <iomanip>
#include <sstream>

#include "lives/page.h"

namespace torvenhall::lives
{

namespace
{

constexpr double Width = 320, Height = 190;          ///< of a chart's inside, in pixels
constexpr double Left = 56, Top = 54;                ///< of the first chart's inside
constexpr double ColumnWidth = 410, RowHeight = 250; ///< from chart to chart
constexpr double DaysOfMonth = 365.0 / 12;

/// Colours that the colour-blind tell apart, too, on white.
constexpr std::array<std::string_view, 8> Colours{"#0072b2", "#d55e00", "#009e73", "#cc79a7",
                                                  "#7a5195", "#8a6d00", "#56b4e9", "#444444"};

/// What a chart shows of the months, bounded by its highest value.
struct Chart {
    std::string_view title;
    double most;
    bool percent;
    std::function<std::optional<double>(const Figures&, int month)> value;
};

void Text(std::ostream& svg, double x, double y, std::string_view words, std::string_view more = {})
{
    svg << "<text x=\"" << x << "\" y=\"" << y << "\" " << more << '>' << words << "</text>\n";
}

/// The last month in which anything still changes, a round number of years.
int MonthsShown(const Options& options, std::span<const Figures> all)
{
    int last = 12;
    for (const Figures& figures : all) {
        for (const Story& story : figures.stories) {
            if (story.end != End::Alive) {
                last = std::max(last, static_cast<int>(story.days / DaysOfMonth) + 1);
            }
        }
    }
    const int most = std::min(MonthsRemembered, 12 * options.years);
    return std::min(most, (last + 11) / 12 * 12);
}

/// A step that makes about five marks.
double StepOf(double most)
{
    const double rough = most / 5;
    const double power = std::pow(10, std::floor(std::log10(rough)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (rough <= factor * power) {
            return factor * power;
        }
    }
    return 10 * power;
}

/// The grid of a chart and its marks.
void Frame(std::ostream& svg, const Chart& chart, int months, double x, double y)
{
    const double step = StepOf(chart.most);
    for (double mark = 0; mark <= chart.most * 1.001; mark += step) {
        const double at = y + Height * (1 - mark / chart.most);
        svg << "<path class=\"grid\" d=\"M" << x << ' ' << at << 'h' << Width << "\"/>\n";
        char label[32];
        std::snprintf(label, sizeof label, chart.percent ? "%.0f %%" : "$%.0f",
                      chart.percent ? 100 * mark : mark);
        Text(svg, x - 6, at + 4, label, "text-anchor=\"end\"");
    }
    const int every = std::max(1, months / 12);
    for (int month = 0; month <= months; month += every) {
        Text(svg, x + Width * month / months, y + Height + 16, std::to_string(month),
             "text-anchor=\"middle\"");
    }
}

/// Ends where there is nothing to tell any more.
void Curve(std::ostream& svg, const Chart& chart, const Figures& figures, int months, double x,
           double y, std::string_view colour)
{
    svg << "<path class=\"curve\" stroke=\"" << colour << "\" d=\"";
    for (int month = 0; month <= months; ++month) {
        const std::optional<double> value = chart.value(figures, month);
        if (!value) {
            break;
        }
        const double part = std::clamp(*value / chart.most, 0.0, 1.0);
        svg << (month == 0 ? 'M' : 'L') << x + Width * month / months << ' '
            << y + Height * (1 - part);
    }
    svg << "\"/>\n";
}

int Day(int month)
{
    return static_cast<int>(month * DaysOfMonth);
}

std::vector<Chart> Charts(std::span<const Figures> all, int months)
{
    double mostMoney = 1000;
    const auto money = [](const Figures& figures, int month) -> std::optional<double> {
        if (month == 0) {
            return 15; // everybody begins so
        }
        // A few who are left over tell nothing.
        constexpr int enough = 20;
        if (month > MonthsRemembered ||
            std::ranges::count_if(figures.stories, [=](const Story& story) {
                return story.months >= month;
            }) < enough) {
            return std::nullopt;
        }
        return figures.MoneyAfter(month - 1, 0.5);
    };
    for (const Figures& figures : all) {
        for (int month = 0; month <= months; ++month) {
            mostMoney = std::max(mostMoney, money(figures, month).value_or(0));
        }
    }
    return {{"Alive, or has won", 1, true,
             [](const Figures& figures, int month) { return figures.AliveAfter(Day(month)); }},
            {"Has won", 1, true,
             [](const Figures& figures, int month) { return figures.WonBy(Day(month)); }},
            {"Money of those who play, in the middle", mostMoney, false, money}};
}

/// The charts of one level, one below the other.
void Column(std::ostream& svg, const Options& options, std::span<const Figures> all,
            std::span<const Chart> charts, int months, std::size_t level)
{
    const double x = Left + ColumnWidth * static_cast<double>(level);
    Text(svg, x, 22, LevelName(options.levels[level]), "font-size=\"16\" font-weight=\"bold\"");
    double y = Top;
    for (const Chart& chart : charts) {
        Text(svg, x, y - 8, chart.title);
        Frame(svg, chart, months, x, y);
        for (std::size_t policy = 0; policy < options.policies.size(); ++policy) {
            Curve(svg, chart, all[policy * options.levels.size() + level], months, x, y,
                  Colours[policy % Colours.size()]);
        }
        y += RowHeight;
    }
}

void Legend(std::ostream& svg, const Options& options, double y)
{
    constexpr double wide = 110;
    double x = Left;
    for (std::size_t policy = 0; policy < options.policies.size(); ++policy) {
        svg << "<path class=\"curve\" stroke=\"" << Colours[policy % Colours.size()] << "\" d=\"M"
            << x << ' ' << y - 4 << "h18\"/>\n";
        Text(svg, x + 24, y, options.policies[policy]->name);
        x += wide;
    }
    Text(svg, x, y, "months across", "fill=\"#666\"");
}

} // namespace

std::string CurvesOf(const Options& options, std::span<const Figures> all)
{
    const int months = MonthsShown(options, all);
    const std::vector<Chart> charts = Charts(all, months);
    const double legend = 110.0 * static_cast<double>(options.policies.size() + 1) + Left;
    const double width =
        std::max(legend, ColumnWidth * static_cast<double>(options.levels.size()) + 12);
    const double height = Top + RowHeight * static_cast<double>(charts.size()) + 34;
    std::ostringstream svg;
    svg << std::fixed << std::setprecision(1)
        << "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " << width << ' ' << height
        << "\" font-family=\"sans-serif\" font-size=\"12\">\n"
        << "<style>.grid{stroke:#d8d8d8}.curve{fill:none;stroke-width:2}</style>\n"
        << "<rect width=\"100%\" height=\"100%\" fill=\"#fff\"/>\n";
    for (std::size_t level = 0; level < options.levels.size(); ++level) {
        Column(svg, options, all, charts, months, level);
    }
    Legend(svg, options, height - 12);
    svg << "</svg>\n";
    return svg.str();
}

} // namespace torvenhall::lives
