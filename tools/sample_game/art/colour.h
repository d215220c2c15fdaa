// Colours as three channels of 0 to 255 in doubles, for sums and mixtures before rounding.
#pragma once

#include <QColor>

namespace art {

struct Tone
{
    double r = 0;
    double g = 0;
    double b = 0;

    Tone operator*(double k) const { return {r * k, g * k, b * k}; }
    Tone operator+(const Tone &o) const { return {r + o.r, g + o.g, b + o.b}; }
};

inline Tone mix(const Tone &a, const Tone &b, double t)
{
    return {a.r + (b.r - a.r) * t, a.g + (b.g - a.g) * t, a.b + (b.b - a.b) * t};
}

inline int toByte(double value)
{
    return value <= 0.0 ? 0 : (value >= 255.0 ? 255 : qRound(value));
}

inline QRgb pack(const Tone &t)
{
    return qRgb(toByte(t.r), toByte(t.g), toByte(t.b));
}

inline Tone toTone(QRgb rgb)
{
    return {static_cast<double>(qRed(rgb)), static_cast<double>(qGreen(rgb)),
            static_cast<double>(qBlue(rgb))};
}

inline QColor toColor(const Tone &t, int alpha = 255)
{
    return {toByte(t.r), toByte(t.g), toByte(t.b), alpha};
}

} // namespace art
