// Collects what the rows measured and writes it down as Markdown.
#pragma once

#include <QtGlobal>

#include <benchmark/benchmark.h>

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

class Table : public benchmark::BenchmarkReporter
{
public:
    Table() = default;
    Q_DISABLE_COPY_MOVE(Table)

    // Names the row that is done on standard error, since all of them take minutes.
    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &report) override;

    // Both tables. A row that was left out by a filter isn't there.
    void write(std::ostream &out) const;
    // Whether every row reached its goal in each of its runs.
    bool allMet() const;

private:
    using Figures = std::map<std::string, double>; // none if the run failed

    struct Judged
    {
        std::vector<std::string> cells;
        bool met = true;
    };

    std::vector<Judged> rowsOfFigures() const;
    std::vector<Judged> rowsOfGrowth() const;

    std::map<std::string, std::vector<Figures>> m_runs; // by the benchmark's name
};
