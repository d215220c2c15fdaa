#include "benchmarks/drawn_masks.h"

#include <algorithm>
#include <cmath>

namespace {

// How far out of the region's shape a point lies, 1 being its edge.
double distanceFromCentre(const QSize &size, int x, int y)
{
    const double dx = 2.0 * x / size.width() - 1;
    const double dy = 2.0 * y / size.height() - 1;
    const double wave = 1 + 0.08 * std::sin(7 * std::atan2(dy, dx));
    return std::hypot(dx, dy) * wave;
}

} // namespace

NaiveMasks drawnMasks(const QSize &size)
{
    const QImage empty(size, QImage::Format_ARGB32);
    NaiveMasks masks = {empty, empty, empty};
    masks.fill.fill(Qt::transparent);
    masks.border = masks.glow = masks.fill;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const double distance = distanceFromCentre(size, x, y);
            const int grey = std::min(255, int(distance * 255));
            const QColor color(grey, grey, grey);
            if (distance < 1)
                masks.fill.setPixelColor(x, y, color);
            if (distance < 0.9)
                masks.glow.setPixelColor(x, y, color);
            if (distance > 0.85 && distance < 1)
                masks.border.setPixelColor(x, y, color);
        }
    }
    return masks;
}

QImage drawnPattern(const QSize &size)
{
    QImage pattern(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            pattern.setPixelColor(x, y,
                                  (x + y) % 8 < 4 ? QColor(40, 40, 40) : QColor(200, 200, 200));
    }
    return pattern;
}
