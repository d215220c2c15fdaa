#include "tools/sample_game/art/scene_tools.h"

#include "tools/sample_game/art/brush.h"
#include "tools/sample_game/art/noise.h"
#include "tools/sample_game/art/ornaments.h"

#include <cmath>

namespace art {

namespace {

QRgb *rowOf(QImage &image, int y)
{
    return reinterpret_cast<QRgb *>(image.scanLine(y));
}

// Adds light without ever passing white.
Tone screened(const Tone &base, const Tone &light, double k)
{
    const auto one = [k](double b, double l) { return b + (255 - b) * l / 255 * k; };
    return {one(base.r, light.r), one(base.g, light.g), one(base.b, light.b)};
}

} // namespace

void paintPlain(QImage &image, const Tone &top, const Tone &bottom, quint32 seed)
{
    for (int y = 0; y < image.height(); ++y) {
        QRgb *row = rowOf(image, y);
        for (int x = 0; x < image.width(); ++x) {
            const double n = fractalNoise(x / 40.0, y / 40.0, 4, seed) - 0.5;
            row[x] =
                pack(mix(top, bottom, static_cast<double>(y) / image.height()) * (1 + 0.3 * n));
        }
    }
}

void paintSky(QImage &image, const QVector<Tone> &tones, double horizon, quint32 seed)
{
    const int last = tones.size() - 1;
    for (int y = 0; y < image.height(); ++y) {
        QRgb *row = rowOf(image, y);
        for (int x = 0; x < image.width(); ++x) {
            const double brush = 14 * (fractalNoise(x / 60.0, y / 12.0, 3, seed) - 0.5);
            double at = (y + brush) / horizon * last;
            at = at < 0 ? 0 : (at > last ? last : at);
            const int i = at >= last ? last - 1 : static_cast<int>(at);
            row[x] = pack(mix(tones[i], tones[i + 1], at - i));
        }
    }
}

void addStars(QImage &image, int count, double below, Random &random)
{
    for (int i = 0; i < count; ++i) {
        const QPointF place = random.place({0, 0}, {static_cast<double>(image.width()), below});
        const double size = random.range(0.8, 2.6);
        addGlow(image, place, size, {255, 250, 235}, random.range(0.3, 1.0));
        if (random.chance(0.06))
            addGlow(image, place, size * 3, {190, 210, 255}, 0.5);
    }
}

void addClouds(QImage &image, double top, double bottom, const Tone &tone, double amount,
               quint32 seed)
{
    const double middle = (top + bottom) / 2;
    const double half = (bottom - top) / 2;
    for (int y = qMax(0, qRound(top)); y < qMin(image.height(), qRound(bottom)); ++y) {
        QRgb *row = rowOf(image, y);
        const double band = 1 - std::fabs(y - middle) / half;
        for (int x = 0; x < image.width(); ++x) {
            const double n = fractalNoise(x / 90.0, y / 34.0, 5, seed);
            const double above = fractalNoise(x / 90.0 - 0.05, (y - 6) / 34.0, 5, seed);
            const double cover =
                smoothStep(0.62 - 0.3 * amount, 0.80 - 0.2 * amount, n) * smoothStep(0, 0.5, band);
            const double light = 1 + 1.6 * (n - above);
            row[x] = pack(mix(toTone(row[x]), tone * light, 0.85 * cover));
        }
    }
}

void addGlow(QImage &image, QPointF centre, double radius, const Tone &tone, double strength)
{
    const int top = qMax(0, qRound(centre.y() - radius));
    const int bottom = qMin(image.height() - 1, qRound(centre.y() + radius));
    const int left = qMax(0, qRound(centre.x() - radius));
    const int right = qMin(image.width() - 1, qRound(centre.x() + radius));
    for (int y = top; y <= bottom; ++y) {
        QRgb *row = rowOf(image, y);
        for (int x = left; x <= right; ++x) {
            const double dx = (x - centre.x()) / radius;
            const double dy = (y - centre.y()) / radius;
            const double d = dx * dx + dy * dy;
            if (d < 1)
                row[x] = pack(screened(toTone(row[x]), tone, strength * (1 - d) * (1 - d)));
        }
    }
}

void paintDisc(QImage &image, QPointF centre, double radius, const Tone &tone, double halo)
{
    addGlow(image, centre, radius * 7, tone, 0.35 * halo);
    addGlow(image, centre, radius * 3, tone, 0.6 * halo);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    fillEllipse(painter, centre, radius, radius, toColor(mix(tone, {255, 255, 255}, 0.35)));
}

QVector<double> paintRidge(QImage &image, const Ridge &ridge, quint32 seed)
{
    QVector<double> line(image.width());
    for (int x = 0; x < image.width(); ++x) {
        const double n = ridge.jagged ? ridgedNoise(x / ridge.scale, 0.5, 5, seed)
                                      : fractalNoise(x / ridge.scale, 0.5, 3, seed);
        line[x] = ridge.base - ridge.amplitude * (2 * n - 1);
    }
    for (int x = 0; x < image.width(); ++x) {
        const double crest = line[x];
        for (int y = qMax(0, static_cast<int>(std::floor(crest))); y < image.height(); ++y) {
            const double depth = y - crest;
            // Slopes are lit by folds that run down from the crests.
            const double fold = ridgedNoise(x / (ridge.scale * 0.42) + depth * 0.008,
                                            depth / (ridge.scale * 0.9), 4, seed + 5);
            const double light = 1 + ridge.relief * (fold - 0.45);
            Tone tone = mix(ridge.crest, ridge.foot, smoothStep(0, 2.4 * ridge.amplitude, depth));
            tone = tone * light;
            const double high = ridge.base - crest + ridge.amplitude * 0.5;
            const double cap = ridge.snow * high / ridge.amplitude * (0.5 + fold);
            if (ridge.snow > 0 && cap > 0)
                tone = mix(Tone{244, 246, 252} * (0.62 + 0.38 * light), tone,
                           smoothStep(cap * 0.75, cap, depth));
            const double cover = smoothStep(-1, 0.5, depth);
            QRgb *row = rowOf(image, y);
            row[x] = pack(mix(toTone(row[x]), tone, cover));
        }
    }
    return line;
}

void paintWater(QImage &image, double top, const Tone &tone, double cover, quint32 seed)
{
    const QImage above = image;
    const int start = qRound(top);
    for (int y = start; y < image.height(); ++y) {
        QRgb *row = rowOf(image, y);
        const double depth = y - top;
        const double near = depth / (image.height() - top);
        for (int x = 0; x < image.width(); ++x) {
            const double ripple =
                fractalNoise(x / (10.0 + 34 * near), y / (1.5 + 7 * near), 3, seed);
            const int sy = qBound(0, qRound(top - depth - 26 * near * (ripple - 0.5)), start);
            const int sx = qBound(0, qRound(x + 14 * near * (ripple - 0.5)), image.width() - 1);
            Tone mirrored = toTone(above.pixel(sx, sy));
            mirrored = mix(mirrored, tone, cover * (0.55 + 0.45 * near));
            row[x] = pack(mirrored * (0.80 + 0.4 * ripple));
        }
    }
}

void addGlitter(QImage &image, double top, double x, double width, const Tone &tone, Random &random)
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 150; ++i) {
        const double near = random.unit();
        const double y = top + 2 + near * near * (image.height() - top);
        const double side = (random.unit() + random.unit() - 1) * width * (0.5 + near * 1.3);
        const double length = random.range(2, 5) + 11 * near;
        strokeLine(painter, polygon({{x + side - length, y}, {x + side + length, y}}),
                   toColor(tone, 60 + random.below(130)), 0.7 + near * 1.1);
    }
}

void addMist(QImage &image, double top, double bottom, const Tone &tone, double strength,
             quint32 seed)
{
    const double middle = (top + bottom) / 2;
    const double half = (bottom - top) / 2;
    for (int y = qMax(0, qRound(top)); y < qMin(image.height(), qRound(bottom)); ++y) {
        QRgb *row = rowOf(image, y);
        const double band = smoothStep(0, 1, 1 - std::fabs(y - middle) / half);
        for (int x = 0; x < image.width(); ++x) {
            const double n = fractalNoise(x / 80.0, y / 22.0, 4, seed);
            row[x] = pack(mix(toTone(row[x]), tone, strength * band * smoothStep(0.2, 0.75, n)));
        }
    }
}

void addFlakes(QImage &image, int count, double largest, double slant, const Tone &tone,
               Random &random)
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < count; ++i) {
        const QPointF place = random.place({0, 0}, QRectF(image.rect()).bottomRight());
        const double near = random.unit() * random.unit();
        const double size = 0.5 + near * largest;
        const QColor colour = toColor(tone, 90 + random.below(150));
        if (slant == 0.0)
            fillEllipse(painter, place, size, size, colour);
        else
            strokeLine(painter, polygon({place, place + QPointF(slant * size * 3, size * 3)}),
                       colour, size);
    }
}

void finishScene(QImage &image, double vignette, double grain, quint32 seed)
{
    for (int y = 0; y < image.height(); ++y) {
        QRgb *row = rowOf(image, y);
        for (int x = 0; x < image.width(); ++x) {
            const double canvas = fractalNoise(x / 2.2, y / 2.2, 2, seed) - 0.5;
            const double stroke = fractalNoise(x / 16.0, y / 7.0, 2, seed + 9) - 0.5;
            row[x] = pack(toTone(row[x]) * (1 + grain * 0.07 * (canvas + stroke)));
        }
    }
    applyVignette(image, vignette);
}

} // namespace art
