#include "tools/sample_game/art/scene_props.h"

#include "tools/sample_game/art/brush.h"

#include <QPainterPath>
#include <QtMath>

namespace art {

namespace {

// A stroke of a trunk or a branch, thinner towards its end.
void drawBranch(QPainter &painter, QPointF from, double angle, double length, double width,
                const QColor &colour, int depth, Random &random)
{
    const QPointF to = from + QPointF(qSin(angle), -qCos(angle)) * length;
    strokeLine(painter, polygon({from, to}), colour, width);
    if (depth == 0)
        return;
    for (const double side : {-1.0, 1.0}) {
        const double nextLength = length * random.range(0.6, 0.8);
        const double nextAngle = angle + side * random.range(0.25, 0.75);
        const QPointF fork = from + (to - from) * random.range(0.7, 1.0);
        drawBranch(painter, fork, nextAngle, nextLength, width * 0.62, colour, depth - 1, random);
    }
}

} // namespace

void drawPine(QPainter &painter, QPointF foot, double size, const Tone &tone, const Tone &lit,
              Random &random)
{
    strokeLine(painter, polygon({foot, foot - QPointF(0, size * 0.3)}), toColor(tone * 0.8),
               size * 0.05);
    constexpr int kTiers = 7;
    for (int i = 0; i < kTiers; ++i) {
        const double down = static_cast<double>(i + 1) / kTiers;
        const double y = foot.y() - size * (1 - 0.86 * down);
        const double half = size * 0.25 * down * random.range(0.85, 1.15);
        const QPointF top(foot.x(), y - size * 0.2);
        fillShape(painter,
                  polygon({top,
                           {foot.x() + half, y},
                           {foot.x() + half * 0.4, y - size * 0.03},
                           {foot.x(), y + size * 0.02},
                           {foot.x() - half * 0.5, y - size * 0.03},
                           {foot.x() - half, y}}),
                  toColor(tone));
        fillShape(painter,
                  polygon({top, {foot.x() - half * 0.15, y - size * 0.05}, {foot.x() - half, y}}),
                  toColor(mix(tone, lit, 0.75)));
    }
}

void drawBareTree(QPainter &painter, QPointF foot, double size, const Tone &tone, Random &random)
{
    drawBranch(painter, foot, random.range(-0.15, 0.15), size * 0.36, size * 0.07, toColor(tone), 6,
               random);
}

void drawPalmTree(QPainter &painter, QPointF foot, double size, Random &random)
{
    const double lean = random.range(-0.22, 0.22) * size;
    const auto along = [&](double t) { return foot + QPointF(lean * t * t, -size * t); };
    for (int i = 0; i < 14; ++i) {
        const double t = i / 14.0;
        strokeLine(painter, polygon({along(t), along(t + 0.085)}),
                   toColor(Tone{128, 86, 52} * (i % 2 == 0 ? 1.0 : 0.78)),
                   size * (0.07 - 0.03 * t));
    }
    const QPointF top = along(1);
    for (int i = 0; i < 11; ++i) {
        const double side = (i - 5) / 5.0;
        const double reach = size * random.range(0.42, 0.52);
        const QPointF tip = top + QPointF(side * reach, reach * (1.1 * side * side - 0.42));
        const QPointF bow = (top + tip) * 0.5 - QPointF(0, size * 0.16);
        QPolygonF rib;
        for (int k = 0; k <= 12; ++k) {
            const double t = k / 12.0;
            rib.append(top * ((1 - t) * (1 - t)) + bow * (2 * t * (1 - t)) + tip * (t * t));
        }
        const Tone leaf =
            mix({54, 92, 48}, {150, 164, 70}, random.unit() * (i % 2 == 0 ? 0.4 : 0.9));
        strokeLine(painter, rib, toColor(leaf * 0.8), size * 0.018);
        for (int k = 1; k < rib.size(); ++k)
            for (const double way : {-0.5, 0.6})
                strokeLine(painter,
                           polygon({rib[k], rib[k] + QPointF(way * size * 0.05, size * 0.085)}),
                           toColor(leaf), size * 0.014);
    }
}

void drawDragon(QPainter &painter, QPointF centre, double span, const Tone &tone)
{
    const auto at = [&](double x, double y) { return centre + QPointF(x, -y) * (span / 200); };
    QPainterPath wings;
    wings.moveTo(at(-8, 6));
    wings.quadTo(at(-34, 46), at(-62, 50));
    wings.quadTo(at(-88, 44), at(-100, 12));
    wings.quadTo(at(-84, 20), at(-76, 6));
    wings.quadTo(at(-62, 18), at(-52, -4));
    wings.quadTo(at(-40, 12), at(-26, -10));
    wings.quadTo(at(-16, 0), at(0, -8));
    wings.quadTo(at(18, 2), at(30, -8));
    wings.quadTo(at(42, 14), at(56, 0));
    wings.quadTo(at(66, 22), at(80, 12));
    wings.quadTo(at(86, 26), at(104, 20));
    wings.quadTo(at(92, 50), at(66, 56));
    wings.quadTo(at(38, 52), at(10, 8));
    wings.closeSubpath();
    QPainterPath body;
    body.moveTo(at(92, -10));
    body.lineTo(at(80, 1));
    body.lineTo(at(70, 9));
    body.lineTo(at(72, 1));
    body.quadTo(at(58, -2), at(44, -8));
    body.quadTo(at(22, -6), at(8, 8));
    body.lineTo(at(-8, 6));
    body.quadTo(at(-26, 0), at(-40, -22));
    body.quadTo(at(-50, -40), at(-70, -42));
    body.lineTo(at(-84, -34));
    body.lineTo(at(-80, -52));
    body.lineTo(at(-66, -50));
    body.quadTo(at(-42, -48), at(-30, -28));
    body.quadTo(at(-14, -14), at(4, -12));
    body.quadTo(at(24, -20), at(46, -20));
    body.quadTo(at(62, -18), at(70, -13));
    body.lineTo(at(88, -17));
    body.lineTo(at(78, -10));
    body.closeSubpath();
    painter.setPen(Qt::NoPen);
    painter.setBrush(toColor(tone));
    painter.drawPath(wings);
    painter.drawPath(body);
    fillShape(painter, polygon({at(0, -10), at(-8, -26), at(4, -22), at(8, -10)}), toColor(tone));
}

void drawRider(QPainter &painter, QPointF foot, double size, const Tone &tone)
{
    const auto at = [&](double x, double y) { return foot + QPointF(x, -y) * (size / 100); };
    const QColor colour = toColor(tone);
    QPainterPath horse;
    horse.moveTo(at(-36, 52));
    horse.quadTo(at(-10, 60), at(18, 54));
    horse.lineTo(at(34, 80));
    horse.lineTo(at(38, 86));
    horse.lineTo(at(40, 78));
    horse.lineTo(at(54, 66));
    horse.lineTo(at(50, 60));
    horse.lineTo(at(40, 64));
    horse.quadTo(at(34, 44), at(24, 32));
    horse.lineTo(at(-28, 32));
    horse.quadTo(at(-40, 38), at(-36, 52));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPath(horse);
    for (const double x : {-30.0, -20.0, 16.0, 24.0})
        strokeLine(painter, polygon({at(x, 36), at(x + (x > 0 ? 3 : -4), 18), at(x, 0)}), colour,
                   size * 0.06);
    strokeLine(painter, polygon({at(-36, 50), at(-48, 40), at(-50, 20)}), colour, size * 0.06);
    fillShape(painter, polygon({at(-18, 48), at(-10, 92), at(6, 92), at(8, 50)}), colour);
    fillEllipse(painter, at(-2, 100), size * 0.08, size * 0.09, colour);
    strokeLine(painter, polygon({at(14, 30), at(18, 150)}), colour, size * 0.03);
    fillShape(painter, polygon({at(18, 150), at(-22, 142), at(-4, 134), at(-20, 126), at(17, 122)}),
              colour);
}

void drawBanner(QPainter &painter, QPointF foot, double height, const Tone &cloth, const Tone &sign,
                double wave)
{
    const QPointF top = foot - QPointF(0, height);
    strokeLine(painter, polygon({foot, top}), QColor(58, 38, 24), height * 0.022);
    const double long_ = height * 0.5;
    const double drop = height * 0.34;
    const auto edge = [&](double t, double down) {
        return top + QPointF(t * long_, down + height * 0.035 * qSin(wave + t * 5.2) * (0.3 + t));
    };
    const auto taper = [&](double t) { return drop * 0.26 * t * t; };
    constexpr int kParts = 28;
    for (int i = 0; i < kParts; ++i) {
        const double a = static_cast<double>(i) / kParts;
        const double b = static_cast<double>(i + 1) / kParts + 0.006;
        const double light = 0.86 + 0.3 * qCos(wave + a * 5.2);
        fillShape(painter,
                  polygon({edge(a, taper(a)), edge(b, taper(b)), edge(b, drop - taper(b)),
                           edge(a, drop - taper(a))}),
                  toColor(cloth * light));
        fillShape(painter,
                  polygon({edge(a, drop * 0.42), edge(b, drop * 0.42), edge(b, drop * 0.58),
                           edge(a, drop * 0.58)}),
                  toColor(sign * light));
    }
    fillEllipse(painter, edge(0.34, drop * 0.5), drop * 0.24, drop * 0.24, toColor(sign));
    fillEllipse(painter, edge(0.34, drop * 0.5), drop * 0.14, drop * 0.14, toColor(cloth));
    fillEllipse(painter, top, height * 0.022, height * 0.022, QColor(226, 186, 92));
}

void drawLantern(QPainter &painter, QPointF place, double size)
{
    const QColor iron(38, 30, 26);
    fillShape(painter, boxOf(place.x() - size * 0.3, place.y() + size * 0.5, size * 0.6, size),
              QColor(255, 222, 128));
    fillEllipse(painter, place, size * 0.16, size * 0.34, QColor(255, 250, 220));
    strokeLine(painter, boxOf(place.x() - size * 0.3, place.y() + size * 0.5, size * 0.6, size),
               iron, size * 0.1);
    fillShape(painter,
              polygon({place + QPointF(-size * 0.42, -size * 0.5), place + QPointF(0, -size * 0.95),
                       place + QPointF(size * 0.42, -size * 0.5)}),
              iron);
    fillShape(painter,
              boxOf(place.x() - size * 0.4, place.y() + size * 0.66, size * 0.8, size * 0.2), iron);
}

void drawCrown(QPainter &painter, QPointF foot, double width)
{
    const auto at = [&](double x, double y) { return foot + QPointF(x, -y) * (width / 100); };
    QPainterPath path;
    path.moveTo(at(-44, 4));
    path.lineTo(at(-54, 52));
    path.lineTo(at(-28, 30));
    path.lineTo(at(-20, 66));
    path.lineTo(at(0, 34));
    path.lineTo(at(20, 66));
    path.lineTo(at(28, 30));
    path.lineTo(at(54, 52));
    path.lineTo(at(44, 4));
    path.quadTo(at(0, -10), at(-44, 4));
    QLinearGradient gold(at(-54, 0), at(54, 0));
    gold.setColorAt(0.0, QColor(140, 88, 22));
    gold.setColorAt(0.28, QColor(255, 226, 122));
    gold.setColorAt(0.5, QColor(212, 152, 46));
    gold.setColorAt(0.72, QColor(255, 214, 104));
    gold.setColorAt(1.0, QColor(118, 70, 18));
    painter.setPen(
        QPen(QColor(74, 42, 10), width * 0.012, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(gold);
    painter.drawPath(path);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(96, 56, 14), width * 0.02));
    for (const double lift : {18.0, 2.0}) {
        QPainterPath rim;
        rim.moveTo(at(-45, lift + 3));
        rim.quadTo(at(0, lift - 11), at(45, lift + 3));
        painter.drawPath(rim);
    }
    const QColor gems[] = {
        {198, 30, 44}, {36, 96, 206}, {40, 164, 84}, {36, 96, 206}, {198, 30, 44}};
    for (int i = 0; i < 5; ++i) {
        const double x = -34 + 17.0 * i;
        const double y = 6 + 0.0034 * x * x;
        fillEllipse(painter, at(x, y), width * 0.042, width * 0.05, gems[i]);
        fillEllipse(painter, at(x - 1.4, y + 2), width * 0.012, width * 0.014,
                    QColor(255, 255, 255, 220));
    }
    for (const QPointF &tip :
         {QPointF(-54, 54), QPointF(-20, 69), QPointF(20, 69), QPointF(54, 54)})
        fillEllipse(painter, at(tip.x(), tip.y()), width * 0.036, width * 0.036,
                    QColor(255, 240, 214));
}

void drawFlame(QPainter &painter, QPointF foot, double size, Random &random)
{
    const Tone tones[] = {{214, 60, 22}, {255, 140, 36}, {255, 214, 96}, {255, 248, 206}};
    double scale = 1;
    for (const Tone &tone : tones) {
        for (int i = -2; i <= 2; ++i) {
            const double tall = size * scale * (1 - 0.26 * qAbs(i)) * random.range(0.85, 1.1);
            const double x = foot.x() + i * size * 0.15 * scale;
            const double lean = random.range(-0.1, 0.1) * size;
            fillShape(painter,
                      polygon({{x - size * 0.15 * scale, foot.y()},
                               {x - size * 0.13 * scale, foot.y() - tall * 0.4},
                               {x + lean, foot.y() - tall},
                               {x + size * 0.13 * scale, foot.y() - tall * 0.36},
                               {x + size * 0.15 * scale, foot.y()}}),
                      toColor(tone, 210));
        }
        scale *= 0.70;
    }
}

} // namespace art
