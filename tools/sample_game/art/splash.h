// The program's own pictures: what shows while it starts, and its icon. The letters
// come from a font of this system, so a QGuiApplication is wanted and another system's differ.
#pragma once

#include <QImage>

namespace art {

// RGB32: a map unrolled before a land at sunrise, under the program's name in English.
QImage paintSplash(int width, int height);
// The same at nightfall, in Russian.
QImage paintEveningSplash(int width, int height);

// ARGB32, square, of 16 pixels and more: a map of regions with a flag on it.
QImage paintAppIcon(int size);

} // namespace art
