// Rivers and roads: cheapest ways over the land, found on a grid of half the map's size.
#pragma once

#include "tools/sample_game/art/land_shapes.h"

#include <QPolygonF>
#include <QVector>

namespace art {

struct Routes
{
    QVector<QPolygonF> rivers; // from the source to the mouth
    QVector<QPolygonF> roads;  // from town to town
};

Routes findRoutes(const ThemeLook &look, const Country &country, quint32 seed);

} // namespace art
