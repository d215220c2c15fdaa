// Value noise: smooth random surfaces over the plane, the same for the same seed.
#pragma once

#include <QtGlobal>

namespace art {

// A lattice point's value, 0 to below 1.
double latticeValue(int x, int y, quint32 seed);

// 0 to 1, one bump a unit of length.
double valueNoise(double x, double y, quint32 seed);

// Octaves of value noise, each of half the size and half the weight; 0 to 1, mostly near 0.5.
double fractalNoise(double x, double y, int octaves, quint32 seed);

// The same folded at its middle, so that it has sharp crests; 0 to 1.
double ridgedNoise(double x, double y, int octaves, quint32 seed);

// 0 below `from`, 1 above `to`, a smooth step between them.
double smoothStep(double from, double to, double value);

} // namespace art
