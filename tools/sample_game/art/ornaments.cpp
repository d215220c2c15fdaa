#include "tools/sample_game/art/ornaments.h"

#include "tools/sample_game/art/brush.h"
#include "tools/sample_game/art/noise.h"

#include <QtMath>

namespace art {

namespace {

constexpr Tone kGold = {206, 164, 84};
constexpr Tone kGoldLight = {248, 222, 150};
constexpr Tone kGoldDark = {104, 70, 30};
constexpr Tone kWood = {74, 46, 28};

QPointF onCircle(QPointF centre, double radius, double turns)
{
    const double angle = turns * 2 * M_PI;
    return centre + QPointF(radius * qSin(angle), -radius * qCos(angle));
}

void drawRing(QPainter &painter, const QRectF &rect, const Tone &tone, double width)
{
    painter.setPen(QPen(toColor(tone), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect);
}

// The scale bar that runs round a map: light and dark fields in turn.
void drawScale(QPainter &painter, const QRectF &rect, double width)
{
    painter.setPen(Qt::NoPen);
    const auto run = [&](bool across, double from, double to, double other) {
        const int fields = 2 * static_cast<int>((to - from) / 44) + 1;
        const double step = (to - from) / fields;
        for (int i = 0; i < fields; ++i) {
            painter.setBrush(toColor(i % 2 == 0 ? Tone{232, 208, 158} : Tone{92, 58, 34}));
            const double at = from + i * step;
            painter.drawRect(across ? QRectF(at, other, step, width)
                                    : QRectF(other, at, width, step));
        }
    };
    run(true, rect.left(), rect.right(), rect.top());
    run(true, rect.left(), rect.right(), rect.bottom() - width);
    run(false, rect.top(), rect.bottom(), rect.left());
    run(false, rect.top(), rect.bottom(), rect.right() - width);
}

void drawCorner(QPainter &painter, const ThemeLook &look, QPointF centre, double size)
{
    const QRectF plate(centre.x() - size, centre.y() - size, 2 * size, 2 * size);
    painter.setPen(QPen(toColor(kGoldDark), 1.2));
    painter.setBrush(toColor(kGold));
    painter.drawRoundedRect(plate, 3, 3);
    inkShape(painter,
             polygon({centre - QPointF(0, size * 0.86), centre + QPointF(size * 0.86, 0),
                      centre + QPointF(0, size * 0.86), centre - QPointF(size * 0.86, 0)}),
             toColor(kGoldLight), toColor(kGoldDark), 1.0);
    fillEllipse(painter, centre, size * 0.42, size * 0.42, toColor(kGoldDark));
    fillEllipse(painter, centre, size * 0.34, size * 0.34, toColor(look.roof));
    fillEllipse(painter, centre - QPointF(size * 0.1, size * 0.12), size * 0.1, size * 0.1,
                QColor(255, 255, 255, 200));
}

void drawPoint(QPainter &painter, QPointF centre, double radius, double turns, const Tone &light,
               const Tone &dark, const QColor &ink)
{
    const QPointF tip = onCircle(centre, radius, turns);
    const QPointF left = onCircle(centre, radius * 0.2, turns - 0.125);
    const QPointF right = onCircle(centre, radius * 0.2, turns + 0.125);
    inkShape(painter, polygon({centre, left, tip}), toColor(light), ink, 0.7);
    inkShape(painter, polygon({centre, right, tip}), toColor(dark), ink, 0.7);
}

} // namespace

void drawFrame(QPainter &painter, const ThemeLook &look, const QRectF &outer, double width)
{
    const auto inset = [&](double by) { return outer.adjusted(by, by, -by, -by); };
    for (int i = 0; i + 0.5 < width; ++i) {
        const double round = qSin(((i + 0.5) / width) * M_PI);
        drawRing(painter, inset(i + 0.5), mix(kWood * 0.55, kWood * 1.5, round), 1.4);
    }
    drawRing(painter, inset(0.7), kGoldDark, 1.4);
    drawRing(painter, inset(2.2), kGold, 1.6);
    drawScale(painter, inset(width * 0.40), width * 0.26);
    drawRing(painter, inset(width * 0.40), kGoldDark, 0.8);
    drawRing(painter, inset(width * 0.66), kGoldDark, 0.8);
    drawRing(painter, inset(width - 2.6), kGoldLight, 1.0);
    drawRing(painter, inset(width - 1.6), kGold, 1.2);
    drawRing(painter, inset(width - 0.4), kGoldDark * 0.6, 1.2);
    const double middle = width / 2;
    for (const double x : {outer.left() + middle, outer.right() - middle})
        for (const double y : {outer.top() + middle, outer.bottom() - middle})
            drawCorner(painter, look, {x, y}, width * 0.56);
}

void drawCompass(QPainter &painter, const ThemeLook &look, QPointF centre, double radius)
{
    const QColor ink = toColor(look.ink);
    fillEllipse(painter, centre, radius * 0.80, radius * 0.80, QColor(244, 226, 180, 70));
    painter.setBrush(Qt::NoBrush);
    for (const double ring : {0.80, 0.73, 0.34}) {
        painter.setPen(QPen(toColor(mix(look.ink, kGold, 0.55)), ring > 0.78 ? 1.6 : 0.8));
        painter.drawEllipse(centre, radius * ring, radius * ring);
    }
    for (int i = 0; i < 32; ++i)
        strokeLine(painter,
                   polygon({onCircle(centre, radius * (i % 2 == 0 ? 0.73 : 0.76), i / 32.0),
                            onCircle(centre, radius * 0.80, i / 32.0)}),
                   ink, 0.7);
    for (int i = 0; i < 4; ++i)
        drawPoint(painter, centre, radius * 0.66, 0.125 + i * 0.25, kGoldLight, kGoldDark, ink);
    for (int i = 0; i < 4; ++i)
        drawPoint(painter, centre, radius, i * 0.25, {250, 240, 214},
                  i == 0 ? Tone{178, 44, 36} : Tone{82, 54, 36}, ink);
    fillEllipse(painter, centre, radius * 0.09, radius * 0.09, toColor(kGold));
}

void drawShip(QPainter &painter, const ThemeLook &look, QPointF waterline, double size)
{
    const auto at = [&](double x, double y) { return waterline + QPointF(x, -y) * (size / 100); };
    const QColor ink = toColor(look.ink);
    for (const double x : {-22.0, 16.0}) {
        const double tall = x < 0 ? 82 : 96;
        strokeLine(painter, polygon({at(x, 10), at(x, tall + 8)}), ink, 1.1);
        inkShape(painter,
                 polygon({at(x - 22, 26), at(x - 16, 44), at(x - 20, tall - 4), at(x + 14, tall),
                          at(x + 26, tall * 0.62), at(x + 20, 30)}),
                 QColor(246, 234, 204), ink, 0.9);
        fillShape(painter,
                  polygon({at(x - 17, 40), at(x - 18.5, tall * 0.64), at(x + 25, tall * 0.66),
                           at(x + 23, 44)}),
                  toColor(look.roof, 210));
        fillShape(painter, polygon({at(x, tall + 8), at(x - 18, tall + 4), at(x, tall)}),
                  toColor(look.roof));
    }
    strokeLine(painter, polygon({at(44, 20), at(66, 36)}), ink, 1.1);
    inkShape(painter,
             polygon({at(-56, 34), at(-50, 8), at(-42, -3), at(-30, -8), at(26, -8), at(38, 0),
                      at(54, 24), at(36, 15), at(0, 11), at(-30, 15), at(-36, 33)}),
             QColor(122, 78, 44), ink, 1.0);
    fillShape(painter,
              polygon({at(-49, 4), at(-42, -3), at(-30, -8), at(26, -8), at(38, 0), at(40, 4),
                       at(0, -1), at(-30, 1)}),
              QColor(78, 46, 28));
    strokeLine(painter, polygon({at(-52, 24), at(-32, 10), at(0, 6), at(44, 13)}),
               QColor(206, 158, 78), size * 0.014);
    for (const double y : {-8.0, -14.0})
        strokeLine(painter, polygon({at(-56 - y, y), at(-20, y - 3), at(14, y), at(56 + y, y - 3)}),
                   toColor(look.foam, 190), 1.0);
}

void drawSerpent(QPainter &painter, const ThemeLook &look, QPointF waterline, double size)
{
    const auto at = [&](double x, double y) { return waterline + QPointF(x, -y) * (size / 100); };
    const Tone body = mix(look.treeDark, look.seaShallow, 0.25);
    const double widths[] = {12, 14, 16};
    for (int i = 0; i < 3; ++i) {
        const double x = -58 + i * 36.0;
        const double rise = 18 + i * 8.0;
        QPolygonF hump;
        for (int k = 0; k <= 10; ++k)
            hump.append(at(x + k * 3.0 - 15, rise * qSin(k / 10.0 * M_PI)));
        strokeLine(painter, hump, toColor(look.ink), (widths[i] + 5) * size / 100);
        strokeLine(painter, hump, toColor(body), widths[i] * size / 100);
        strokeLine(painter, polygon({at(x - 22, -3), at(x + 22, -3)}), toColor(look.foam, 190),
                   1.0);
    }
    QPolygonF neck;
    for (int k = 0; k <= 12; ++k)
        neck.append(at(46 + 12 * qSin(k / 12.0 * M_PI), k / 12.0 * 56));
    strokeLine(painter, neck, toColor(look.ink), 21 * size / 100);
    strokeLine(painter, neck, toColor(body), 16 * size / 100);
    inkShape(painter,
             polygon({at(36, 52), at(34, 70), at(48, 76), at(72, 64), at(74, 58), at(54, 56),
                      at(54, 48)}),
             toColor(body), toColor(look.ink), 1.0);
    fillEllipse(painter, at(50, 67), size * 0.025, size * 0.025, QColor(255, 230, 120));
    strokeLine(painter, polygon({at(30, -3), at(66, -3)}), toColor(look.foam, 190), 1.0);
}

void applyVignette(QImage &image, double strength)
{
    const double cx = image.width() / 2.0;
    const double cy = image.height() / 2.0;
    for (int y = 0; y < image.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        const double dy = (y - cy) / cy;
        for (int x = 0; x < image.width(); ++x) {
            const double dx = (x - cx) / cx;
            const double fade = 1 - strength * smoothStep(0.55, 1.9, dx * dx + dy * dy);
            row[x] = pack(toTone(row[x]) * fade);
        }
    }
}

} // namespace art
