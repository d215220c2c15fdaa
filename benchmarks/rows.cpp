#include "benchmarks/rows.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <exception>
#include <malloc.h>

namespace rows {

namespace {

std::vector<Row> &storedRows()
{
    static std::vector<Row> stored;
    return stored;
}

std::vector<Growth> &storedGrowths()
{
    static std::vector<Growth> stored;
    return stored;
}

void setMemory(Memory memory)
{
    constexpr int freshFrom = 128 * 1024;
    constexpr int keptUpTo = 32 * 1024 * 1024;
    mallopt(M_MMAP_THRESHOLD, memory == Memory::Fresh ? freshFrom : keptUpTo);
    mallopt(M_TRIM_THRESHOLD, memory == Memory::Fresh ? freshFrom : 2 * keptUpTo);
    malloc_trim(0);
}

double median(std::vector<double> values)
{
    if (values.empty())
        return 0;
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// What other rows have left in the heap would be warm memory.
double measured(const Measure &measure, Memory memory)
{
    if (memory == Memory::Fresh)
        malloc_trim(0);
    return measure();
}

// Each goes first as often as the other.
double turn(const Pair &pair, Memory memory, bool workFirst, double &reference)
{
    if (workFirst) {
        const double work = measured(pair.work, memory);
        reference = measured(pair.reference, memory);
        return work;
    }
    reference = measured(pair.reference, memory);
    return measured(pair.work, memory);
}

void runRow(const Row &row, benchmark::State &state)
{
    setMemory(row.memory);
    const Pair pair = row.prepare();
    double reference = 0;
    turn(pair, row.memory, true, reference);
    std::vector<double> works;
    std::vector<double> references;
    std::vector<double> ratios;
    for (auto step : state) {
        (void)step;
        const double work = turn(pair, row.memory, works.size() % 2 == 0, reference);
        works.push_back(work);
        references.push_back(reference);
        ratios.push_back(work / reference);
        state.SetIterationTime(row.unit == Unit::Seconds ? work : 0);
    }
    state.counters["work"] = median(works);
    state.counters["reference"] = median(references);
    const double ratio = median(ratios);
    state.counters["ratio"] = row.kind == Goal::AtMost ? ratio : 1 / ratio;
}

double slope(const Step &from, const Step &to, double timeFrom, double timeTo)
{
    return std::log(timeTo / timeFrom) / std::log(to.size / from.size);
}

void runGrowth(const Growth &growth, benchmark::State &state)
{
    setMemory(growth.memory);
    const std::vector<Step> steps = growth.prepare();
    for (const Step &step : steps)
        step.work();
    std::vector<std::vector<double>> times(steps.size());
    for (auto iteration : state) {
        (void)iteration;
        for (std::size_t i = 0; i < steps.size(); ++i)
            times[i].push_back(measured(steps[i].work, growth.memory));
        state.SetIterationTime(times.back().back());
    }
    std::vector<double> medians;
    medians.reserve(times.size());
    for (const std::vector<double> &values : times)
        medians.push_back(median(values));
    double worst = -1;
    for (std::size_t i = 1; i < steps.size(); ++i)
        worst = std::max(worst, slope(steps[i - 1], steps[i], medians[i - 1], medians[i]));
    state.counters["slope"] = slope(steps.front(), steps.back(), medians.front(), medians.back());
    state.counters["worst"] = worst;
    for (std::size_t i = 0; i < steps.size(); ++i)
        state.counters["time" + std::to_string(i)] = medians[i];
    for (std::size_t i = 0; i < steps.size(); ++i)
        state.counters["size" + std::to_string(i)] = steps[i].size;
}

// A fault leaves the row without figures, which counts as missed.
template<typename Kind>
void registerOne(const std::string &name, const Kind &kind,
                 void (*run)(const Kind &, benchmark::State &))
{
    const auto guarded = [&kind, run](benchmark::State &state) {
        try {
            run(kind, state);
        } catch (const std::exception &fault) {
            state.SkipWithError(fault.what());
        }
    };
    benchmark::RegisterBenchmark(name.c_str(), guarded)
        ->Iterations(kind.turns)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

} // namespace

void add(Row row)
{
    storedRows().push_back(std::move(row));
}

void add(Growth growth)
{
    storedGrowths().push_back(std::move(growth));
}

const std::vector<Row> &all()
{
    return storedRows();
}

const std::vector<Growth> &allGrowths()
{
    return storedGrowths();
}

std::string nameOf(const Row &row)
{
    return row.work + " : " + row.reference;
}

void registerAll()
{
    for (const Row &row : all())
        registerOne(nameOf(row), row, runRow);
    for (const Growth &growth : allGrowths())
        registerOne(growth.work, growth, runGrowth);
}

} // namespace rows
