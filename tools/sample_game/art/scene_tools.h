// Layers that scenes are built of, from the sky forward. Pictures are RGB32; y runs down.
#pragma once

#include "tools/sample_game/art/colour.h"
#include "tools/sample_game/art/random.h"

#include <QImage>
#include <QVector>

namespace art {

// A mottled wall or table top, without a sky.
void paintPlain(QImage &image, const Tone &top, const Tone &bottom, quint32 seed);
// Tones from the top row to the row `horizon`; below it the last one.
void paintSky(QImage &image, const QVector<Tone> &tones, double horizon, quint32 seed);
void addStars(QImage &image, int count, double below, Random &random);
void addClouds(QImage &image, double top, double bottom, const Tone &tone, double amount,
               quint32 seed);
// Light added round a place, strongest in the middle.
void addGlow(QImage &image, QPointF centre, double radius, const Tone &tone, double strength);
// A sun or a moon with its halo.
void paintDisc(QImage &image, QPointF centre, double radius, const Tone &tone, double halo);

struct Ridge
{
    double base;      // the row of its middle height
    double amplitude; // rows up and down
    double scale;     // pixels from crest to crest
    Tone crest, foot;
    double relief;   // light and shade on its slopes, 0 to 1
    double snow = 0; // rows of snow below high crests
    bool jagged = true;
};

// Fills from the ridge's line to the bottom; answers the line's row in each column.
QVector<double> paintRidge(QImage &image, const Ridge &ridge, quint32 seed);

// Water from the row `top` down: what is above, mirrored and broken by ripples.
void paintWater(QImage &image, double top, const Tone &tone, double cover, quint32 seed);
// Glints on water below a light.
void addGlitter(QImage &image, double top, double x, double width, const Tone &tone,
                Random &random);
void addMist(QImage &image, double top, double bottom, const Tone &tone, double strength,
             quint32 seed);
// Snowflakes or sparks; `slant` is how far they drift per unit of fall.
void addFlakes(QImage &image, int count, double largest, double slant, const Tone &tone,
               Random &random);
// A canvas's grain, 1 for the usual one, and darker corners: the last step of every scene.
void finishScene(QImage &image, double vignette, double grain, quint32 seed);

} // namespace art
