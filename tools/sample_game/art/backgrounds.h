// The tall scenes behind campaigns without a map, each over a whole RGB32 picture of
// kMapWidth x kMapHeight.
#pragma once

#include "tools/sample_game/art/random.h"

#include <QImage>

namespace art {

void paintHarbour(QImage &image, Random &random);
void paintCliff(QImage &image, Random &random);
void paintPass(QImage &image, Random &random);
void paintDunes(QImage &image, Random &random);
void paintMarsh(QImage &image, Random &random);
void paintVolcano(QImage &image, Random &random);

} // namespace art
