#include "tools/sample_game/art/noise.h"

#include <cmath>

namespace art {

double latticeValue(int x, int y, quint32 seed)
{
    quint32 h = static_cast<quint32>(x) * 0x8DA6B343U ^ static_cast<quint32>(y) * 0xD8163841U ^
                seed * 0xCB1AB31FU;
    h ^= h >> 15;
    h *= 0x2C1B3C6DU;
    h ^= h >> 12;
    h *= 0x297A2D39U;
    h ^= h >> 15;
    return static_cast<double>(h) / 4294967296.0;
}

double valueNoise(double x, double y, quint32 seed)
{
    const double fx = std::floor(x);
    const double fy = std::floor(y);
    const int ix = static_cast<int>(fx);
    const int iy = static_cast<int>(fy);
    const auto ease = [](double t) { return t * t * t * (t * (t * 6.0 - 15.0) + 10.0); };
    const double u = ease(x - fx);
    const double v = ease(y - fy);
    const double a = latticeValue(ix, iy, seed);
    const double b = latticeValue(ix + 1, iy, seed);
    const double c = latticeValue(ix, iy + 1, seed);
    const double d = latticeValue(ix + 1, iy + 1, seed);
    const double top = a + (b - a) * u;
    const double bottom = c + (d - c) * u;
    return top + (bottom - top) * v;
}

double fractalNoise(double x, double y, int octaves, quint32 seed)
{
    double sum = 0.0;
    double weight = 1.0;
    double total = 0.0;
    for (int i = 0; i < octaves; ++i) {
        sum += weight * valueNoise(x, y, seed + static_cast<quint32>(i) * 101U);
        total += weight;
        weight *= 0.5;
        // A slight turn keeps the lattices of the octaves from lining up.
        const double turned = 1.6 * x - 1.2 * y + 17.3;
        y = 1.2 * x + 1.6 * y - 5.1;
        x = turned;
    }
    return sum / total;
}

double ridgedNoise(double x, double y, int octaves, quint32 seed)
{
    double sum = 0.0;
    double weight = 1.0;
    double total = 0.0;
    for (int i = 0; i < octaves; ++i) {
        const double n = valueNoise(x, y, seed + static_cast<quint32>(i) * 71U);
        const double crest = 1.0 - std::fabs(2.0 * n - 1.0);
        sum += weight * crest * crest;
        total += weight;
        weight *= 0.5;
        const double turned = 1.6 * x - 1.2 * y + 9.7;
        y = 1.2 * x + 1.6 * y + 3.3;
        x = turned;
    }
    return sum / total;
}

double smoothStep(double from, double to, double value)
{
    double t = (value - from) / (to - from);
    t = t < 0.0 ? 0.0 : (t > 1.0 ? 1.0 : t);
    return t * t * (3.0 - 2.0 * t);
}

} // namespace art
