// The program's own pictures: what shows while it starts, and its icon. No text in any of them.
#pragma once

#include <QImage>

namespace art {

// RGB32: a map unrolled before a land at sunrise.
QImage paintSplash(int width, int height);
// The same at nightfall.
QImage paintEveningSplash(int width, int height);

// ARGB32, square, of 16 pixels and more: a map of regions with a flag on it.
QImage paintAppIcon(int size);

} // namespace art
