// What decorates a map's margins and its sea: frame, compass rose, ship, sea serpent.
#pragma once

#include "tools/sample_game/art/themes.h"

#include <QPainter>

namespace art {

void drawFrame(QPainter &painter, const ThemeLook &look, const QRectF &outer, double width);
void drawCompass(QPainter &painter, const ThemeLook &look, QPointF centre, double radius);
void drawShip(QPainter &painter, const ThemeLook &look, QPointF waterline, double size);
void drawSerpent(QPainter &painter, const ThemeLook &look, QPointF waterline, double size);

// Darkens a picture towards its edges; strength 0 to 1.
void applyVignette(QImage &image, double strength);

} // namespace art
