// A small generator of random numbers (SplitMix64), used instead of the standard library's, whose
// distributions differ from one library to the next.
#pragma once

#include <QtGlobal>

namespace art {

class Random
{
public:
    explicit Random(quint64 seed) : state_(seed) {}

    quint64 next()
    {
        state_ += 0x9E3779B97F4A7C15ULL;
        quint64 z = state_;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31);
    }

    // 0 to below 1, in steps that a double holds exactly.
    double unit() { return static_cast<double>(next() >> 32) / 4294967296.0; }
    double range(double from, double to) { return from + (to - from) * unit(); }
    // 0 to count - 1; count must be positive.
    int below(int count) { return static_cast<int>(next() % static_cast<quint64>(count)); }
    bool chance(double probability) { return unit() < probability; }
    quint32 seed() { return static_cast<quint32>(next() >> 20); }

private:
    quint64 state_;
};

} // namespace art
