// Everything that stands on a map's ground: rivers, roads, woods, mountains, towns, ornaments.
#pragma once

#include "tools/sample_game/art/land_shapes.h"

#include <QImage>

namespace art {

void paintScenery(QImage &map, const ThemeLook &look, const Country &country, quint32 seed);

} // namespace art
