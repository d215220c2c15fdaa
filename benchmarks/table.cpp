#include "benchmarks/table.h"

#include "benchmarks/rows.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iostream>

namespace {

constexpr double mostSlope = 1.1;

std::string number(const char *format, double value)
{
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), format, value);
    return text.data();
}

std::string shown(double value, rows::Unit unit)
{
    if (unit == rows::Unit::Bytes)
        return number("%.2f MB", value / 1e6);
    if (value < 1e-6)
        return number("%.0f ns", value * 1e9);
    if (value < 1e-3)
        return number("%.1f us", value * 1e6);
    return value < 1 ? number("%.2f ms", value * 1e3) : number("%.2f s", value);
}

std::string goalOf(const rows::Row &row)
{
    return row.kind == rows::Goal::AtMost ? number("at most %g times", row.goal)
                                          : number("%g times faster", row.goal);
}

bool isMet(const rows::Row &row, double ratio)
{
    return row.kind == rows::Goal::AtMost ? ratio <= row.goal : ratio >= row.goal;
}

void writeLine(std::ostream &out, const std::vector<std::string> &cells)
{
    for (const std::string &cell : cells)
        out << "| " << cell << ' ';
    out << "|\n";
}

void writeHead(std::ostream &out, const std::vector<std::string> &names)
{
    out << '\n';
    writeLine(out, names);
    writeLine(out, std::vector<std::string>(names.size(), "---"));
}

// Figures of all runs, one behind the other.
template<typename Values, typename Show>
std::string listed(const Values &values, Show show)
{
    std::string text;
    for (const auto &value : values)
        text += (text.empty() ? "" : ", ") + show(value);
    return text;
}

} // namespace

bool Table::ReportContext(const Context &)
{
    return true;
}

void Table::ReportRuns(const std::vector<Run> &report)
{
    for (const Run &run : report) {
        Figures figures;
        if (run.error_occurred)
            std::cerr << run.run_name.function_name << ": " << run.error_message << '\n';
        else
            for (const auto &[name, counter] : run.counters)
                figures[name] = counter.value;
        m_runs[run.run_name.function_name].push_back(figures);
        std::cerr << "measured: " << run.run_name.function_name << '\n';
    }
}

std::vector<Table::Judged> Table::rowsOfFigures() const
{
    std::vector<Judged> judged;
    for (const rows::Row &row : rows::all()) {
        const auto found = m_runs.find(rows::nameOf(row));
        if (found == m_runs.end())
            continue;
        const std::vector<Figures> &runs = found->second;
        const bool whole = std::none_of(runs.begin(), runs.end(),
                                        [](const Figures &figures) { return figures.empty(); });
        Judged line{{row.work, row.reference}, whole};
        if (!whole) {
            line.cells.insert(line.cells.end(), {"failed", "", "", goalOf(row), "**MISSED**"});
            judged.push_back(line);
            continue;
        }
        for (const Figures &figures : runs)
            line.met = line.met && isMet(row, figures.at("ratio"));
        const Figures &last = runs.back();
        line.cells.push_back(shown(last.at("work"), row.unit));
        line.cells.push_back(shown(last.at("reference"), row.unit));
        line.cells.push_back(listed(
            runs, [](const Figures &figures) { return number("%.2f", figures.at("ratio")); }));
        line.cells.push_back(goalOf(row));
        line.cells.emplace_back(line.met ? "met" : "**MISSED**");
        judged.push_back(line);
    }
    return judged;
}

std::vector<Table::Judged> Table::rowsOfGrowth() const
{
    std::vector<Judged> judged;
    for (const rows::Growth &growth : rows::allGrowths()) {
        const auto found = m_runs.find(growth.work);
        if (found == m_runs.end())
            continue;
        const std::vector<Figures> &runs = found->second;
        Judged line{{growth.work}, true};
        for (const Figures &figures : runs)
            line.met = line.met && !figures.empty() && figures.at("slope") <= mostSlope;
        if (runs.back().empty()) {
            line.cells.insert(line.cells.end(), {"failed", "", "", "**no**"});
            judged.push_back(line);
            continue;
        }
        std::string times;
        const Figures &last = runs.back();
        for (int i = 0; last.count("size" + std::to_string(i)) != 0; ++i)
            times += (i == 0 ? "" : ", ") + number("%g: ", last.at("size" + std::to_string(i))) +
                     shown(last.at("time" + std::to_string(i)), rows::Unit::Seconds);
        line.cells.push_back(growth.of + " " + times);
        for (const char *figure : {"slope", "worst"})
            line.cells.push_back(listed(runs, [figure](const Figures &figures) {
                return figures.empty() ? "failed" : number("%.2f", figures.at(figure));
            }));
        line.cells.emplace_back(line.met ? "linear or better" : "**no**");
        judged.push_back(line);
    }
    return judged;
}

void Table::write(std::ostream &out) const
{
    const std::vector<Judged> figures = rowsOfFigures();
    if (!figures.empty())
        writeHead(out, {"work", "against", "it takes", "the other", "ratio", "goal", ""});
    for (const Judged &line : figures)
        writeLine(out, line.cells);
    const std::vector<Judged> growth = rowsOfGrowth();
    if (!growth.empty())
        writeHead(out, {"work", "size: time", "exponent", "worst between neighbours", ""});
    for (const Judged &line : growth)
        writeLine(out, line.cells);
}

bool Table::allMet() const
{
    const auto met = [](const std::vector<Judged> &lines) {
        return std::all_of(lines.begin(), lines.end(), [](const Judged &line) { return line.met; });
    };
    return !m_runs.empty() && met(rowsOfFigures()) && met(rowsOfGrowth());
}
