// Movie stills of gates and halls.
#include "tools/sample_game/art/scenes.h"

#include "tools/sample_game/art/brush.h"
#include "tools/sample_game/art/scene_props.h"
#include "tools/sample_game/art/scene_tools.h"

#include <QPainterPath>

namespace art {

namespace {

// Courses of stones over a part of a wall.
void layStones(QPainter &painter, const QRectF &wall, const Tone &tone, double course,
               Random &random)
{
    for (int row = 0; row * course < wall.height(); ++row)
        for (int i = 0; (2 * i - row % 2) * course < wall.width(); ++i) {
            const double x = wall.left() + (2 * i - row % 2) * course;
            const double y = wall.top() + row * course;
            fillShape(painter,
                      polygon({{x + 0.8, y + 0.8},
                               {x + course * 2 - 0.8, y + 0.8},
                               {x + course * 2 - 0.8, y + course - 0.8},
                               {x + 0.8, y + course - 0.8}}),
                      toColor(tone * random.range(0.86, 1.12)));
        }
}

// Three tall windows of coloured glass.
void drawGlassWindows(QPainter &painter, double w, double h, Random &random)
{
    for (int i = -1; i <= 1; ++i) {
        const double x = w * (0.5 + 0.17 * i);
        const double half = w * (i == 0 ? 0.056 : 0.044);
        const QRectF glass(x - half, h * 0.16, half * 2, h * (i == 0 ? 0.44 : 0.38));
        painter.setPen(QPen(QColor(50, 40, 44), 5));
        painter.setBrush(QColor(226, 224, 190));
        painter.drawPie(glass.adjusted(0, -half, 0, half - glass.height() + half), 0, 180 * 16);
        painter.drawRect(glass);
        const QColor colours[] = {{196, 60, 52}, {62, 106, 190}, {230, 190, 84}, {70, 150, 96}};
        for (int row = 0; row < 8; ++row)
            for (int k = 0; k < 3; ++k)
                fillShape(painter,
                          QPolygonF(QRectF(glass.left() + 2 + k * (glass.width() - 2) / 3,
                                           glass.top() + 2 + row * glass.height() / 8,
                                           glass.width() / 3 - 3, glass.height() / 8 - 3)),
                          colours[(row + k * 3 + random.below(2)) % 4]);
    }
}

void drawThrone(QPainter &painter, QPointF foot, double size)
{
    const auto at = [&](double x, double y) { return foot + QPointF(x, -y) * size; };
    inkShape(painter,
             polygon({at(-0.09, 0), at(-0.09, 0.26), at(-0.06, 0.32), at(0, 0.37), at(0.06, 0.32),
                      at(0.09, 0.26), at(0.09, 0)}),
             QColor(196, 146, 58), QColor(76, 48, 20), 2);
    fillShape(
        painter,
        polygon({at(-0.065, 0.1), at(-0.06, 0.27), at(0, 0.31), at(0.06, 0.27), at(0.065, 0.1)}),
        QColor(150, 30, 42));
    inkShape(painter, polygon({at(-0.1, 0.06), at(-0.1, 0.1), at(0.1, 0.1), at(0.1, 0.06)}),
             QColor(176, 40, 50), QColor(76, 48, 20), 1.4);
    for (const double side : {-1.0, 1.0})
        inkShape(painter,
                 polygon({at(side * 0.075, 0), at(side * 0.075, 0.17), at(side * 0.115, 0.17),
                          at(side * 0.115, 0)}),
                 QColor(214, 166, 74), QColor(76, 48, 20), 1.4);
}

} // namespace

void paintCastleGate(QImage &image, Random &random)
{
    const double w = image.width();
    const double h = image.height();
    paintSky(image, {{72, 118, 176}, {176, 200, 212}, {242, 226, 190}}, h * 0.7, random.seed());
    addClouds(image, 0, h * 0.5, {250, 246, 238}, 0.55, random.seed());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const StoneTones tones{{196, 178, 150}, {92, 82, 84}, {150, 56, 44}, {52, 40, 40}};
    drawTower(painter, tones, {w * 0.5, h * 0.6}, w * 0.12, h * 0.44, true);
    const Tone wall = {166, 150, 130};
    layStones(painter, {0, h * 0.34, w, h * 0.5}, wall, h * 0.035, random);
    for (int i = 0; i < 14; ++i)
        layStones(painter, {w * 0.075 * i, h * 0.29, w * 0.035, h * 0.05}, wall, h * 0.035, random);
    drawArch(painter, {{206, 190, 162}, {118, 104, 98}, {}, {}}, {w * 0.5, h * 0.86}, w * 0.36,
             h * 0.56);
    // Behind the arch: dusk in the court and a portcullis half raised.
    QLinearGradient court(0, h * 0.4, 0, h * 0.86);
    court.setColorAt(0, QColor(46, 34, 36));
    court.setColorAt(1, QColor(150, 108, 66));
    painter.setBrush(court);
    painter.setPen(Qt::NoPen);
    const double inner = w * 0.36 * 0.56;
    painter.drawRect(QRectF(w * 0.5 - inner / 2, h * 0.55, inner, h * 0.31));
    painter.drawPie(QRectF(w * 0.5 - inner / 2, h * 0.55 - inner / 2, inner, inner), 0, 180 * 16);
    for (int i = 1; i < 8; ++i) {
        const double x = w * 0.5 - inner / 2 + inner * i / 8;
        strokeLine(painter, polygon({{x, h * 0.42}, {x, h * 0.63}}), QColor(34, 26, 26), 3);
        fillShape(painter, polygon({{x - 3, h * 0.63}, {x + 3, h * 0.63}, {x, h * 0.66}}),
                  QColor(34, 26, 26));
    }
    for (const double y : {0.5, 0.56, 0.62})
        strokeLine(painter, polygon({{w * 0.5 - inner / 2, h * y}, {w * 0.5 + inner / 2, h * y}}),
                   QColor(34, 26, 26), 2.4);
    for (const double x : {0.22, 0.78}) {
        drawTower(painter, tones, {w * x, h * 0.9}, w * 0.17, h * 0.68, false);
        fillShape(painter,
                  polygon({{w * x - 16, h * 0.40},
                           {w * x + 12, h * 0.40},
                           {w * x + 12, h * 0.64},
                           {w * x - 2, h * 0.60},
                           {w * x - 16, h * 0.64}}),
                  QColor(160, 36, 40));
        fillEllipse(painter, {w * x - 2, h * 0.49}, 8, 8, QColor(240, 200, 96));
    }
    fillShape(painter, polygon({{0, h * 0.84}, {w, h * 0.84}, {w, h}, {0, h}}),
              QColor(96, 112, 66));
    fillShape(painter,
              polygon({{w * 0.42, h * 0.85}, {w * 0.58, h * 0.85}, {w * 0.8, h}, {w * 0.2, h}}),
              QColor(178, 152, 108));
    drawRider(painter, {w * 0.45, h * 0.95}, h * 0.17, {52, 40, 40});
    painter.end();
    addGlow(image, {w * 0.5, h * 0.8}, h * 0.24, {255, 190, 100}, 0.4);
}

void paintThroneHall(QImage &image, Random &random)
{
    const double w = image.width();
    const double h = image.height();
    paintPlain(image, {58, 46, 54}, {92, 72, 62}, random.seed());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    layStones(painter, {0, 0, w, h * 0.72}, {98, 82, 80}, h * 0.06, random);
    drawGlassWindows(painter, w, h, random);
    fillShape(painter, polygon({{w * 0.2, h * 0.7}, {w * 0.8, h * 0.7}, {w, h}, {0, h}}),
              QColor(120, 98, 82));
    for (int i = -6; i <= 6; ++i)
        strokeLine(painter, polygon({{w * (0.5 + i * 0.05), h * 0.7}, {w * (0.5 + i * 0.14), h}}),
                   QColor(70, 54, 50), 1.2);
    fillShape(painter,
              polygon({{w * 0.44, h * 0.7}, {w * 0.56, h * 0.7}, {w * 0.68, h}, {w * 0.32, h}}),
              QColor(156, 34, 40));
    for (const double edge : {-1.0, 1.0})
        strokeLine(painter,
                   polygon({{w * (0.5 + edge * 0.053), h * 0.7}, {w * (0.5 + edge * 0.165), h}}),
                   QColor(226, 178, 84), 2.4);
    for (int i = 0; i < 3; ++i)
        fillShape(painter,
                  QPolygonF(QRectF(w * (0.36 + 0.025 * i), h * (0.735 - 0.035 * i),
                                   w * (0.28 - 0.05 * i), h * 0.036)),
                  toColor(Tone{150, 128, 108} * (1.0 - 0.1 * i)));
    drawThrone(painter, {w * 0.5, h * 0.665}, h);
    const StoneTones pillar{{176, 152, 134}, {58, 46, 52}, {}, {}};
    for (const double x : {0.22, 0.78})
        drawColumn(painter, pillar, {w * x, h * 0.8}, h * 0.84, false);
    for (const double x : {0.07, 0.93}) {
        drawColumn(painter, pillar, {w * x, h * 1.02}, h * 1.08, false);
        drawFlame(painter, {w * x, h * 0.42}, h * 0.1, random);
    }
    painter.end();
    for (const double x : {0.07, 0.93})
        addGlow(image, {w * x, h * 0.36}, h * 0.4, {255, 160, 70}, 0.6);
    addGlow(image, {w * 0.5, h * 0.4}, h * 0.5, {255, 240, 200}, 0.35);
}

void paintCrownOnCushion(QImage &image, Random &random)
{
    const double w = image.width();
    const double h = image.height();
    paintPlain(image, {34, 22, 40}, {64, 30, 44}, random.seed());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = -6; i <= 6; ++i) {
        const double x = w * (0.5 + i * 0.085);
        fillShape(painter, polygon({{x - 17, 0}, {x + 17, 0}, {x + 22, h}, {x - 12, h}}),
                  QColor(90, 20, 34, 220));
        fillShape(painter, polygon({{x - 12, 0}, {x - 2, 0}, {x + 3, h}, {x - 6, h}}),
                  QColor(150, 40, 52, 160));
    }
    painter.end();
    addGlow(image, {w * 0.5, h * 0.42}, h * 0.62, {255, 196, 120}, 0.75);
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    fillShape(painter,
              polygon({{w * 0.14, h * 0.88}, {w * 0.86, h * 0.88}, {w * 0.94, h}, {w * 0.06, h}}),
              QColor(120, 104, 92));
    fillShape(painter,
              polygon({{w * 0.14, h * 0.88},
                       {w * 0.86, h * 0.88},
                       {w * 0.84, h * 0.85},
                       {w * 0.16, h * 0.85}}),
              QColor(170, 150, 130));
    QRadialGradient velvet(w * 0.46, h * 0.7, w * 0.32);
    velvet.setColorAt(0, QColor(196, 46, 66));
    velvet.setColorAt(1, QColor(82, 10, 32));
    painter.setBrush(velvet);
    painter.setPen(QPen(QColor(222, 172, 76), 3));
    painter.drawPath([&] {
        QPainterPath path;
        path.moveTo(w * 0.2, h * 0.74);
        path.quadTo(w * 0.5, h * 0.66, w * 0.8, h * 0.74);
        path.quadTo(w * 0.84, h * 0.8, w * 0.8, h * 0.87);
        path.quadTo(w * 0.5, h * 0.93, w * 0.2, h * 0.87);
        path.quadTo(w * 0.16, h * 0.8, w * 0.2, h * 0.74);
        return path;
    }());
    for (const double x : {0.185, 0.815})
        for (int i = -2; i <= 2; ++i)
            strokeLine(painter, polygon({{w * x, h * 0.86}, {w * x + i * 3, h * 0.95}}),
                       QColor(232, 186, 88), 1.8);
    fillEllipse(painter, {w * 0.5, h * 0.735}, w * 0.19, h * 0.035, QColor(50, 4, 22, 150));
    drawCrown(painter, {w * 0.5, h * 0.72}, w * 0.42);
    painter.end();
    for (int i = 0; i < 60; ++i) {
        const double strength = random.range(0.2, 0.7);
        const double radius = random.range(1, 3.4);
        addGlow(image, {w * random.unit(), h * random.range(0, 0.8)}, radius, {255, 230, 170},
                strength);
    }
    for (const QPointF &p : {QPointF(0.413, 0.335), QPointF(0.585, 0.335), QPointF(0.5, 0.52)})
        addGlow(image, {w * p.x(), h * p.y()}, h * 0.07, {255, 255, 230}, 0.8);
}

} // namespace art
