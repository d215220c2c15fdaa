// Castles, houses and ruins; the rest of the props is in scene_props.cpp.
#include "tools/sample_game/art/scene_props.h"

#include "tools/sample_game/art/brush.h"

#include <QPainterPath>

namespace art {

namespace {

void drawBattlements(QPainter &painter, const StoneTones &tones, double left, double top,
                     double width, double tooth)
{
    for (int i = 0; i * tooth * 1.8 + tooth <= width + 0.1; ++i) {
        const double x = i * tooth * 1.8;
        fillShape(painter, boxOf(left + x, top + 0.5, tooth, tooth * 1.1),
                  toColor(x < width * 0.55 ? tones.light : tones.shade));
    }
}

void drawWindow(QPainter &painter, const StoneTones &tones, double x, double y, double size)
{
    constexpr double kLit = 200; // only lit windows have a halo
    if (tones.window.r > kLit)
        fillEllipse(painter, {x, y}, size * 1.8, size * 2.2, toColor(tones.window, 50));
    fillShape(painter, boxOf(x - size / 2, y + size, size, size * 2), toColor(tones.window));
}

} // namespace

void drawTower(QPainter &painter, const StoneTones &tones, QPointF foot, double width,
               double height, bool spired)
{
    const double left = foot.x() - width / 2;
    const double top = foot.y() - height;
    fillShape(painter, boxOf(left, foot.y(), width, height), toColor(tones.light));
    fillShape(painter, boxOf(left + width * 0.5, foot.y(), width * 0.5, height),
              toColor(mix(tones.light, tones.shade, 0.6)));
    fillShape(painter, boxOf(left + width * 0.75, foot.y(), width * 0.25, height),
              toColor(tones.shade));
    fillShape(painter, boxOf(left - width * 0.1, top + width * 0.3, width * 1.2, width * 0.3),
              toColor(mix(tones.light, tones.shade, 0.5)));
    if (spired) {
        const QPointF tip(foot.x(), top - width * 1.5);
        fillShape(painter, polygon({{left - width * 0.16, top}, tip, {left + width * 1.16, top}}),
                  toColor(tones.roof));
        fillShape(painter,
                  polygon({{foot.x() + width * 0.1, top}, tip, {left + width * 1.16, top}}),
                  toColor(tones.roof * 0.66));
    } else {
        drawBattlements(painter, tones, left - width * 0.1, top, width * 1.2, width * 0.2);
    }
    drawWindow(painter, tones, foot.x() - width * 0.1, top + height * 0.24, width * 0.13);
    if (height > width * 2.6)
        drawWindow(painter, tones, foot.x() - width * 0.1, top + height * 0.52, width * 0.13);
}

void drawCastle(QPainter &painter, const StoneTones &tones, QPointF foot, double size)
{
    const auto at = [&](double x) { return foot + QPointF(x * size, 0); };
    drawTower(painter, tones, at(-0.02), size * 0.17, size * 0.82, true);
    drawTower(painter, tones, at(-0.2), size * 0.13, size * 0.6, true);
    drawTower(painter, tones, at(0.18), size * 0.14, size * 0.66, true);
    fillShape(painter, boxOf(foot.x() - size * 0.22, foot.y(), size * 0.42, size * 0.42),
              toColor(tones.light));
    fillShape(painter, boxOf(foot.x() + size * 0.06, foot.y(), size * 0.14, size * 0.42),
              toColor(tones.shade));
    drawBattlements(painter, tones, foot.x() - size * 0.22, foot.y() - size * 0.42, size * 0.42,
                    size * 0.035);
    for (const double x : {-0.12, -0.02, 0.09})
        drawWindow(painter, tones, foot.x() + x * size, foot.y() - size * 0.33, size * 0.018);
    fillShape(painter, boxOf(foot.x() - size * 0.46, foot.y(), size * 0.92, size * 0.24),
              toColor(mix(tones.light, tones.shade, 0.25)));
    drawBattlements(painter, tones, foot.x() - size * 0.46, foot.y() - size * 0.24, size * 0.92,
                    size * 0.035);
    drawTower(painter, tones, at(-0.44), size * 0.14, size * 0.42, true);
    drawTower(painter, tones, at(0.44), size * 0.14, size * 0.38, true);
    fillShape(painter, boxOf(foot.x() - size * 0.05, foot.y(), size * 0.1, size * 0.1),
              toColor(tones.shade * 0.4));
    fillEllipse(painter, foot - QPointF(0, size * 0.1), size * 0.05, size * 0.05,
                toColor(tones.shade * 0.4));
}

void drawHouse(QPainter &painter, const StoneTones &tones, QPointF foot, double size)
{
    const double left = foot.x() - size * 0.5;
    fillShape(painter, boxOf(left, foot.y(), size, size * 0.62), toColor(tones.light));
    fillShape(painter, boxOf(left + size * 0.68, foot.y(), size * 0.32, size * 0.62),
              toColor(tones.shade));
    const double eaves = foot.y() - size * 0.58;
    fillShape(painter,
              polygon({{left - size * 0.1, eaves},
                       {left + size * 0.2, eaves - size * 0.48},
                       {left + size * 0.8, eaves - size * 0.48},
                       {left + size * 1.1, eaves}}),
              toColor(tones.roof));
    fillShape(painter,
              polygon({{left + size * 0.68, eaves},
                       {left + size * 0.8, eaves - size * 0.48},
                       {left + size * 1.1, eaves}}),
              toColor(tones.roof * 0.7));
    drawWindow(painter, tones, left + size * 0.24, foot.y() - size * 0.32, size * 0.11);
    drawWindow(painter, tones, left + size * 0.5, foot.y() - size * 0.32, size * 0.11);
}

void drawColumn(QPainter &painter, const StoneTones &tones, QPointF foot, double height,
                bool broken)
{
    const double width = height * 0.14;
    const double left = foot.x() - width / 2;
    fillShape(painter, boxOf(left - width * 0.3, foot.y(), width * 1.6, width * 0.4),
              toColor(tones.light));
    QPolygonF shaft = boxOf(left, foot.y() - width * 0.4, width, height - width * 0.8);
    if (broken)
        shaft[2] += QPointF(0, width * 1.1);
    fillShape(painter, shaft, toColor(tones.light));
    for (const double groove : {0.3, 0.52, 0.7, 0.86})
        strokeLine(
            painter,
            polygon({{left + width * groove, foot.y() - width * 0.5},
                     {left + width * groove, foot.y() - height + width * (broken ? 1.6 : 0.7)}}),
            toColor(tones.shade, static_cast<int>(230 * groove)), width * 0.12);
    if (!broken)
        fillShape(
            painter,
            boxOf(left - width * 0.3, foot.y() - height + width * 0.5, width * 1.6, width * 0.5),
            toColor(mix(tones.light, tones.shade, 0.2)));
}

void drawArch(QPainter &painter, const StoneTones &tones, QPointF foot, double width, double height)
{
    QPainterPath path;
    path.addRect(foot.x() - width / 2, foot.y() - height, width, height);
    QPainterPath hole;
    hole.setFillRule(Qt::WindingFill);
    const double inner = width * 0.56;
    hole.addRect(foot.x() - inner / 2, foot.y() - height * 0.55, inner, height * 0.56);
    hole.addEllipse(foot - QPointF(0, height * 0.55), inner / 2, inner / 2);
    QLinearGradient gradient(foot.x() - width / 2, 0, foot.x() + width / 2, 0);
    gradient.setColorAt(0, toColor(tones.light));
    gradient.setColorAt(1, toColor(tones.shade));
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawPath(path.subtracted(hole));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(toColor(tones.shade, 120), width * 0.012));
    for (int i = 1; i < 9; ++i) {
        const double y = foot.y() - height * i / 9;
        for (const double side : {-1.0, 1.0})
            painter.drawLine(QPointF(foot.x() + side * width * 0.5, y),
                             QPointF(foot.x() + side * width * (i < 6 ? 0.29 : 0.05), y));
    }
}

} // namespace art
