#include "tools/sample_game/art/looks.h"

#include "tools/sample_game/art/colour.h"

#include <array>

namespace art {

namespace {

// The players' colours as the ready-made maps paint them, a little deeper than the plain tints.
constexpr std::array<Tone, kRegionColours> kPaints = {{{226, 30, 24},
                                                       {66, 112, 236},
                                                       {190, 142, 88},
                                                       {38, 158, 24},
                                                       {240, 124, 26},
                                                       {158, 30, 178},
                                                       {36, 166, 160},
                                                       {222, 124, 134}}};

struct Sample
{
    Tone ground;
    double border; // 0 to 1, multiplies
    double glow;   // 0 to 1, rising inwards
    bool inside;   // covered by the glow
    double dash;   // 0 to 1
};

Tone unselected(const Sample &s, const Tone &paint)
{
    const double light = (s.ground.r + s.ground.g + s.ground.b) / 382.0;
    const Tone washed = mix(s.ground, paint * light, 0.62);
    return washed * (0.62 + 0.38 * s.glow) * s.border;
}

Tone selected(const Sample &s, const Tone &paint)
{
    const double light = (s.ground.r + s.ground.g + s.ground.b) / 382.0;
    const Tone washed = mix(s.ground, paint * (0.35 + 0.85 * light), 0.5);
    return mix({255, 248, 214}, washed, 0.12 + 0.88 * s.glow) * s.border;
}

Tone unused(const Sample &s, const Tone &paint)
{
    const double grey = (s.ground.r + s.ground.g + s.ground.b) / 3;
    const Tone faded = mix(s.ground, {grey * 1.04, grey, grey * 0.9}, 0.6);
    return mix(faded, paint, s.inside ? 0.75 * s.dash : 0.45) * s.border;
}

} // namespace

void paintLooks(const QImage &background, const QImage &dashes, PaintedRegion &region)
{
    constexpr std::array<Tone (*)(const Sample &, const Tone &), kRegionStates> kStyles = {
        unselected, selected, unused};
    const QSize size = region.fill.size();
    for (size_t state = 0; state < kStyles.size(); ++state)
        for (size_t colour = 0; colour < kPaints.size(); ++colour) {
            QImage look(size, QImage::Format_ARGB32);
            look.fill(Qt::transparent);
            for (int y = 0; y < size.height(); ++y)
                for (int x = 0; x < size.width(); ++x) {
                    if (qAlpha(region.fill.pixel(x, y)) == 0)
                        continue;
                    const QPoint place = region.position + QPoint(x, y);
                    const QRgb border = region.border.pixel(x, y);
                    const QRgb glow = region.glow.pixel(x, y);
                    const bool inside = qAlpha(glow) != 0;
                    const Sample sample{toTone(background.pixel(place)),
                                        qAlpha(border) != 0 ? qRed(border) / 255.0 : 1.0,
                                        inside ? qBound(0.0, (qRed(glow) - 96) / 140.0, 1.0) : 0.0,
                                        inside, qRed(dashes.pixel(place)) / 255.0};
                    look.setPixel(x, y, pack(kStyles[state](sample, kPaints[colour])));
                }
            region.looks[state][colour] = quantised(look, kLookColours);
        }
}

} // namespace art
