#include "tools/sample_game/art/masks.h"

#include "tools/sample_game/art/noise.h"

namespace art {

namespace {

constexpr int kRoom = 2; // empty pixels round the shape
constexpr double kBand = 4.6;
constexpr double kGlowStart = 2.6;
constexpr double kGlowReach = 26;

int borderValue(double depth)
{
    return toByte(34 + 196 * smoothStep(1.2, kBand, depth));
}

// Low at the rim, so that a selected region shines along its border and an unselected one
// darkens there.
int glowValue(double depth)
{
    const double t = smoothStep(0, 1, (depth - kGlowStart) / kGlowReach);
    return toByte(96 + 140 * t);
}

} // namespace

void paintMasks(const RegionShape &shape, PaintedRegion &region)
{
    const QRect box = shape.box.adjusted(-kRoom, -kRoom, kRoom, kRoom);
    region.position = box.topLeft();
    for (QImage *mask : {&region.fill, &region.border, &region.glow}) {
        *mask = QImage(box.size(), QImage::Format_ARGB32);
        mask->fill(Qt::transparent);
    }
    const Field depths = distanceTo(cropped(shape.mask, box), 0);
    for (int y = 0; y < box.height(); ++y)
        for (int x = 0; x < box.width(); ++x) {
            const double depth = depths.at(x, y);
            if (depth <= 0)
                continue;
            region.fill.setPixel(x, y, qRgb(255, 255, 255));
            if (depth < kBand) {
                const int value = borderValue(depth);
                region.border.setPixel(x, y, qRgb(value, value, value));
            }
            if (depth > kGlowStart) {
                const int value = glowValue(depth);
                region.glow.setPixel(x, y, qRgb(value, value, value));
            }
        }
}

} // namespace art
