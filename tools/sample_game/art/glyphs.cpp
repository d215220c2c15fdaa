#include "tools/sample_game/art/glyphs.h"

#include "tools/sample_game/art/brush.h"

namespace art {

namespace {

// A flank's outline from the peak down to the foot, jagged.
QPolygonF flank(QPointF peak, QPointF foot, double roughness, Random &random)
{
    QPolygonF line = polygon({peak});
    constexpr int kParts = 5;
    for (int i = 1; i < kParts; ++i) {
        const QPointF p = peak + (foot - peak) * (static_cast<double>(i) / kParts);
        const double drop = random.range(-roughness, roughness) * 0.6;
        line.append(p + QPointF(random.range(-roughness, roughness), drop));
    }
    line.append(foot);
    return line;
}

QPolygonF joined(QPolygonF first, const QPolygonF &second)
{
    for (int i = second.size() - 1; i >= 0; --i)
        first.append(second[i]);
    return first;
}

void drawConifer(QPainter &painter, QPointF foot, double size, const QColor &light,
                 const QColor &dark)
{
    const double w = size * 0.36;
    const QPointF top = foot - QPointF(0, size);
    fillShape(painter, polygon({top, foot + QPointF(w, 0), foot + QPointF(-w, 0)}), dark);
    fillShape(painter,
              polygon({top, foot + QPointF(-w * 0.1, -size * 0.1), foot + QPointF(-w * 0.86, 0)}),
              light);
}

void drawRoundTree(QPainter &painter, QPointF foot, double size, const QColor &light,
                   const QColor &dark)
{
    const double r = size * 0.36;
    const QPointF crown = foot - QPointF(0, size * 0.58);
    strokeLine(painter, polygon({foot, crown}), dark, 1.1);
    fillEllipse(painter, crown, r * 1.08, r, dark);
    fillEllipse(painter, crown + QPointF(-r * 0.24, -r * 0.26), r * 0.68, r * 0.6, light);
}

void drawPalm(QPainter &painter, QPointF foot, double size, const QColor &light, const QColor &dark,
              Random &random)
{
    const QPointF top = foot + QPointF(random.range(-2, 2), -size * 0.85);
    strokeLine(painter, polygon({foot, top}), QColor(110, 76, 44), 1.2);
    for (const double side : {-1.0, -0.45, 0.4, 1.0}) {
        const QPointF tip = top + QPointF(side * size * 0.46, size * (side * side * 0.34 - 0.16));
        const QPointF bow = (top + tip) * 0.5 - QPointF(0, size * 0.14);
        strokeLine(painter, polygon({top, bow, tip}), side < 0 ? light : dark, 1.5);
    }
}

void drawReeds(QPainter &painter, QPointF foot, double size, const QColor &light,
               const QColor &dark, Random &random)
{
    for (int i = -2; i <= 2; ++i) {
        const QPointF root = foot + QPointF(i * 1.5, 0);
        const double tall = size * random.range(0.5, 0.85);
        const QPointF tip = root + QPointF(i * 0.9 + random.range(-0.8, 0.8), -tall);
        strokeLine(painter, polygon({root, tip}), i % 2 != 0 ? light : dark, 1.0);
        if (i % 2 == 0)
            strokeLine(painter, polygon({tip, tip + QPointF(0, 2)}), QColor(86, 58, 34), 1.5);
    }
}

void drawDeadTree(QPainter &painter, QPointF foot, double size, const QColor &dark, Random &random)
{
    const QPointF top = foot - QPointF(random.range(-1, 1), size * 0.8);
    strokeLine(painter, polygon({foot, top}), dark, 1.3);
    for (int i = 0; i < 3; ++i) {
        const QPointF fork = foot + (top - foot) * random.range(0.4, 0.9);
        const double side = i % 2 == 0 ? -1 : 1;
        strokeLine(
            painter,
            polygon({fork, fork + QPointF(side * size * 0.3, -size * random.range(0.1, 0.35))}),
            dark, 0.9);
    }
}

} // namespace

void drawMountain(QPainter &painter, const ThemeLook &look, QPointF foot, double size,
                  Random &random)
{
    const double half = size * random.range(0.52, 0.64);
    const QPointF peak = foot + QPointF(random.range(-0.1, 0.1) * size, -size);
    const QPointF left = foot - QPointF(half, 0);
    const QPointF right = foot + QPointF(half, 0);
    const QPolygonF leftSide = flank(peak, left, size * 0.035, random);
    const QPolygonF rightSide = flank(peak, right, size * 0.035, random);
    const QPolygonF crest = flank(peak, foot + QPointF(size * 0.06, 0), size * 0.09, random);
    fillShape(painter, joined(leftSide, crest), toColor(look.rock));
    fillShape(painter, joined(crest, rightSide), toColor(look.rockShade));
    const QPointF capLeft = peak + (left - peak) * 0.36;
    const QPointF capRight = peak + (right - peak) * 0.34;
    const QPointF capFoot = peak + (foot - peak) * 0.3;
    if (!look.fireMounts) {
        fillShape(
            painter,
            polygon({peak, capLeft, (capLeft + capFoot) * 0.5 - QPointF(0, size * 0.08), capFoot}),
            toColor(look.cap));
        fillShape(painter,
                  polygon({peak, capFoot, (capRight + capFoot) * 0.5 - QPointF(0, size * 0.07),
                           capRight}),
                  toColor(mix(look.cap, look.rockShade, 0.36)));
    }
    for (int i = 0; i < 3; ++i) {
        const QPointF from = peak + (right - peak) * random.range(0.35, 0.7);
        strokeLine(painter, polygon({from, from + QPointF(-size * 0.07, size * 0.16)}),
                   toColor(look.ink, 130), 0.8);
    }
    strokeLine(painter, leftSide, toColor(look.ink, 220), 1.0);
    strokeLine(painter, rightSide, toColor(look.ink, 235), 1.3);
}

void drawFireMount(QPainter &painter, const ThemeLook &look, QPointF foot, double size,
                   Random &random)
{
    for (int i = 5; i >= 0; --i) {
        const double r = size * (0.13 + 0.045 * i);
        fillEllipse(painter, foot + QPointF(size * 0.11 * i, -size * (0.98 + 0.13 * i)), r * 1.2,
                    r * 0.8, toColor(mix({70, 58, 60}, {168, 150, 144}, i / 6.0), 120));
    }
    drawMountain(painter, look, foot, size, random);
    const QPointF mouth = foot - QPointF(0, size * 0.88);
    fillEllipse(painter, mouth, size * 0.3, size * 0.3, QColor(255, 120, 30, 70));
    fillEllipse(painter, mouth, size * 0.15, size * 0.1, QColor(255, 196, 84));
    strokeLine(painter,
               polygon({mouth, mouth + QPointF(size * 0.08, size * 0.24),
                        mouth + QPointF(-size * 0.02, size * 0.42),
                        mouth + QPointF(size * 0.12, size * 0.68)}),
               toColor(look.cap), size * 0.07);
}

void drawHill(QPainter &painter, const ThemeLook &look, QPointF foot, double size)
{
    const QRectF round(foot.x() - size * 0.6, foot.y() - size * 0.42, size * 1.2, size * 0.84);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toColor(mix(look.high, look.low, 0.45), 170));
    painter.drawChord(round, 0, 180 * 16);
    painter.setBrush(toColor(look.rockShade, 80));
    painter.drawPie(round, 0, 62 * 16);
    painter.setPen(QPen(toColor(look.ink, 170), 0.9, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(round, 8 * 16, 160 * 16);
}

void drawDune(QPainter &painter, const ThemeLook &look, QPointF foot, double size)
{
    const QPointF left = foot - QPointF(size * 0.7, 0);
    const QPointF right = foot + QPointF(size * 0.7, 0);
    const QPointF top = foot + QPointF(size * 0.08, -size * 0.36);
    const QPointF tail = foot + QPointF(size * 0.16, 0);
    fillShape(painter, polygon({left, top, tail}), toColor(mix(look.shore, look.cap, 0.3), 190));
    fillShape(painter, polygon({tail, top, right}), toColor(look.high * 0.8, 190));
    strokeLine(painter, polygon({left, top, right}), toColor(look.ink, 120), 0.8);
}

void drawTree(QPainter &painter, const ThemeLook &look, QPointF foot, double size, Random &random)
{
    const Tone tint = mix(look.treeLight, look.treeDark, random.range(0.0, 0.35));
    const QColor light = toColor(tint);
    const QColor dark = toColor(look.treeDark);
    fillEllipse(painter, foot + QPointF(size * 0.18, 0), size * 0.36, size * 0.12,
                toColor(look.ink, 70));
    switch (look.trees) {
    case Trees::Round:
        return drawRoundTree(painter, foot, size, light, dark);
    case Trees::Conifer:
        return drawConifer(painter, foot, size * 1.1, light, dark);
    case Trees::SnowyConifer:
        drawConifer(painter, foot, size * 1.1, light, dark);
        return fillShape(
            painter,
            polygon({foot - QPointF(0, size * 1.1), foot + QPointF(size * 0.1, -size * 0.66),
                     foot + QPointF(-size * 0.16, -size * 0.62)}),
            toColor(look.cap));
    case Trees::Palm:
        return drawPalm(painter, foot, size * 1.15, light, dark, random);
    case Trees::Reed:
        return random.chance(0.35) ? drawReeds(painter, foot, size, light, dark, random)
                                   : drawRoundTree(painter, foot, size, light, dark);
    case Trees::Dead:
        return random.chance(0.6) ? drawDeadTree(painter, foot, size, dark, random)
                                  : drawConifer(painter, foot, size, light, dark);
    }
}

} // namespace art
