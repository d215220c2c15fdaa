// Measuring for the benchmarks: each work's best time of many, and ratios against a goal.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>

namespace stopwatch {

using Clock = std::chrono::steady_clock;

inline double nanosecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

// The time of one run, in nanoseconds.
template<typename Work>
double once(Work work)
{
    const Clock::time_point begin = Clock::now();
    work();
    return nanosecondsSince(begin);
}

// The shortest time of one run of the work, in nanoseconds: what disturbs a run only adds to it.
// Measures for the given time, three runs at least.
template<typename Work>
double best(double milliseconds, Work work)
{
    double shortest = std::numeric_limits<double>::max();
    const Clock::time_point start = Clock::now();
    for (int runs = 0; runs < 3 || nanosecondsSince(start) < milliseconds * 1e6; ++runs) {
        shortest = std::min(shortest, once(work));
    }
    return shortest;
}

// Prints one line of the result; true if the goal is met.
inline bool atLeast(const char *work, double ratio, double goal)
{
    const bool met = ratio >= goal;
    std::printf("%-58s %9.2f  goal at least %g  %s\n", work, ratio, goal, met ? "met" : "MISSED");
    return met;
}

inline bool atMost(const char *work, double ratio, double goal)
{
    const bool met = ratio <= goal;
    std::printf("%-58s %9.2f  goal at most %g  %s\n", work, ratio, goal, met ? "met" : "MISSED");
    return met;
}

} // namespace stopwatch
