// Little drawings of the country: mountains, hills, trees, reeds, rocks. The place is the foot's
// middle; sizes are pixels.
#pragma once

#include "tools/sample_game/art/random.h"
#include "tools/sample_game/art/themes.h"

#include <QPainter>

namespace art {

void drawMountain(QPainter &painter, const ThemeLook &look, QPointF foot, double size,
                  Random &random);
void drawFireMount(QPainter &painter, const ThemeLook &look, QPointF foot, double size,
                   Random &random);
void drawHill(QPainter &painter, const ThemeLook &look, QPointF foot, double size);
void drawDune(QPainter &painter, const ThemeLook &look, QPointF foot, double size);
void drawTree(QPainter &painter, const ThemeLook &look, QPointF foot, double size, Random &random);

} // namespace art
