#include "lives/page.h"

#include <sstream>

#include "lives/tables.h"

namespace torvenhall::lives
{

namespace
{

void Write(std::ostream& html, const Table& table)
{
    html << "<h2>" << table.title << "</h2>\n<table>\n";
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        html << "<tr>";
        for (std::size_t i = 0; i < table.rows[row].size(); ++i) {
            const std::string_view tag = row == 0 || i == 0 ? "th" : "td";
            html << '<' << tag << '>' << table.rows[row][i] << "</" << tag << '>';
        }
        html << "</tr>\n";
    }
    html << "</table>\n";
}

} // namespace

std::string PageOf(const Options& options, std::span<const Figures> all)
{
    std::ostringstream html;
    html << "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">"
            "<title>Torvenhall: what becomes of people</title>\n<style>"
            "body{font:15px/1.4 sans-serif;margin:2em auto;max-width:80em;padding:0 1em;color:#222}"
            "h2{font-size:1em;margin:2em 0 .5em}table{border-collapse:collapse}"
            "th,td{text-align:right;padding:.15em .7em;border-bottom:1px solid #ddd;"
            "font-variant-numeric:tabular-nums}th:first-child{text-align:left}"
            "dt{font-weight:bold;float:left;width:6em}svg{width:100%;height:auto}"
            "</style></head>\n<body>\n<h1>What becomes of people</h1>\n<p>"
         << options.lives << " lives for each way of playing on each difficulty, seed "
         << options.seed << ", " << options.years << " years at most.</p>\n<dl>\n";
    for (const Policy* const policy : options.policies) {
        html << "<dt>" << policy->name << "</dt><dd>" << policy->says << "</dd>\n";
    }
    html << "</dl>\n" << CurvesOf(options, all);
    for (const Table& table : TablesOf(all)) {
        Write(html, table);
    }
    html << "</body></html>\n";
    return html.str();
}

} // namespace torvenhall::lives
