// Dunes, a marsh and a fire mount.
#include "tools/sample_game/art/backgrounds.h"

#include "tools/sample_game/art/brush.h"
#include "tools/sample_game/art/noise.h"
#include "tools/sample_game/art/scene_props.h"
#include "tools/sample_game/art/scene_tools.h"

namespace art {

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
    for (int i = 0; i < 9; ++i) {
        const double size = random.range(90, 140);
        drawBareTree(painter, {i * 56.0 + random.range(-14, 14), 362}, size, {46, 64, 62}, random);
    }
    const StoneTones hut{{84, 78, 62}, {48, 50, 46}, {62, 66, 48}, {255, 214, 110}};
    drawHouse(painter, hut, {246, 352}, 66);
    for (const double x : {222.0, 246.0, 270.0})
        strokeLine(painter, polygon({{x, 350}, {x, 372}}), QColor(40, 42, 38), 4);
    for (int i = 0; i < 4; ++i) {
        const double size = random.range(260, 330);
        drawBareTree(painter, {(i % 2) * 400.0 + 20 + random.range(-18, 18), 376}, size,
                     {28, 38, 38}, random);
    }
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
        const double width = random.range(1.4, 2.8);
        strokeLine(painter,
                   polygon({{x, y + 30}, {x + lean * 0.4, y - tall * 0.5}, {x + lean, y - tall}}),
                   toColor(mix({20, 32, 26}, {70, 88, 50}, random.unit())), width);
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
        fillEllipse(painter, QPointF(240 + i * 4, 176 - i * 7) + random.place({-12, -9}, {12, 9}),
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

} // namespace art
