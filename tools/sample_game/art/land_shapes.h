// The shape of a map's country: where land is, and which part of it is which region.
#pragma once

#include "tools/sample_game/art/grid.h"
#include "tools/sample_game/art/themes.h"

#include <QPoint>
#include <QVector>

namespace art {

constexpr int kFrameWidth = 18; // the painted frame around a map
constexpr int kMinRegionWidth = 50;
constexpr int kMinRegionHeight = 40;

struct RegionShape
{
    Mask mask;   // over the whole map; one connected part without holes
    QRect box;   // of the mask
    QPoint seat; // the place farthest from the region's border, where its town stands
};

struct Country
{
    Mask land;
    Field inland;                 // distance to the sea, 0 at sea
    Field offshore;               // distance to the land, 0 on land
    Field height;                 // 0 to 1 and a little above, 0 at sea
    QVector<RegionShape> regions; // the last one is the lighthouse isle
};

Country shapeCountry(const ThemeLook &look, int regionCount, quint32 seed);

} // namespace art
