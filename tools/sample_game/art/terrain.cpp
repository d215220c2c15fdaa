#include "tools/sample_game/art/terrain.h"

#include "tools/sample_game/art/noise.h"

#include <cmath>

namespace art {

namespace {

constexpr Tone kParchment = {238, 216, 170};

Tone seaTone(const ThemeLook &look, double distance, int x, int y, quint32 seed)
{
    const double mottle = fractalNoise(x / 38.0, y / 26.0, 4, seed + 1) - 0.5;
    const double depth = smoothStep(0, 74, distance + 26 * mottle);
    Tone tone = mix(look.seaShallow, look.seaDeep, depth);
    tone = tone * (1 + 0.18 * mottle);

    // Crests of small waves, in patches, away from the coast.
    const double bend = 5.0 * fractalNoise(x / 20.0, y / 20.0, 2, seed + 2);
    const double crest = std::sin((y + bend) * 0.78 + std::sin(x * 0.045) * 2.0);
    const double patch = smoothStep(0.5, 0.68, fractalNoise(x / 30.0, y / 18.0, 3, seed + 3));
    if (crest > 0.72)
        tone = mix(tone, look.foam, 0.26 * patch * smoothStep(8, 26, distance));

    // Lines along the coast as engravers draw them, fainter the farther out.
    constexpr double kLines[] = {3.4, 7.4, 12.6, 19.0};
    double strength = 0.55;
    for (const double line : kLines) {
        const double wobble = 1.6 * (fractalNoise(x / 14.0, y / 14.0, 2, seed + 4) - 0.5);
        const double off = std::fabs(distance + wobble - line);
        tone = mix(tone, look.foam, strength * (1 - smoothStep(0.2, 1.1, off)));
        strength *= 0.62;
    }
    return tone;
}

Tone landTone(const ThemeLook &look, double height, double inland, int x, int y, quint32 seed)
{
    const double moisture = fractalNoise(x / 46.0, y / 46.0, 4, seed + 5);
    Tone tone = mix(look.low, look.lush, smoothStep(0.38, 0.62, moisture));
    tone = mix(tone, look.high, smoothStep(0.42, 0.78, height));
    tone = mix(look.shore, tone, smoothStep(1.0, 8.0, inland));
    tone = mix(tone, kParchment, 0.16);
    if (look.dunes) {
        const double bend = 16.0 * fractalNoise(x / 44.0, y / 44.0, 3, seed + 6);
        const double dune = std::sin((y + bend + 0.35 * x) * 0.62);
        tone = tone * (1 + 0.05 * dune * smoothStep(4, 14, inland));
    }
    return tone;
}

double slopeLight(const Field &height, int x, int y)
{
    const int x0 = x > 0 ? x - 1 : x;
    const int y0 = y > 0 ? y - 1 : y;
    const int x1 = x + 1 < height.width() ? x + 1 : x;
    const int y1 = y + 1 < height.height() ? y + 1 : y;
    const double dx = height.at(x1, y) - height.at(x0, y);
    const double dy = height.at(x, y1) - height.at(x, y0);
    // The light comes from the upper left.
    const double light = (dx + dy) * 5.2;
    return light < -0.42 ? -0.42 : (light > 0.42 ? 0.42 : light);
}

} // namespace

QImage paintTerrain(const ThemeLook &look, const Country &country, quint32 seed)
{
    QImage image(kMapWidth, kMapHeight, QImage::Format_RGB32);
    for (int y = 0; y < kMapHeight; ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < kMapWidth; ++x) {
            Tone tone;
            if (country.land.at(x, y) == 0) {
                tone = seaTone(look, country.offshore.at(x, y), x, y, seed);
                tone = mix(look.ink, tone,
                           0.35 + 0.65 * smoothStep(0.4, 2.0, country.offshore.at(x, y)));
            } else {
                const double inland = country.inland.at(x, y);
                tone = landTone(look, country.height.at(x, y), inland, x, y, seed);
                tone = tone * (1 + slopeLight(country.height, x, y));
                tone = mix(look.ink, tone, 0.45 + 0.55 * smoothStep(0.6, 1.8, inland));
            }
            const double fibre = fractalNoise(x / 3.0, y / 2.2, 2, seed + 8) - 0.5;
            const double stain = fractalNoise(x / 120.0, y / 120.0, 3, seed + 9) - 0.5;
            row[x] = pack(tone * (1 + 0.09 * fibre + 0.16 * stain));
        }
    }
    return image;
}

} // namespace art
