#include <algorithm>
#include <array>
#include <cmath>
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
constexpr double StartingMoney = 15;

/// Colours that the colour-blind tell apart, too, on white.
constexpr std::array<std::string_view, 8> Colours{"#0072b2", "#d55e00", "#009e73", "#cc79a7",
                                                  "#7a5195", "#8a6d00", "#56b4e9", "#444444"};

/// What stands beside a line of the grid.
struct Mark {
    double height; ///< 0 below, 1 above
    std::string label;
};

/// What a chart shows of the months, as a height or nothing.
struct Chart {
    std::string_view title;
    std::vector<Mark> marks;
    double step; ///< months from point to point
    std::function<std::optional<double>(const Figures&, double month)> height;
};

void Text(std::ostream& svg, double x, double y, std::string_view words, std::string_view more = {})
{
    svg << "<text x=\"" << x << "\" y=\"" << y << "\" " << more << '>' << words << "</text>\n";
}

/// The month by which nearly all who ended had done so, and one or two more.
int MonthsShown(const Options& options, std::span<const Figures> all)
{
    std::vector<int> days{0};
    for (const Figures& figures : all) {
        for (const Story& story : figures.stories) {
            if (story.end != End::Alive) {
                days.push_back(story.days);
            }
        }
    }
    const auto nearlyLast =
        days.begin() + static_cast<std::ptrdiff_t>(0.995 * static_cast<double>(days.size() - 1));
    std::ranges::nth_element(days, nearlyLast);
    const int most = std::min(MonthsRemembered, 12 * options.years);
    return std::clamp(static_cast<int>(*nearlyLast / DaysOfMonth) + 2, 6, most);
}

/// The grid of a chart and its marks.
void Frame(std::ostream& svg, const Chart& chart, int months, double x, double y)
{
    for (const auto& [height, label] : chart.marks) {
        const double at = y + Height * (1 - height);
        svg << "<path class=\"grid\" d=\"M" << x << ' ' << at << 'h' << Width << "\"/>\n";
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
    for (double month = 0; month <= months; month += chart.step) {
        const std::optional<double> height = chart.height(figures, month);
        if (!height) {
            break;
        }
        svg << (month == 0 ? 'M' : 'L') << x + Width * month / months << ' '
            << y + Height * (1 - *height);
    }
    svg << "\"/>\n";
}

int Day(double month)
{
    return static_cast<int>(month * DaysOfMonth);
}

/// Ten dollars and ten thousand both show: the scale is a logarithm's.
double HeightOfMoney(double dollars)
{
    constexpr double least = 10, most = 50000;
    return std::clamp(std::log1p(dollars / least) / std::log1p(most / least), 0.0, 1.0);
}

/// A few who are left over tell nothing.
std::optional<double> Money(const Figures& figures, double month)
{
    constexpr int enough = 20;
    const auto months = static_cast<int>(month);
    const auto playing = std::ranges::count_if(
        figures.stories, [=](const Story& story) { return story.months >= months; });
    if (months == 0 || playing < enough) {
        return months == 0 ? std::optional(HeightOfMoney(StartingMoney)) : std::nullopt;
    }
    return HeightOfMoney(std::max(0, figures.MoneyAfter(months - 1, 0.5).value_or(0)));
}

std::vector<Chart> Charts()
{
    const std::vector<Mark> percents{
        {0, "0 %"}, {0.25, "25 %"}, {0.5, "50 %"}, {0.75, "75 %"}, {1, "100 %"}};
    const std::vector<Mark> dollars{{0, "$0"},
                                    {HeightOfMoney(10), "$10"},
                                    {HeightOfMoney(100), "$100"},
                                    {HeightOfMoney(1000), "$1000"},
                                    {HeightOfMoney(10000), "$10000"}};
    return {{"Alive, or has won", percents, 0.125,
             [](const Figures& figures, double month) { return figures.AliveAfter(Day(month)); }},
            {"Has won", percents, 0.125,
             [](const Figures& figures, double month) { return figures.WonBy(Day(month)); }},
            {"Money of those who play, in the middle", dollars, 1, Money}};
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
    const std::vector<Chart> charts = Charts();
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
