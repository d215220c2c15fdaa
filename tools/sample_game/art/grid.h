// Grids over the pixels of a picture, and what is measured on them: distances and connected parts.
#pragma once

#include <QRect>
#include <QtGlobal>

#include <vector>

namespace art {

template<typename T>
class Grid
{
public:
    Grid() = default;
    Grid(int width, int height, T value = T{})
        : width_(width), height_(height),
          cells_(static_cast<size_t>(width) * static_cast<size_t>(height), value)
    {
    }

    int width() const { return width_; }
    int height() const { return height_; }
    bool contains(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }
    T &at(int x, int y) { return cells_[index(x, y)]; }
    const T &at(int x, int y) const { return cells_[index(x, y)]; }

private:
    size_t index(int x, int y) const
    {
        return static_cast<size_t>(y) * static_cast<size_t>(width_) + static_cast<size_t>(x);
    }

    int width_ = 0;
    int height_ = 0;
    std::vector<T> cells_;
};

using Mask = Grid<quint8>; // 0 or 1
using Field = Grid<double>;

// The distance in pixels from each cell to the nearest cell of the mask that equals `value`.
Field distanceTo(const Mask &mask, quint8 value);

// Keeps the largest part connected by sides, fills the holes in it, clears all else.
void keepLargestPart(Mask &mask);

int countOf(const Mask &mask);
QRect boundingBox(const Mask &mask); // empty for an empty mask

// A part of the mask; what lies outside of it reads as 0.
Mask cropped(const Mask &mask, const QRect &part);

} // namespace art
