#include "tools/sample_game/art/grid.h"

#include <QPoint>

#include <array>
#include <cmath>

namespace art {

namespace {

constexpr double kFar = 1e12;

// The lower envelope of parabolas along one line, in place: exact squared distances.
class LineTransform
{
public:
    explicit LineTransform(int longest)
        : size_(static_cast<size_t>(longest)), places_(size_), bounds_(size_ + 1), input_(size_)
    {
    }

    template<typename Get, typename Set>
    void run(int count, Get get, Set set)
    {
        for (int q = 0; q < count; ++q)
            input_[static_cast<size_t>(q)] = get(q);
        size_t k = 0;
        places_[0] = 0;
        bounds_[0] = -kFar;
        bounds_[1] = kFar;
        for (int q = 1; q < count; ++q) {
            double cross = crossing(q, places_[k]);
            while (cross <= bounds_[k]) {
                --k;
                cross = crossing(q, places_[k]);
            }
            ++k;
            places_[k] = q;
            bounds_[k] = cross;
            bounds_[k + 1] = kFar;
        }
        k = 0;
        for (int q = 0; q < count; ++q) {
            while (bounds_[k + 1] < q)
                ++k;
            const double d = q - places_[k];
            set(q, d * d + input_[static_cast<size_t>(places_[k])]);
        }
    }

private:
    double crossing(int q, int p) const
    {
        const double fq = input_[static_cast<size_t>(q)] + static_cast<double>(q) * q;
        const double fp = input_[static_cast<size_t>(p)] + static_cast<double>(p) * p;
        return (fq - fp) / (2.0 * (q - p));
    }

    size_t size_;
    std::vector<int> places_;
    std::vector<double> bounds_;
    std::vector<double> input_;
};

constexpr std::array<QPoint, 4> kSides = {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)};

// Labels the part of equal cells around a start; returns its size.
int flood(const Mask &mask, Grid<int> &labels, QPoint start, int label)
{
    const quint8 value = mask.at(start.x(), start.y());
    std::vector<QPoint> open{start};
    labels.at(start.x(), start.y()) = label;
    int size = 0;
    while (!open.empty()) {
        const QPoint p = open.back();
        open.pop_back();
        ++size;
        for (const QPoint &side : kSides) {
            const QPoint n = p + side;
            if (!mask.contains(n.x(), n.y()) || labels.at(n.x(), n.y()) != 0 ||
                mask.at(n.x(), n.y()) != value)
                continue;
            labels.at(n.x(), n.y()) = label;
            open.push_back(n);
        }
    }
    return size;
}

} // namespace

Field distanceTo(const Mask &mask, quint8 value)
{
    const int width = mask.width();
    const int height = mask.height();
    Field field(width, height);
    LineTransform line(width > height ? width : height);
    for (int x = 0; x < width; ++x)
        line.run(
            height, [&](int y) { return mask.at(x, y) == value ? 0.0 : 1e9; },
            [&](int y, double d) { field.at(x, y) = d; });
    for (int y = 0; y < height; ++y)
        line.run(
            width, [&](int x) { return field.at(x, y); },
            [&](int x, double d) { field.at(x, y) = std::sqrt(d); });
    return field;
}

void keepLargestPart(Mask &mask)
{
    Grid<int> labels(mask.width(), mask.height());
    int label = 0;
    int best = 0;
    int bestSize = 0;
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x) {
            if (mask.at(x, y) == 0 || labels.at(x, y) != 0)
                continue;
            const int size = flood(mask, labels, {x, y}, ++label);
            if (size > bestSize) {
                bestSize = size;
                best = label;
            }
        }
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x)
            mask.at(x, y) = best != 0 && labels.at(x, y) == best ? 1 : 0;

    // What the outside can't reach is a hole. The corner is outside: shapes keep off the edges.
    Grid<int> outside(mask.width(), mask.height());
    if (mask.at(0, 0) == 0)
        flood(mask, outside, {0, 0}, 1);
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x)
            if (outside.at(x, y) == 0)
                mask.at(x, y) = 1;
}

int countOf(const Mask &mask)
{
    int count = 0;
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x)
            count += mask.at(x, y);
    return count;
}

QRect boundingBox(const Mask &mask)
{
    int left = mask.width();
    int right = -1;
    int top = mask.height();
    int bottom = -1;
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x) {
            if (mask.at(x, y) == 0)
                continue;
            left = x < left ? x : left;
            right = x > right ? x : right;
            top = y < top ? y : top;
            bottom = y;
        }
    return right < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
}

Mask cropped(const Mask &mask, const QRect &part)
{
    Mask result(part.width(), part.height());
    for (int y = 0; y < part.height(); ++y)
        for (int x = 0; x < part.width(); ++x)
            if (mask.contains(x + part.left(), y + part.top()))
                result.at(x, y) = mask.at(x + part.left(), y + part.top());
    return result;
}

} // namespace art
