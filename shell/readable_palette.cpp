#include "shell/readable_palette.h"

#include <QPalette>

#include <algorithm>
#include <cmath>

namespace {

constexpr double leastContrast = 3; // to 1
constexpr int steps = 10;           // from a disabled colour to that of the other texts
constexpr int buttonShade = 140;    // percent: how light a button's face becomes towards its top

// As the eye sees it, from 0 to 1.
double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor &light, const QColor &dark)
{
    return (luminance(light) + 0.05) / (luminance(dark) + 0.05);
}

QColor between(const QColor &one, const QColor &other, int step)
{
    const auto part = [step](double a, double b) { return a + (b - a) * step / steps; };
    return QColor::fromRgbF(part(one.redF(), other.redF()), part(one.greenF(), other.greenF()),
                            part(one.blueF(), other.blueF()));
}

} // namespace

void makeDisabledTextsReadable(QPalette &palette)
{
    const QColor window = palette.color(QPalette::Window);
    if (luminance(palette.color(QPalette::WindowText)) <= luminance(window))
        return;
    const QColor behind =
        std::max({window, palette.color(QPalette::Base),
                  palette.color(QPalette::Button).lighter(buttonShade)},
                 [](const QColor &a, const QColor &b) { return luminance(a) < luminance(b); });
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        const QColor faint = palette.color(QPalette::Disabled, role);
        const QColor whole = palette.color(QPalette::Active, role);
        int step = 0;
        while (step < steps && contrast(between(faint, whole, step), behind) < leastContrast)
            ++step;
        if (step > 0)
            palette.setColor(QPalette::Disabled, role, between(faint, whole, step));
    }
}
