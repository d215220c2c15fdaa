// The looks of a region composed pixel by pixel through QColor, without regard to speed: what the
// program's own composition is compared with, in its result and in its time.
#pragma once

#include <QColor>
#include <QImage>

struct NaiveMasks
{
    QImage fill;
    QImage border;
    QImage glow;
};

namespace naive {

inline QColor maskColor(const QImage &mask, int x, int y)
{
    return mask.valid(x, y) ? mask.pixelColor(x, y) : QColor(0, 0, 0, 0);
}

inline int lightened(int channel, int glow)
{
    return ((((channel - 255) * glow) >> 8) + 255) & 0xff;
}

inline int darkened(int channel, int factor)
{
    return channel * factor / 256;
}

inline void darkenByBorder(QColor &color, const QColor &border)
{
    if (border.alpha() == 0)
        return;
    const int b = border.red();
    color = QColor(darkened(color.red(), b), darkened(color.green(), b), darkened(color.blue(), b),
                   color.alpha());
}

// Each covered pixel is tinted, changed by `light` and darkened by the border.
template<typename Light>
QImage composed(const NaiveMasks &masks, const QColor &tint, int alpha, Light light)
{
    QImage result = masks.fill;
    for (int y = 0; y < result.height(); ++y) {
        for (int x = 0; x < result.width(); ++x) {
            if (masks.fill.pixelColor(x, y).alpha() == 0)
                continue;
            QColor color(tint.red(), tint.green(), tint.blue(), alpha);
            const QColor glow = maskColor(masks.glow, x, y);
            if (glow.alpha() != 0)
                light(color, glow.red(), x, y);
            darkenByBorder(color, maskColor(masks.border, x, y));
            result.setPixelColor(x, y, color);
        }
    }
    return result;
}

inline QImage selected(const NaiveMasks &masks, const QColor &tint)
{
    return composed(masks, tint, 175, [](QColor &color, int glow, int, int) {
        color = QColor(lightened(color.red(), glow), lightened(color.green(), glow),
                       lightened(color.blue(), glow), color.alpha());
    });
}

inline QImage unselected(const NaiveMasks &masks, const QColor &tint)
{
    return composed(masks, tint, 175, [](QColor &color, int glow, int, int) {
        const int t = (glow + 255) / 2;
        color = QColor(darkened(color.red(), t), darkened(color.green(), t),
                       darkened(color.blue(), t), color.alpha());
    });
}

inline QImage unused(const NaiveMasks &masks, const QColor &tint, const QImage &pattern, int left,
                     int top)
{
    return composed(masks, tint, 121, [&](QColor &color, int, int x, int y) {
        const qint64 column = qint64(left) + x;
        const qint64 row = qint64(top) + y;
        const bool inside =
            column >= 0 && column < pattern.width() && row >= 0 && row < pattern.height();
        color.setAlpha(inside ? pattern.pixelColor(int(column), int(row)).red() : 0);
    });
}

} // namespace naive
