// The pattern of strokes that lies on regions without a scenario.
#include "tools/sample_game/art/art.h"

#include "tools/sample_game/art/noise.h"

#include <cmath>

namespace art {

namespace {

constexpr int kPatternWidth = 800;
constexpr int kPatternHeight = 600;
constexpr double kSpacing = 9;  // between strokes
constexpr double kDash = 22;    // from one dash to the next along a stroke
constexpr double kFaint = 26;   // alpha between the strokes
constexpr double kStrong = 176; // alpha on a stroke

} // namespace

QImage paintDashPattern()
{
    QImage pattern(kPatternWidth, kPatternHeight, QImage::Format_Grayscale8);
    for (int y = 0; y < kPatternHeight; ++y) {
        uchar *row = pattern.scanLine(y);
        for (int x = 0; x < kPatternWidth; ++x) {
            const double across = (x + y) * 0.70710678;
            const double stroke = std::floor(across / kSpacing);
            const double off = std::fabs(across - (stroke + 0.5) * kSpacing);
            // Every other stroke is shifted by half a dash, like brickwork.
            double along = (y - x) * 0.70710678 / kDash + stroke * 0.5;
            along -= std::floor(along);
            const double gap = smoothStep(0.30, 0.36, std::fabs(along - 0.5));
            const double ink = (1 - smoothStep(1.1, 2.3, off)) * (1 - gap);
            row[x] = static_cast<uchar>(kFaint + (kStrong - kFaint) * ink);
        }
    }
    return pattern;
}

} // namespace art
