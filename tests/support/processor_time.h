// A stop watch that runs only while this process computes: other programs that keep the machine
// busy don't make a test late.
#pragma once

#include <QtGlobal>

#include <ctime>

// Of computing, with sanitizers on a slow machine: what takes longer does much more than it should.
constexpr int unhurriedMilliseconds = 20000;

class ProcessorTime
{
public:
    // Since this watch was made.
    qint64 milliseconds() const { return qint64(std::clock() - m_begin) * 1000 / CLOCKS_PER_SEC; }

private:
    const std::clock_t m_begin = std::clock();
};
