// A harbour, a cliff and a pass.
#include "tools/sample_game/art/backgrounds.h"

#include "tools/sample_game/art/brush.h"
#include "tools/sample_game/art/noise.h"
#include "tools/sample_game/art/ornaments.h"
#include "tools/sample_game/art/scene_props.h"
#include "tools/sample_game/art/scene_tools.h"
#include "tools/sample_game/art/themes.h"

namespace art {

namespace {

void pineRow(QPainter &painter, const QVector<double> &line, int count, double size,
             const Tone &tone, const Tone &lit, Random &random)
{
    for (int i = 0; i < count; ++i) {
        const int x = random.below(line.size());
        drawPine(painter, {static_cast<double>(x), line[x] + 6 + size * 0.05},
                 size * random.range(0.6, 1.15), tone, lit, random);
    }
}

} // namespace

// A harbour at sunrise.
void paintHarbour(QImage &image, Random &random)
{
    const ThemeLook &look = lookOf(Theme::Isles);
    paintSky(image, {{58, 92, 150}, {132, 150, 186}, {246, 190, 140}, {255, 226, 168}}, 300,
             random.seed());
    paintDisc(image, {300, 262}, 19, {255, 226, 160}, 1.0);
    addClouds(image, 40, 230, {255, 222, 196}, 0.55, random.seed());
    paintRidge(image, {286, 34, 120, {118, 132, 168}, {196, 176, 178}, 0.2}, random.seed());
    paintRidge(image, {306, 22, 80, {78, 104, 130}, {140, 146, 150}, 0.3}, random.seed());
    paintWater(image, 318, {40, 96, 122}, 0.5, random.seed());
    addGlitter(image, 320, 300, 34, {255, 240, 200}, random);

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawShip(painter, look, {352, 372}, 74);
    drawShip(painter, look, {222, 338}, 30);
    QPolygonF hill = polygon({{0, 600}, {0, 250}});
    const quint32 rough = random.seed();
    for (int x = 0; x <= 210; x += 6)
        hill.append(
            {static_cast<double>(x), 250 + x * x * 0.0042 + 26 * valueNoise(x / 16.0, 0.3, rough)});
    hill << QPointF(240, 470) << QPointF(290, 600);
    fillShape(painter, hill, QColor(58, 74, 58));
    fillShape(painter, hill.translated(-14, 16), QColor(74, 92, 60));
    const StoneTones tones{{232, 214, 182}, {142, 122, 116}, {180, 78, 50}, {255, 226, 130}};
    for (int row = 0; row < 6; ++row)
        for (int i = 0; i < 5 + row / 2; ++i) {
            const QPointF foot(14 + i * 36 + random.range(-8, 8) + (row % 2) * 14,
                               322 + row * 40 + i * i * 2.3);
            if (foot.x() < 200 + row * 12)
                drawHouse(painter, tones, foot, random.range(25, 36));
        }
    drawTower(painter, tones, {64, 306}, 30, 96, true);
    // The pier and its lamps.
    for (int i = 0; i < 8; ++i)
        fillShape(painter,
                  polygon({{150 + i * 30.0, 520 + i * 3.0},
                           {156 + i * 30.0, 520 + i * 3.0},
                           {156 + i * 30.0, 600},
                           {150 + i * 30.0, 600}}),
                  QColor(52, 36, 28));
    fillShape(painter, polygon({{110, 506}, {392, 532}, {392, 546}, {110, 528}}),
              QColor(122, 86, 56));
    fillShape(painter, polygon({{110, 520}, {392, 540}, {392, 548}, {110, 532}}),
              QColor(70, 48, 34));
    for (const double x : {190.0, 290.0, 380.0}) {
        const double deck = 512 + (x - 110) * 0.09;
        strokeLine(painter, polygon({{x, deck}, {x, deck - 46}}), QColor(46, 34, 28), 3);
        drawLantern(painter, {x, deck - 50}, 13);
    }
    painter.end();
    for (const double x : {190.0, 290.0, 380.0})
        addGlow(image, {x, 462 + (x - 110) * 0.09}, 54, {255, 200, 110}, 0.6);
}

// A castle on a cliff at dusk.
void paintCliff(QImage &image, Random &random)
{
    paintSky(image, {{28, 32, 74}, {84, 62, 118}, {206, 104, 112}, {255, 186, 112}}, 390,
             random.seed());
    addStars(image, 90, 150, random);
    paintDisc(image, {120, 352}, 17, {255, 204, 130}, 1.0);
    addClouds(image, 150, 360, {236, 128, 118}, 0.6, random.seed());
    paintRidge(image, {372, 64, 150, {112, 80, 122}, {226, 138, 116}, 0.25, 12}, random.seed());
    paintRidge(image, {420, 50, 110, {74, 58, 96}, {160, 98, 106}, 0.3}, random.seed());
    addMist(image, 380, 480, {246, 170, 130}, 0.5, random.seed());
    const QVector<double> line =
        paintRidge(image, {500, 26, 90, {46, 44, 66}, {34, 30, 44}, 0.3}, random.seed());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    pineRow(painter, line, 46, 40, {36, 42, 56}, {86, 66, 76}, random);
    // The cliff: slabs of rock, lit from the left.
    const quint32 rough = random.seed();
    for (int layer = 0; layer < 3; ++layer) {
        QPolygonF rock = polygon({{456, 600}, {456, 296.0 + layer * 60}});
        rock.append({236.0 + layer * 26, 292.0 + layer * 62});
        for (int y = 300 + layer * 62; y <= 600; y += 7)
            rock.append({236.0 + layer * 26 - (y - 300) * 0.16 +
                             44 * (fractalNoise(y / 26.0, layer, 4, rough) - 0.5),
                         static_cast<double>(y)});
        fillShape(painter, rock, toColor(mix({118, 82, 88}, {44, 36, 50}, layer / 2.4)));
    }
    for (int i = 0; i < 90; ++i) {
        const QPointF p = random.place({250, 310}, {450, 590});
        const double width = random.range(0.8, 2.4);
        strokeLine(painter, polygon({p, p + random.place({-6, 10}, {2, 34})}),
                   QColor(26, 20, 34, 90), width);
    }
    drawCastle(painter, {{168, 122, 124}, {62, 50, 76}, {64, 54, 92}, {255, 216, 120}}, {342, 302},
               214);
    for (int i = 0; i < 7; ++i)
        drawPine(painter, {250.0 + i * 33, 316.0 + (i % 3) * 10}, 44, {40, 38, 52}, {120, 82, 84},
                 random);
    for (int i = 0; i < 11; ++i) {
        const double size = random.range(90, 150);
        drawPine(painter, {i * 30.0 - 6 + random.range(-6, 6), 604}, size, {24, 24, 36},
                 {66, 48, 60}, random);
    }
    for (int i = 0; i < 7; ++i) {
        const QPointF p = QPointF(70 + i * 17, 200 + i * 6) + random.place({-6, -14}, {6, 14});
        strokeLine(painter, polygon({p + QPointF(-6, -3), p, p + QPointF(6, -3)}),
                   QColor(40, 30, 54), 1.3);
    }
}

// A pass in winter, with a gate across it.
void paintPass(QImage &image, Random &random)
{
    paintSky(image, {{74, 108, 160}, {142, 172, 206}, {222, 228, 234}}, 330, random.seed());
    paintDisc(image, {318, 120}, 15, {255, 246, 226}, 0.8);
    addClouds(image, 70, 250, {240, 244, 250}, 0.5, random.seed());
    paintRidge(image, {250, 130, 190, {138, 158, 190}, {206, 216, 230}, 0.5, 90}, random.seed());
    addMist(image, 230, 380, {228, 234, 242}, 0.6, random.seed());
    paintRidge(image, {356, 82, 130, {94, 112, 146}, {190, 204, 222}, 0.6, 70}, random.seed());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const StoneTones tones{{172, 178, 194}, {92, 102, 130}, {74, 92, 138}, {255, 214, 120}};
    fillShape(painter, polygon({{120, 420}, {120, 352}, {336, 352}, {336, 420}}),
              toColor(mix(tones.light, tones.shade, 0.4)));
    for (int i = 0; i < 14; ++i)
        fillShape(painter,
                  polygon({{122 + i * 15.6, 353},
                           {122 + i * 15.6, 343},
                           {131 + i * 15.6, 343},
                           {131 + i * 15.6, 353}}),
                  toColor(tones.light));
    drawArch(painter, tones, {228, 426}, 70, 112);
    for (const double x : {128.0, 186.0, 270.0, 328.0})
        drawTower(painter, tones, {x, 428}, 34, x < 150 || x > 300 ? 116 : 146, true);
    painter.end();
    const QVector<double> near = paintRidge(
        image, {438, 16, 150, {232, 238, 246}, {188, 204, 224}, 0.16, 0, false}, random.seed());
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    fillShape(painter,
              polygon({{216, 430},
                       {242, 430},
                       {262, 480},
                       {224, 530},
                       {300, 600},
                       {120, 600},
                       {168, 530},
                       {226, 480}}),
              QColor(206, 214, 228));
    pineRow(painter, near, 30, 64, {42, 70, 84}, {224, 234, 244}, random);
    for (int i = 0; i < 10; ++i) {
        const bool leftSide = i % 2 == 0;
        const double x = leftSide ? 8 + i * 9 : 448 - i * 9;
        drawPine(painter, {x, 520.0 + i * 9}, random.range(120, 190), {30, 54, 68}, {214, 226, 240},
                 random);
    }
    drawRider(painter, {216, 552}, 44, {40, 44, 60});
    painter.end();
    addFlakes(image, 420, 2.0, 0, {255, 255, 255}, random);
}

} // namespace art
