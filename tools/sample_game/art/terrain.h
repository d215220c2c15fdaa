// The ground of a campaign map: sea, coast and shaded land, without anything standing on it.
#pragma once

#include "tools/sample_game/art/land_shapes.h"

#include <QImage>

namespace art {

QImage paintTerrain(const ThemeLook &look, const Country &country, quint32 seed);

} // namespace art
