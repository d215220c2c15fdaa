// A small generator of random numbers (SplitMix64), used instead of the standard library's, whose
// distributions differ from one library to the next.
//
// Where the order of draws matters, each stands in a statement or in a place of a braced list of
// its own: among the arguments of a call the compiler chooses which comes first, and the pictures
// would differ from one compiler to the next.
#pragma once

#include <QPointF>
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
    // A place between two corners. The row is drawn before the column.
    QPointF place(QPointF from, QPointF to)
    {
        const double y = range(from.y(), to.y());
        return {range(from.x(), to.x()), y};
    }
    // A place in a grid, from (0, 0) on; both counts must be positive. The row is drawn before the
    // column.
    QPoint cell(int columns, int rows)
    {
        const int y = below(rows);
        return {below(columns), y};
    }
    quint32 seed() { return static_cast<quint32>(next() >> 20); }

private:
    quint64 state_;
};

} // namespace art
