// Movie stills of camps, armies and a table of maps.
#include "tools/sample_game/art/scenes.h"

#include "tools/sample_game/art/art.h"
#include "tools/sample_game/art/brush.h"
#include "tools/sample_game/art/scene_props.h"
#include "tools/sample_game/art/scene_tools.h"

namespace art {

namespace {

void drawTent(QPainter &painter, QPointF foot, double size, const Tone &cloth)
{
    const auto at = [&](double x, double y) { return foot + QPointF(x, -y) * size; };
    fillShape(painter, polygon({at(-0.8, 0), at(-0.06, 1), at(0.32, 0)}), toColor(cloth));
    fillShape(painter, polygon({at(0.32, 0), at(-0.06, 1), at(0.72, 0.08)}), toColor(cloth * 0.6));
    fillShape(painter, polygon({at(-0.42, 0), at(-0.12, 0.72), at(-0.04, 0)}), QColor(34, 24, 22));
    strokeLine(painter, polygon({at(-0.06, 1), at(-0.06, 1.16)}), QColor(52, 36, 26), 2);
}

} // namespace

void paintCampfire(QImage &image, Random &random)
{
    const double w = image.width();
    const double h = image.height();
    paintSky(image, {{10, 14, 34}, {26, 34, 62}, {58, 60, 80}}, h * 0.7, random.seed());
    addStars(image, 170, h * 0.55, random);
    const QVector<double> line =
        paintRidge(image, {h * 0.66, h * 0.05, w * 0.3, {24, 32, 40}, {18, 20, 24}, 0.3, 0, false},
                   random.seed());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 34; ++i) {
        const int x = random.below(image.width());
        drawPine(painter, {static_cast<double>(x), line[x] + 8}, h * random.range(0.2, 0.44),
                 {16, 24, 28}, {44, 40, 36}, random);
    }
    painter.end();
    paintRidge(image, {h * 0.78, h * 0.02, w * 0.3, {86, 62, 40}, {40, 30, 24}, 0.25, 0, false},
               random.seed());
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawTent(painter, {w * 0.22, h * 0.84}, h * 0.26, {186, 132, 84});
    drawTent(painter, {w * 0.84, h * 0.82}, h * 0.2, {150, 70, 56});
    painter.end();
    addGlow(image, {w * 0.52, h * 0.84}, h * 0.75, {255, 140, 60}, 0.75);
    addGlow(image, {w * 0.52, h * 0.83}, h * 0.22, {255, 210, 120}, 0.6);
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    // Two who sit by the fire.
    for (const double side : {-1.0, 1.0}) {
        const auto at = [&](double x, double y) {
            return QPointF(w * 0.52 + side * w * 0.15 - side * x * h, h * 0.90 - y * h);
        };
        fillShape(
            painter,
            polygon({at(-0.08, 0), at(-0.06, 0.13), at(0.0, 0.16), at(0.05, 0.11), at(0.09, 0)}),
            toColor(side < 0 ? Tone{66, 52, 74} : Tone{84, 44, 34}));
        fillEllipse(painter, at(0.005, 0.19), h * 0.034, h * 0.04, QColor(120, 84, 62));
        fillShape(painter,
                  polygon({at(-0.05, 0.16), at(-0.02, 0.25), at(0.02, 0.22), at(0.0, 0.14)}),
                  toColor(side < 0 ? Tone{50, 40, 60} : Tone{64, 34, 28}));
    }
    for (int i = 0; i < 5; ++i)
        strokeLine(painter,
                   polygon({{w * (0.46 + 0.012 * i), h * 0.93},
                            {w * (0.575 - 0.01 * i), h * (0.885 + 0.01 * i)}}),
                   QColor(56, 36, 26), 6);
    drawFlame(painter, {w * 0.52, h * 0.91}, h * 0.24, random);
    for (int i = 0; i < 46; ++i) {
        const double up = random.unit();
        fillEllipse(painter,
                    {w * 0.52 + random.range(-1, 1) * w * (0.03 + 0.12 * up), h * (0.8 - 0.7 * up)},
                    1.2, 1.2, QColor(255, 190, 90, static_cast<int>(240 * (1 - up))));
    }
}

void paintBattleBanners(QImage &image, Random &random)
{
    const double w = image.width();
    const double h = image.height();
    paintSky(image, {{84, 66, 74}, {190, 116, 84}, {250, 196, 120}}, h * 0.7, random.seed());
    addClouds(image, 0, h * 0.6, {146, 92, 82}, 0.75, random.seed());
    paintDisc(image, {w * 0.7, h * 0.52}, h * 0.05, {255, 220, 150}, 0.9);
    paintRidge(image, {h * 0.66, h * 0.05, w * 0.4, {122, 82, 74}, {96, 66, 58}, 0.2, 0, false},
               random.seed());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 60; ++i) {
        const double x = w * i / 60.0 + random.range(-3, 3);
        strokeLine(painter,
                   polygon({{x, h * 0.72}, {x + random.range(-4, 4), h * random.range(0.5, 0.58)}}),
                   QColor(66, 46, 46), 1.2);
        fillEllipse(painter, {x, h * 0.69}, 3.4, 4.2, QColor(66, 48, 48));
    }
    fillShape(painter, polygon({{0, h * 0.70}, {w, h * 0.69}, {w, h}, {0, h}}), QColor(70, 50, 46));
    const Tone cloths[] = {{190, 36, 40}, {44, 78, 166}, {206, 160, 50}, {52, 118, 66}};
    for (int i = 0; i < 5; ++i) {
        const double wave = random.range(0, 6);
        drawBanner(painter, {w * (0.04 + 0.2 * i), h * 0.84}, h * random.range(0.48, 0.6),
                   cloths[i % 4], {246, 230, 190}, wave);
    }
    for (int i = 0; i < 6; ++i)
        drawRider(painter, {w * (0.06 + 0.18 * i), h * (0.9 + 0.02 * (i % 2))}, h * 0.2,
                  {44, 30, 32});
    painter.end();
    paintRidge(image, {h * 0.93, h * 0.02, w * 0.2, {42, 32, 30}, {24, 18, 18}, 0.3, 0, false},
               random.seed());
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawBanner(painter, {w * 0.2, h * 1.02}, h * 0.92, cloths[0], {250, 214, 110}, 1.0);
    drawBanner(painter, {w * 0.64, h * 1.02}, h * 0.78, cloths[1], {240, 240, 246}, 3.2);
}

void paintMapTable(QImage &image, Random &random)
{
    const double w = image.width();
    const double h = image.height();
    paintPlain(image, {70, 42, 24}, {96, 60, 34}, random.seed());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (int i = 1; i < 6; ++i)
        strokeLine(
            painter,
            polygon({{0, h * i / 6 + random.range(-3, 3)}, {w, h * i / 6 + random.range(-3, 3)}}),
            QColor(36, 20, 12, 190), 2.2);
    const QImage map = paintCampaignMap(Theme::Highlands, 6, random.seed(), false).background;
    const QPolygonF corners = polygon({{0, 0}, {w * 1.0, 0}, {w * 1.0, w * 0.76}, {0, w * 0.76}});
    painter.save();
    painter.translate(w * 0.17, h * 0.1);
    painter.rotate(-5);
    painter.scale(0.66, 0.98);
    fillShape(painter, corners.translated(8, 9), QColor(20, 10, 6, 130));
    painter.drawImage(QRectF(0, 0, w, w * 0.76), map, QRectF(18, 90, 420, 320));
    fillShape(painter, corners, QColor(226, 186, 118, 70));
    strokeLine(painter, polygon({corners[0], corners[1], corners[2], corners[3], corners[0]}),
               QColor(240, 216, 160), 5);
    painter.restore();
    // A dagger that holds the map, coins and a candle.
    fillShape(painter,
              polygon({{w * 0.60, h * 0.60}, {w * 0.655, h * 0.36}, {w * 0.675, h * 0.365}}),
              QColor(214, 220, 228));
    strokeLine(painter, polygon({{w * 0.63, h * 0.35}, {w * 0.70, h * 0.38}}), QColor(196, 150, 60),
               5);
    strokeLine(painter, polygon({{w * 0.666, h * 0.36}, {w * 0.69, h * 0.25}}), QColor(84, 40, 30),
               7);
    fillEllipse(painter, {w * 0.692, h * 0.24}, 6, 6, QColor(206, 40, 48));
    for (int i = 0; i < 9; ++i) {
        const QPointF p = shareOf(w, h, random.place({0.08, 0.78}, {0.24, 0.94}));
        fillEllipse(painter, p + QPointF(1, 2), 9, 6, QColor(60, 36, 10));
        fillEllipse(painter, p, 9, 6, QColor(236, 190, 80));
        fillEllipse(painter, p - QPointF(1, 1), 5.5, 3.4, QColor(255, 224, 130));
    }
    const QPointF wick(w * 0.88, h * 0.42);
    fillEllipse(painter, wick + QPointF(0, h * 0.27), 30, 14, QColor(150, 110, 48));
    fillShape(painter, QPolygonF(QRectF(wick.x() - 11, wick.y() + 8, 22, h * 0.26)),
              QColor(240, 226, 190));
    fillShape(painter, QPolygonF(QRectF(wick.x() + 3, wick.y() + 8, 8, h * 0.26)),
              QColor(196, 170, 128));
    drawFlame(painter, wick + QPointF(0, 8), h * 0.09, random);
    painter.end();
    addGlow(image, wick, h * 1.1, {255, 190, 100}, 0.5);
    addGlow(image, wick, h * 0.25, {255, 230, 160}, 0.6);
}

} // namespace art
