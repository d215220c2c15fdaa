// The tall scenes behind campaigns without a map, one for each theme.
#include "tools/sample_game/art/art.h"
#include "tools/sample_game/art/brush.h"
#include "tools/sample_game/art/noise.h"
#include "tools/sample_game/art/ornaments.h"
#include "tools/sample_game/art/scene_props.h"
#include "tools/sample_game/art/scene_tools.h"
#include "tools/sample_game/art/themes.h"

#include <array>

namespace art {

namespace {

constexpr double kPictureFrame = 10;

void pineRow(QPainter &painter, const QVector<double> &line, int count, double size,
             const Tone &tone, const Tone &lit, Random &random)
{
    for (int i = 0; i < count; ++i) {
        const int x = random.below(line.size());
        drawPine(painter, {static_cast<double>(x), line[x] + 6 + size * 0.05},
                 size * random.range(0.6, 1.15), tone, lit, random);
    }
}

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
        const QPointF p(random.range(250, 450), random.range(310, 590));
        strokeLine(painter, polygon({p, p + QPointF(random.range(-6, 2), random.range(10, 34))}),
                   QColor(26, 20, 34, 90), random.range(0.8, 2.4));
    }
    drawCastle(painter, {{168, 122, 124}, {62, 50, 76}, {64, 54, 92}, {255, 216, 120}}, {342, 302},
               214);
    for (int i = 0; i < 7; ++i)
        drawPine(painter, {250.0 + i * 33, 316.0 + (i % 3) * 10}, 44, {40, 38, 52}, {120, 82, 84},
                 random);
    for (int i = 0; i < 11; ++i)
        drawPine(painter, {i * 30.0 - 6 + random.range(-6, 6), 604}, random.range(90, 150),
                 {24, 24, 36}, {66, 48, 60}, random);
    for (int i = 0; i < 7; ++i) {
        const QPointF p(70 + i * 17 + random.range(-6, 6), 200 + i * 6 + random.range(-14, 14));
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

// Dunes with ruins.
void paintDunes(QImage &image, Random &random)
{
    paintSky(image, {{66, 124, 178}, {156, 186, 190}, {252, 220, 164}, {255, 204, 130}}, 320,
             random.seed());
    paintDisc(image, {112, 190}, 24, {255, 240, 190}, 1.0);
    addClouds(image, 30, 180, {255, 236, 204}, 0.3, random.seed());
    paintRidge(image, {312, 40, 170, {206, 142, 104}, {244, 196, 134}, 0.35}, random.seed());
    paintRidge(image, {350, 22, 240, {238, 186, 112}, {222, 158, 90}, 0.18, 0, false},
               random.seed());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const StoneTones far{{238, 200, 146}, {180, 124, 84}, {62, 132, 140}, {120, 70, 44}};
    drawArch(painter, far, {352, 382}, 96, 130);
    for (int i = 0; i < 4; ++i)
        drawColumn(painter, far, {216.0 + i * 26, 378.0 + i}, 92, i % 2 == 0);
    for (int i = 0; i < 5; ++i)
        drawRider(painter, {40.0 + i * 30, 372.0 + (i % 2) * 2}, 22, {92, 54, 34});
    painter.end();
    paintRidge(image, {414, 26, 260, {248, 202, 126}, {216, 146, 82}, 0.2, 0, false},
               random.seed());
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const StoneTones near{{250, 216, 160}, {158, 100, 66}, {62, 132, 140}, {90, 50, 34}};
    drawColumn(painter, near, {92, 484}, 190, false);
    drawColumn(painter, near, {164, 476}, 132, true);
    drawColumn(painter, near, {330, 480}, 168, true);
    drawColumn(painter, near, {404, 490}, 212, false);
    painter.end();
    paintRidge(image, {482, 22, 190, {252, 206, 130}, {190, 116, 64}, 0.22, 0, false},
               random.seed());
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawPalmTree(painter, {262, 556}, 128, random);
    drawPalmTree(painter, {300, 562}, 92, random);
    drawPalmTree(painter, {226, 566}, 74, random);
    for (int i = 0; i < 26; ++i) {
        const double y = random.range(490, 596);
        const double x = random.range(0, 456);
        strokeLine(painter,
                   polygon({{x - 40, y + 4}, {x - 12, y}, {x + 14, y + 1}, {x + 44, y + 6}}),
                   QColor(150, 88, 50, 70), 1.4);
    }
}

// A marsh by night, with lanterns.
void paintMarsh(QImage &image, Random &random)
{
    paintSky(image, {{22, 38, 52}, {44, 74, 78}, {120, 146, 116}}, 330, random.seed());
    addStars(image, 60, 180, random);
    paintDisc(image, {300, 130}, 30, {226, 236, 196}, 0.9);
    addClouds(image, 60, 260, {96, 122, 112}, 0.5, random.seed());
    paintRidge(image, {318, 22, 70, {50, 76, 72}, {88, 112, 94}, 0.2, 0, false}, random.seed());
    addMist(image, 250, 380, {160, 184, 150}, 0.6, random.seed());
    const QVector<QPointF> lights = {{96, 372}, {214, 396}, {322, 358}, {392, 420}, {150, 334}};
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 9; ++i)
        drawBareTree(painter, {i * 56.0 + random.range(-14, 14), 362}, random.range(90, 140),
                     {46, 64, 62}, random);
    const StoneTones hut{{84, 78, 62}, {48, 50, 46}, {62, 66, 48}, {255, 214, 110}};
    drawHouse(painter, hut, {246, 352}, 66);
    for (const double x : {222.0, 246.0, 270.0})
        strokeLine(painter, polygon({{x, 350}, {x, 372}}), QColor(40, 42, 38), 4);
    for (int i = 0; i < 4; ++i)
        drawBareTree(painter, {(i % 2) * 400.0 + 20 + random.range(-18, 18), 376},
                     random.range(260, 330), {28, 38, 38}, random);
    for (const QPointF &p : lights)
        drawLantern(painter, p, 12);
    painter.end();
    for (const QPointF &p : lights)
        addGlow(image, p, 70, {255, 206, 110}, 0.7);
    paintWater(image, 374, {26, 52, 48}, 0.42, random.seed());
    for (const QPointF &p : lights)
        addGlitter(image, 384, p.x(), 7, {255, 214, 130}, random);
    addMist(image, 340, 460, {150, 176, 146}, 0.45, random.seed());
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 170; ++i) {
        const double x = random.range(-10, 466);
        const double side = (x - 228) / 228;
        const double y = 612 - 40 * (1 - side * side);
        const double tall = random.range(50, 130) * (0.45 + 0.55 * side * side);
        const double lean = random.range(-14, 14);
        strokeLine(painter,
                   polygon({{x, y + 30}, {x + lean * 0.4, y - tall * 0.5}, {x + lean, y - tall}}),
                   toColor(mix({20, 32, 26}, {70, 88, 50}, random.unit())), random.range(1.4, 2.8));
        if (i % 5 == 0)
            strokeLine(painter, polygon({{x + lean, y - tall}, {x + lean, y - tall + 16}}),
                       QColor(66, 46, 30), 5);
    }
}

// A fire mount and the tower below it.
void paintVolcano(QImage &image, Random &random)
{
    paintSky(image, {{24, 16, 24}, {76, 30, 34}, {176, 66, 38}, {240, 130, 54}}, 420,
             random.seed());
    addClouds(image, 10, 280, {92, 62, 62}, 0.9, random.seed());
    addGlow(image, {236, 176}, 230, {255, 110, 40}, 0.9);
    paintRidge(image, {400, 56, 120, {84, 42, 42}, {150, 66, 46}, 0.4}, random.seed());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 26; i >= 0; --i)
        fillEllipse(painter,
                    QPointF(240 + i * 4 + random.range(-12, 12), 176 - i * 7 + random.range(-9, 9)),
                    18 + i * 3.2, 14 + i * 2.2,
                    toColor(mix({238, 108, 48}, {58, 42, 46}, smoothStep(0, 9, i)), 110));
    const quint32 rough = random.seed();
    QPolygonF left;
    QPolygonF right;
    for (int y = 180; y <= 470; y += 8) {
        const double reach = 22 + (y - 180) * 0.30 + (y - 180) * (y - 180) * 0.0013;
        left.append(
            {238 - reach + 14 * (valueNoise(y / 14.0, 1, rough) - 0.5), static_cast<double>(y)});
        right.prepend(
            {238 + reach + 14 * (valueNoise(y / 14.0, 4, rough) - 0.5), static_cast<double>(y)});
    }
    QPolygonF cone = left;
    cone << right;
    QLinearGradient stone(120, 0, 380, 0);
    stone.setColorAt(0, QColor(112, 60, 52));
    stone.setColorAt(0.45, QColor(66, 38, 42));
    stone.setColorAt(1, QColor(26, 18, 26));
    painter.setPen(Qt::NoPen);
    painter.setBrush(stone);
    painter.drawPolygon(cone);
    for (int stream = 0; stream < 4; ++stream) {
        QPolygonF lava = polygon({{228.0 + stream * 7, 180}});
        double x = 228.0 + stream * 7;
        for (int y = 190; y <= 330 + stream % 2 * 130; y += 9) {
            x += (stream - 1.4) * 2.6 + random.range(-5, 5);
            lava.append({x, static_cast<double>(y)});
        }
        strokeLine(painter, lava, QColor(190, 46, 20, 170), 10 - stream);
        strokeLine(painter, lava, QColor(255, 140, 40), 5);
        strokeLine(painter, lava, QColor(255, 226, 130), 1.8);
    }
    fillEllipse(painter, {238, 181}, 24, 6, QColor(255, 226, 130));
    painter.end();
    addGlow(image, {238, 178}, 90, {255, 170, 80}, 0.8);
    paintRidge(image, {468, 30, 70, {44, 26, 30}, {30, 18, 24}, 0.5}, random.seed());
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const StoneTones tones{{74, 48, 50}, {22, 16, 22}, {30, 20, 28}, {255, 150, 60}};
    drawCastle(painter, tones, {104, 496}, 170);
    for (int i = 0; i < 6; ++i)
        drawBareTree(painter, {i * 84.0 + 26, 560.0 + (i % 2) * 26}, random.range(110, 170),
                     {18, 12, 16}, random);
    painter.end();
    paintRidge(image, {566, 18, 60, {30, 18, 22}, {14, 10, 14}, 0.5}, random.seed());
    addFlakes(image, 190, 2.0, 0, {255, 164, 70}, random);
}

} // namespace

QImage paintBackground(Theme theme, quint32 seed)
{
    constexpr std::array<void (*)(QImage &, Random &), kThemes> kScenes = {
        paintHarbour, paintCliff, paintPass, paintDunes, paintMarsh, paintVolcano};
    Random random(seed + static_cast<quint32>(theme) * 7919U);
    QImage image(kMapWidth, kMapHeight, QImage::Format_RGB32);
    kScenes[static_cast<size_t>(theme)](image, random);
    finishScene(image, 0.5, 1, random.seed());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawFrame(painter, lookOf(theme), QRectF(0, 0, kMapWidth, kMapHeight), kPictureFrame);
    return image;
}

} // namespace art
