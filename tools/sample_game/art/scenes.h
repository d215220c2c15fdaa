// The scenes of the movie stills, painted over a whole RGB32 picture of any size near 4:3.
#pragma once

#include "tools/sample_game/art/random.h"

#include <QImage>

namespace art {

void paintSunrise(QImage &image, Random &random);
void paintShipAtSea(QImage &image, Random &random);
void paintForestPath(QImage &image, Random &random);
void paintDragonMoon(QImage &image, Random &random);
void paintSnowstorm(QImage &image, Random &random);
void paintRuins(QImage &image, Random &random);

void paintCastleGate(QImage &image, Random &random);
void paintCampfire(QImage &image, Random &random);
void paintThroneHall(QImage &image, Random &random);
void paintBattleBanners(QImage &image, Random &random);
void paintMapTable(QImage &image, Random &random);
void paintCrownOnCushion(QImage &image, Random &random);

} // namespace art
