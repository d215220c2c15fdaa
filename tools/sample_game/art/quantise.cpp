// Median cut: the box of colours with the longest side is halved until there are enough boxes.
#include "tools/sample_game/art/colour.h"
#include "tools/sample_game/art/looks.h"

#include <algorithm>
#include <array>
#include <vector>

namespace art {

namespace {

using Channels = std::array<int, 3>;

Channels channelsOf(QRgb rgb)
{
    return {qRed(rgb), qGreen(rgb), qBlue(rgb)};
}

struct Box
{
    size_t begin = 0;
    size_t end = 0;
    size_t axis = 0; // of the longest side
    int side = 0;
};

Box measured(const std::vector<Channels> &pixels, size_t begin, size_t end)
{
    Channels low = {255, 255, 255};
    Channels high = {0, 0, 0};
    for (size_t i = begin; i < end; ++i)
        for (size_t c = 0; c < 3; ++c) {
            low[c] = std::min(low[c], pixels[i][c]);
            high[c] = std::max(high[c], pixels[i][c]);
        }
    Box box{begin, end, 0, -1};
    for (size_t c = 0; c < 3; ++c)
        if (high[c] - low[c] > box.side) {
            box.side = high[c] - low[c];
            box.axis = c;
        }
    return box;
}

QRgb meanOf(const std::vector<Channels> &pixels, const Box &box)
{
    std::array<quint64, 3> sums = {0, 0, 0};
    for (size_t i = box.begin; i < box.end; ++i)
        for (size_t c = 0; c < 3; ++c)
            sums[c] += static_cast<quint64>(pixels[i][c]);
    const quint64 count = box.end - box.begin;
    const auto mean = [&](size_t c) { return static_cast<int>((sums[c] + count / 2) / count); };
    const QRgb rgb = qRgb(mean(0), mean(1), mean(2));
    return rgb == qRgb(0, 255, 255) ? qRgb(4, 255, 255) : rgb;
}

std::vector<QRgb> paletteOf(std::vector<Channels> pixels, int colours)
{
    std::vector<Box> boxes;
    if (!pixels.empty())
        boxes.push_back(measured(pixels, 0, pixels.size()));
    while (!boxes.empty() && boxes.size() < static_cast<size_t>(colours)) {
        const auto widest = std::max_element(
            boxes.begin(), boxes.end(), [](const Box &a, const Box &b) { return a.side < b.side; });
        if (widest->side <= 0)
            break;
        const Box box = *widest;
        const auto at = [&](size_t i) { return pixels.begin() + static_cast<std::ptrdiff_t>(i); };
        const size_t middle = box.begin + (box.end - box.begin) / 2;
        std::nth_element(at(box.begin), at(middle), at(box.end),
                         [&](const Channels &a, const Channels &b) {
                             return a[box.axis] != b[box.axis] ? a[box.axis] < b[box.axis] : a < b;
                         });
        *widest = measured(pixels, box.begin, middle);
        boxes.push_back(measured(pixels, middle, box.end));
    }
    std::vector<QRgb> palette;
    palette.reserve(boxes.size());
    for (const Box &box : boxes)
        palette.push_back(meanOf(pixels, box));
    return palette;
}

// Finds the nearest palette colour; answers are kept for each cell of 32 x 32 x 32 colours.
class Matcher
{
public:
    explicit Matcher(std::vector<QRgb> palette)
        : palette_(std::move(palette)), found_(size_t{32} * 32 * 32, -1)
    {
    }

    QRgb nearest(QRgb rgb)
    {
        const auto cell =
            static_cast<size_t>((qRed(rgb) >> 3) << 10 | (qGreen(rgb) >> 3) << 5 | qBlue(rgb) >> 3);
        if (found_[cell] < 0)
            found_[cell] = search(rgb);
        return palette_[static_cast<size_t>(found_[cell])];
    }

private:
    int search(QRgb rgb) const
    {
        int best = 0;
        int bestDistance = 1 << 30;
        for (size_t i = 0; i < palette_.size(); ++i) {
            const int dr = qRed(rgb) - qRed(palette_[i]);
            const int dg = qGreen(rgb) - qGreen(palette_[i]);
            const int db = qBlue(rgb) - qBlue(palette_[i]);
            const int distance = 2 * dr * dr + 4 * dg * dg + 3 * db * db;
            if (distance < bestDistance) {
                bestDistance = distance;
                best = static_cast<int>(i);
            }
        }
        return best;
    }

    std::vector<QRgb> palette_;
    std::vector<int> found_;
};

// The opaque pixels of every step-th column.
std::vector<Channels> sampled(const QImage &image, int step)
{
    std::vector<Channels> pixels;
    for (int y = 0; y < image.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = y % step; x < image.width(); x += step)
            if (qAlpha(row[x]) != 0)
                pixels.push_back(channelsOf(row[x]));
    }
    return pixels;
}

} // namespace

QImage quantised(const QImage &image, int colours)
{
    constexpr int kStep = 3; // tells the colours of a large picture well enough
    QImage result = image.convertToFormat(QImage::Format_ARGB32);
    std::vector<Channels> pixels = sampled(result, kStep);
    if (pixels.size() < static_cast<size_t>(colours))
        pixels = sampled(result, 1);
    Matcher matcher(paletteOf(std::move(pixels), colours));
    for (int y = 0; y < result.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x)
            row[x] = qAlpha(row[x]) == 0 ? 0 : matcher.nearest(row[x]);
    }
    return result;
}

} // namespace art
