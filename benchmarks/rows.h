// The rows of the table of figures. Each is a benchmark of its own that does its work and something
// to hold it against turn by turn, so that what slows the machine for longer than one turn slows
// both; what counts is the median of the turns' ratios.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace rows {

// Does something once and answers what it took: seconds, or bytes.
using Measure = std::function<double()>;

enum class Goal
{
    AtMost,     // the work takes at most this many times its reference
    TimesFaster // the reference takes at least this many times the work
};

enum class Unit
{
    Seconds,
    Bytes
};

// Whether large blocks come fresh from the system at each turn, or warm from the heap as in a
// program that has run for a while.
enum class Memory
{
    Warm,
    Fresh
};

struct Pair
{
    Measure work;
    Measure reference;
};

struct Row
{
    std::string work;
    std::string reference;
    Goal kind = Goal::AtMost;
    double goal = 1;
    int turns = 31;
    std::function<Pair()> prepare; // called when the row's turn has come; may throw
    Unit unit = Unit::Seconds;
    Memory memory = Memory::Warm;
};

// One size of a row that tells how the cost grows with the work.
struct Step
{
    double size = 0;
    Measure work;
};

struct Growth
{
    std::string work;
    std::string of; // what the sizes count
    int turns = 15;
    std::function<std::vector<Step>()> prepare;
    Memory memory = Memory::Warm;
};

// Rows stand in the table as they are added.
void add(Row row);
void add(Growth growth);
const std::vector<Row> &all();
const std::vector<Growth> &allGrowths();

// The name of a row's benchmark.
std::string nameOf(const Row &row);

// Makes every row a benchmark. Their counters: work, reference and ratio of a row; slope, worst and
// a time for each step of a growth.
void registerAll();

// The seconds that one call takes, measured over so many at once.
template<typename Work>
Measure timed(Work work, int calls = 1)
{
    return [work = std::move(work), calls] {
        const auto begin = std::chrono::steady_clock::now();
        for (int call = 0; call < calls; ++call)
            work();
        const auto end = std::chrono::steady_clock::now();
        return std::chrono::duration<double>(end - begin).count() / calls;
    };
}

// The same with as many calls at once as last about a millisecond.
template<typename Work>
Measure timedOften(Work work)
{
    constexpr double enough = 1e-3;
    constexpr double least = 1e-8;
    timed(work)(); // the first call is slower than those that follow
    const double once = timed(work)();
    return timed(std::move(work), 1 + int(enough / (once > least ? once : least)));
}

} // namespace rows
