// Movie stills under the open sky.
#include "tools/sample_game/art/brush.h"
#include "tools/sample_game/art/ornaments.h"
#include "tools/sample_game/art/scene_props.h"
#include "tools/sample_game/art/scene_tools.h"
#include "tools/sample_game/art/scenes.h"
#include "tools/sample_game/art/themes.h"

namespace art {

namespace {

// Trees whose crowns are out of sight, left and right of the path.
void drawTrunks(QPainter &painter, int count, double near, double ground, double w, Random &random)
{
    for (int i = 0; i < count; ++i) {
        const double x = w * random.unit();
        if (x > w * (0.44 - 0.09 * near) && x < w * (0.60 + 0.09 * near))
            continue;
        const double width = w * (0.010 + 0.03 * near) * random.range(0.7, 1.4);
        const Tone bark = mix({150, 156, 110}, {38, 30, 24}, near * 0.9 + 0.1);
        fillShape(painter,
                  polygon({{x - width * 0.5, 0},
                           {x + width * 0.5, 0},
                           {x + width * 0.8, ground + 8},
                           {x - width * 0.8, ground + 8}}),
                  toColor(bark));
        fillShape(painter,
                  polygon({{x - width * 0.5, 0},
                           {x - width * 0.1, 0},
                           {x - width * 0.25, ground + 8},
                           {x - width * 0.8, ground + 8}}),
                  toColor(mix(bark, {210, 206, 130}, 0.35 - 0.2 * near)));
    }
}

} // namespace

void paintSunrise(QImage &image, Random &random)
{
    const double w = image.width();
    const double h = image.height();
    paintSky(image, {{54, 74, 138}, {150, 118, 160}, {252, 164, 110}, {255, 224, 150}}, h * 0.6,
             random.seed());
    paintDisc(image, {w * 0.56, h * 0.47}, h * 0.055, {255, 224, 150}, 1.0);
    addClouds(image, h * 0.06, h * 0.48, {255, 190, 150}, 0.5, random.seed());
    paintRidge(image, {h * 0.55, h * 0.16, w * 0.36, {132, 106, 148}, {250, 176, 130}, 0.4, 26},
               random.seed());
    addMist(image, h * 0.45, h * 0.75, {255, 200, 150}, 0.55, random.seed());
    paintRidge(image, {h * 0.68, h * 0.1, w * 0.24, {86, 78, 118}, {206, 140, 120}, 0.4},
               random.seed());
    const QVector<double> line =
        paintRidge(image, {h * 0.84, h * 0.05, w * 0.3, {58, 66, 74}, {36, 40, 48}, 0.3, 0, false},
                   random.seed());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 30; ++i) {
        const int x = random.below(image.width());
        drawPine(painter, {static_cast<double>(x), line[x] + 6}, h * random.range(0.08, 0.2),
                 {34, 44, 54}, {126, 92, 84}, random);
    }
    drawRider(painter, {w * 0.3, line[qRound(w * 0.3)] + 5}, h * 0.11, {30, 28, 38});
}

void paintShipAtSea(QImage &image, Random &random)
{
    const double w = image.width();
    const double h = image.height();
    paintSky(image, {{62, 118, 172}, {150, 190, 206}, {248, 232, 196}}, h * 0.58, random.seed());
    addClouds(image, h * 0.04, h * 0.52, {252, 248, 240}, 0.75, random.seed());
    paintRidge(image, {h * 0.585, h * 0.03, w * 0.2, {120, 142, 160}, {170, 184, 186}, 0.2},
               random.seed());
    paintWater(image, h * 0.6, {24, 84, 118}, 0.72, random.seed());
    addGlitter(image, h * 0.61, w * 0.3, w * 0.14, {226, 246, 246}, random);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    ThemeLook look = lookOf(Theme::Isles);
    drawShip(painter, look, {w * 0.86, h * 0.62}, h * 0.13);
    painter.translate(w * 0.46, h * 0.82);
    painter.scale(h * 0.0072, h * 0.0072);
    drawShip(painter, look, {0, 0}, 100);
    painter.resetTransform();
    // The bow's wave hides the keel.
    for (int i = 0; i < 90; ++i) {
        const double along = random.range(-1, 1);
        const QPointF p(w * 0.46 + along * h * 0.42, h * (0.865 + 0.03 * random.unit()));
        const Tone tone = mix({48, 112, 142}, {236, 248, 248}, random.unit());
        strokeLine(painter, polygon({p, p + random.place({8, -2}, {26, 2})}), toColor(tone, 190),
                   2.2);
    }
    for (int i = 0; i < 6; ++i) {
        const QPointF p = shareOf(w, h, random.place({0.05, 0.1}, {0.95, 0.4}));
        strokeLine(painter, polygon({p + QPointF(-7, -3), p, p + QPointF(7, -4)}),
                   QColor(250, 250, 250, 220), 1.6);
    }
}

void paintForestPath(QImage &image, Random &random)
{
    const double w = image.width();
    const double h = image.height();
    paintSky(image, {{60, 96, 70}, {140, 172, 104}, {232, 236, 172}}, h * 0.7, random.seed());
    addGlow(image, {w * 0.52, h * 0.42}, h * 0.55, {255, 250, 190}, 0.8);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    // Trunks from the far, pale ones to the near, dark ones.
    for (int depth = 0; depth < 5; ++depth) {
        const double near = depth / 4.0;
        const double ground = h * (0.62 + 0.26 * near);
        fillShape(
            painter,
            polygon({{0, ground - 4}, {w * 0.5, ground + 6}, {w, ground - 6}, {w, h}, {0, h}}),
            toColor(mix({148, 166, 92}, {44, 60, 34}, near)));
        drawTrunks(painter, 12 - depth, near, ground, w, random);
        for (int i = 0; i < 70; ++i) {
            const double side = random.unit();
            const QPointF leaf(w * (side < 0.5 ? side * 0.9 : 1 - (1 - side) * 0.9),
                               h * random.range(-0.02, 0.30 - 0.08 * near));
            const double size = h * (0.02 + 0.025 * near) * random.range(0.6, 1.5);
            fillEllipse(
                painter, leaf, size * 1.3, size,
                toColor(mix({170, 190, 96}, {34, 60, 34}, near * 0.7 + 0.3 * random.unit()), 200));
        }
    }
    fillShape(painter,
              polygon({{w * 0.5, h * 0.64},
                       {w * 0.545, h * 0.64},
                       {w * 0.6, h * 0.74},
                       {w * 0.54, h * 0.84},
                       {w * 0.78, h},
                       {w * 0.24, h},
                       {w * 0.42, h * 0.84},
                       {w * 0.53, h * 0.74}}),
              QColor(206, 178, 120, 220));
    drawRider(painter, {w * 0.55, h * 0.78}, h * 0.12, {46, 36, 34});
    painter.end();
    for (int i = 0; i < 5; ++i)
        addGlow(image, {w * (0.3 + 0.11 * i), h * (0.3 + 0.05 * i)}, h * 0.3, {255, 250, 180},
                0.16);
}

void paintDragonMoon(QImage &image, Random &random)
{
    const double w = image.width();
    const double h = image.height();
    paintSky(image, {{14, 18, 44}, {36, 46, 92}, {96, 94, 140}}, h * 0.85, random.seed());
    addStars(image, 160, h * 0.75, random);
    paintDisc(image, {w * 0.56, h * 0.38}, h * 0.25, {244, 232, 196}, 0.7);
    for (int i = 0; i < 9; ++i) {
        const double radius = h * random.range(0.02, 0.05);
        addGlow(image,
                {w * 0.56 + h * random.range(-0.15, 0.15), h * (0.38 + random.range(-0.15, 0.15))},
                radius, {255, 255, 240}, 0.3);
    }
    addClouds(image, h * 0.5, h * 0.86, {92, 94, 138}, 0.6, random.seed());
    paintRidge(image, {h * 0.86, h * 0.1, w * 0.2, {40, 44, 80}, {22, 24, 48}, 0.5}, random.seed());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawDragon(painter, {w * 0.54, h * 0.40}, w * 0.62, {16, 14, 26});
    drawCastle(painter, {{34, 34, 60}, {18, 18, 36}, {20, 20, 42}, {255, 206, 110}},
               {w * 0.16, h * 0.93}, h * 0.36);
    painter.end();
    paintRidge(image, {h * 0.95, h * 0.03, w * 0.2, {18, 20, 38}, {10, 10, 22}, 0.3},
               random.seed());
}

void paintSnowstorm(QImage &image, Random &random)
{
    const double w = image.width();
    const double h = image.height();
    paintSky(image, {{108, 124, 150}, {168, 182, 202}, {206, 214, 226}}, h * 0.7, random.seed());
    addClouds(image, -h * 0.1, h * 0.5, {208, 216, 228}, 0.8, random.seed());
    paintRidge(image, {h * 0.5, h * 0.18, w * 0.34, {140, 154, 180}, {200, 210, 224}, 0.35, 40},
               random.seed());
    addMist(image, h * 0.2, h * 0.9, {214, 222, 234}, 0.8, random.seed());
    paintRidge(image,
               {h * 0.76, h * 0.05, w * 0.5, {216, 224, 236}, {178, 192, 214}, 0.2, 0, false},
               random.seed());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 9; ++i) {
        const double size = h * random.range(0.2, 0.4);
        drawPine(painter,
                 {w * (0.05 + 0.11 * i) + random.range(-9, 9), h * random.range(0.78, 0.86)}, size,
                 {84, 106, 126}, {226, 232, 242}, random);
    }
    for (int i = 0; i < 4; ++i)
        drawRider(painter, {w * (0.24 + 0.15 * i), h * (0.92 + 0.012 * (i % 2))}, h * 0.15,
                  {58, 64, 84});
    painter.end();
    addMist(image, h * 0.45, h * 1.1, {222, 228, 238}, 0.5, random.seed());
    addFlakes(image, 900, 2.2, -0.9, {255, 255, 255}, random);
}

void paintRuins(QImage &image, Random &random)
{
    const double w = image.width();
    const double h = image.height();
    paintSky(image, {{70, 92, 108}, {140, 152, 140}, {228, 208, 160}}, h * 0.65, random.seed());
    addClouds(image, 0, h * 0.5, {200, 196, 180}, 0.7, random.seed());
    paintRidge(image, {h * 0.62, h * 0.09, w * 0.3, {112, 124, 118}, {170, 170, 140}, 0.3},
               random.seed());
    paintRidge(image, {h * 0.74, h * 0.03, w * 0.4, {98, 116, 70}, {66, 84, 50}, 0.25, 0, false},
               random.seed());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const StoneTones far{{186, 178, 156}, {110, 108, 100}, {90, 90, 80}, {60, 60, 56}};
    drawArch(painter, far, {w * 0.5, h * 0.80}, w * 0.22, h * 0.46);
    for (int i = 0; i < 7; ++i)
        if (i != 3)
            drawColumn(painter, far, {w * (0.2 + 0.1 * i), h * 0.80}, h * 0.32, i % 2 == 1);
    const StoneTones near{{216, 204, 174}, {92, 90, 84}, {90, 90, 80}, {60, 60, 56}};
    drawColumn(painter, near, {w * 0.10, h * 0.96}, h * 0.78, false);
    drawColumn(painter, near, {w * 0.88, h * 0.96}, h * 0.60, true);
    for (int i = 0; i < 9; ++i) {
        const QPointF p = shareOf(w, h, random.place({0, 0.86}, {1, 0.98}));
        const double s = h * random.range(0.02, 0.05);
        fillShape(painter,
                  polygon({p, p + QPointF(s * 0.3, -s), p + QPointF(s * 1.6, -s * 0.9),
                           p + QPointF(s * 2, 0)}),
                  toColor(mix(near.light, near.shade, random.unit())));
    }
    for (int i = 0; i < 260; ++i) {
        const QPointF p = shareOf(w, h, random.place({0, 0.84}, {1, 1.03}));
        const Tone tone = mix({52, 74, 40}, {136, 150, 78}, random.unit());
        const double tall = h * random.range(0.02, 0.05);
        strokeLine(painter, polygon({p, p + QPointF(random.range(-3, 3), -tall)}), toColor(tone),
                   1.3);
    }
    for (int i = 0; i < 40; ++i) {
        const double y = h * random.range(0.2, 0.6);
        const QPointF p(w * (0.06 + 0.09 * random.unit()), y);
        fillEllipse(painter, p, h * 0.014, h * 0.011, QColor(70, 102, 50, 210));
    }
}

} // namespace art
