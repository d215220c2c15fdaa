// Things that stand in scenes, drawn larger than those of the maps. The place is the foot's middle.
#pragma once

#include "tools/sample_game/art/colour.h"
#include "tools/sample_game/art/random.h"

#include <QPainter>

namespace art {

struct StoneTones
{
    Tone light, shade, roof, window;
};

// A castle of keep, towers and walls; the size is its height.
void drawCastle(QPainter &painter, const StoneTones &tones, QPointF foot, double size);
void drawTower(QPainter &painter, const StoneTones &tones, QPointF foot, double width,
               double height, bool spired);
void drawHouse(QPainter &painter, const StoneTones &tones, QPointF foot, double size);
void drawPine(QPainter &painter, QPointF foot, double size, const Tone &tone, const Tone &lit,
              Random &random);
void drawBareTree(QPainter &painter, QPointF foot, double size, const Tone &tone, Random &random);
void drawPalmTree(QPainter &painter, QPointF foot, double size, Random &random);
void drawColumn(QPainter &painter, const StoneTones &tones, QPointF foot, double height,
                bool broken);
void drawArch(QPainter &painter, const StoneTones &tones, QPointF foot, double width,
              double height);
void drawDragon(QPainter &painter, QPointF centre, double span, const Tone &tone);
void drawRider(QPainter &painter, QPointF foot, double size, const Tone &tone);
void drawBanner(QPainter &painter, QPointF foot, double height, const Tone &cloth, const Tone &sign,
                double wave);
void drawLantern(QPainter &painter, QPointF place, double size);
void drawFlame(QPainter &painter, QPointF foot, double size, Random &random);
void drawCrown(QPainter &painter, QPointF foot, double width);

} // namespace art
