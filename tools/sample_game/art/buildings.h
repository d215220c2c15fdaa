// Towns, castles and towers as small as maps show them. The place is the foot's middle.
#pragma once

#include "tools/sample_game/art/themes.h"

#include <QPainter>

namespace art {

constexpr int kBuildingKinds = 5;

// The kind 0 to kBuildingKinds - 1: castle, town, keep, temple, walled town.
void drawBuilding(QPainter &painter, const ThemeLook &look, int kind, QPointF foot, double size);
void drawLighthouse(QPainter &painter, const ThemeLook &look, QPointF foot, double size);

} // namespace art
