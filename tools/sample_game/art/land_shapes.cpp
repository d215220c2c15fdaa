#include "tools/sample_game/art/land_shapes.h"

#include "tools/sample_game/art/noise.h"
#include "tools/sample_game/art/random.h"

#include <cmath>

namespace art {

namespace {

constexpr int kAttempts = 40;
constexpr int kMinArea = 1800;

struct Cell
{
    int nearest = 0;
    double distance = 1e9; // to the nearest site
    double gap = 0;        // how much farther the second nearest is
};

Cell cellAt(const QVector<QPointF> &sites, double x, double y)
{
    Cell cell;
    double second = 1e9;
    for (int i = 0; i < sites.size(); ++i) {
        const double dx = sites[i].x() - x;
        const double dy = sites[i].y() - y;
        const double d = std::sqrt(dx * dx + dy * dy);
        if (d < cell.distance) {
            second = cell.distance;
            cell.distance = d;
            cell.nearest = i;
        } else if (d < second) {
            second = d;
        }
    }
    cell.gap = second - cell.distance;
    return cell;
}

// Moves each site to the middle of its cell, which evens the cells out.
void relax(QVector<QPointF> &sites, const QRect &area)
{
    QVector<QPointF> sums(sites.size(), QPointF(0, 0));
    QVector<int> counts(sites.size(), 0);
    for (int y = area.top(); y <= area.bottom(); y += 6)
        for (int x = area.left(); x <= area.right(); x += 6) {
            const int i = cellAt(sites, x, y).nearest;
            sums[i] += QPointF(x, y);
            ++counts[i];
        }
    for (int i = 0; i < sites.size(); ++i)
        if (counts[i] > 0)
            sites[i] = sums[i] / counts[i];
}

QVector<QPointF> chooseSites(int count, Random &random)
{
    const QRect area(52, 56, kMapWidth - 104, kMapHeight - 112);
    QVector<QPointF> sites;
    while (sites.size() < count) {
        QPointF best;
        double bestDistance = -1;
        for (int i = 0; i < 12; ++i) {
            const QPointF p = random.place(area.topLeft(), QRectF(area).bottomRight());
            const double d = sites.isEmpty() ? 1.0 : cellAt(sites, p.x(), p.y()).distance;
            if (d > bestDistance) {
                bestDistance = d;
                best = p;
            }
        }
        sites.append(best);
    }
    relax(sites, area);
    relax(sites, area);
    return sites;
}

// How much the land sinks towards the frame: bays reach in here and there, corners are round.
double rimFall(int x, int y, double coastal, quint32 seed)
{
    const double bay = 210 * (fractalNoise(x / 75.0, y / 75.0, 3, seed) - 0.42);
    const double reach = 34 + (bay > 0 ? bay : 0);
    const double dx = (x - kMapWidth / 2.0) / (kMapWidth / 2.0);
    const double dy = (y - kMapHeight / 2.0) / (kMapHeight / 2.0);
    const double corner = smoothStep(0.95, 1.45, dx * dx + dy * dy);
    const double rim = coastal < reach ? 1 - coastal / reach : 0;
    return 1.5 * rim * rim + 1.2 * corner;
}

// The country's land and each pixel's cell; borders wind because the plane is bent beforehand.
void layLand(const ThemeLook &look, const QVector<QPointF> &sites, quint32 seed, Mask &land,
             Grid<Cell> &cells)
{
    for (int y = 0; y < kMapHeight; ++y)
        for (int x = 0; x < kMapWidth; ++x) {
            const double bentX = x + 84 * (fractalNoise(x / 64.0, y / 64.0, 4, seed + 1) - 0.5);
            const double bentY = y + 84 * (fractalNoise(x / 64.0, y / 64.0, 4, seed + 2) - 0.5);
            const Cell cell = cellAt(sites, bentX, bentY);
            cells.at(x, y) = cell;
            const int edge = qMin(qMin(x, kMapWidth - 1 - x), qMin(y, kMapHeight - 1 - y));
            const double coastal = edge - kFrameWidth - 6.0;
            if (coastal < 2)
                continue;
            double level =
                look.landBias + 2.2 * (fractalNoise(x / 92.0, y / 92.0, 5, seed + 3) - 0.5);
            level -= rimFall(x, y, coastal, seed + 4);
            level -= look.channel * (1 - smoothStep(0, 34, cell.gap));
            level += 0.9 * std::exp(-cell.distance * cell.distance / 1500.0);
            land.at(x, y) = level > 0 ? 1 : 0;
        }
}

QPoint seatOf(const Mask &mask, const QRect &box)
{
    const QRect part = box.adjusted(-1, -1, 1, 1);
    const Field depth = distanceTo(cropped(mask, part), 0);
    QPoint best;
    double bestDepth = -1;
    for (int y = 0; y < part.height(); ++y)
        for (int x = 0; x < part.width(); ++x)
            if (depth.at(x, y) > bestDepth) {
                bestDepth = depth.at(x, y);
                best = {x, y};
            }
    return part.topLeft() + best;
}

RegionShape finishRegion(Mask mask)
{
    keepLargestPart(mask);
    RegionShape shape;
    shape.box = boundingBox(mask);
    shape.seat = seatOf(mask, shape.box);
    shape.mask = std::move(mask);
    return shape;
}

bool isLargeEnough(const RegionShape &shape)
{
    return shape.box.width() >= kMinRegionWidth && shape.box.height() >= kMinRegionHeight &&
           countOf(shape.mask) >= kMinArea;
}

RegionShape cutRegion(int index, const Grid<Cell> &cells, const Field &inland)
{
    Mask mask(kMapWidth, kMapHeight);
    for (int y = 0; y < kMapHeight; ++y)
        for (int x = 0; x < kMapWidth; ++x) {
            const Cell &cell = cells.at(x, y);
            mask.at(x, y) = cell.nearest == index && cell.gap > 2.6 && inland.at(x, y) > 2.2;
        }
    return finishRegion(std::move(mask));
}

Mask isleAt(QPoint centre, quint32 seed)
{
    Mask mask(kMapWidth, kMapHeight);
    for (int y = centre.y() - 34; y <= centre.y() + 34; ++y)
        for (int x = centre.x() - 42; x <= centre.x() + 42; ++x) {
            if (!mask.contains(x, y))
                continue;
            const double dx = (x - centre.x()) / 36.0;
            const double dy = (y - centre.y()) / 28.0;
            const double rough = 0.5 * (fractalNoise(x / 22.0, y / 22.0, 4, seed) - 0.5);
            mask.at(x, y) = std::sqrt(dx * dx + dy * dy) + rough < 0.92 ? 1 : 0;
        }
    return mask;
}

// A place at sea, from which an isle reaches a little over the shore of exactly one region.
bool placeIsle(Country &country, Random &random)
{
    for (int attempt = 0; attempt < 400; ++attempt) {
        const QPoint centre = random.cell(kMapWidth - 124, kMapHeight - 112) + QPoint(62, 56);
        if (country.offshore.at(centre.x(), centre.y()) < 12)
            continue;
        const Mask blob = isleAt(centre, random.seed());
        int shared = 0;
        for (const RegionShape &region : qAsConst(country.regions))
            for (int y = region.box.top(); y <= region.box.bottom(); ++y)
                for (int x = region.box.left(); x <= region.box.right(); ++x)
                    shared += region.mask.at(x, y) & blob.at(x, y);
        if (shared < 60 || shared > 420)
            continue;
        const RegionShape shape = finishRegion(blob);
        if (!isLargeEnough(shape))
            continue;
        for (int y = shape.box.top(); y <= shape.box.bottom(); ++y)
            for (int x = shape.box.left(); x <= shape.box.right(); ++x)
                country.land.at(x, y) |= shape.mask.at(x, y);
        country.regions.append(shape);
        return true;
    }
    return false;
}

void raiseHeights(const ThemeLook &look, Country &country, quint32 seed)
{
    country.height = Field(kMapWidth, kMapHeight);
    for (int y = 0; y < kMapHeight; ++y)
        for (int x = 0; x < kMapWidth; ++x) {
            if (country.land.at(x, y) == 0)
                continue;
            const double shore = smoothStep(0, 34, country.inland.at(x, y));
            const double ridge = ridgedNoise(x / 80.0, y / 80.0, 5, seed + 11);
            const double roll = fractalNoise(x / 34.0, y / 34.0, 5, seed + 12);
            country.height.at(x, y) =
                shore * (0.18 + 0.34 * roll + (0.25 + 0.55 * look.mountainous) * ridge) + 0.02;
        }
}

bool tryShape(const ThemeLook &look, int regionCount, Random &random, Country &country)
{
    const quint32 seed = random.seed();
    country = {Mask(kMapWidth, kMapHeight), {}, {}, {}, {}};
    Grid<Cell> cells(kMapWidth, kMapHeight);
    layLand(look, chooseSites(regionCount - 1, random), seed, country.land, cells);
    country.inland = distanceTo(country.land, 0);
    country.offshore = distanceTo(country.land, 1);
    for (int i = 0; i < regionCount - 1; ++i) {
        country.regions.append(cutRegion(i, cells, country.inland));
        if (!isLargeEnough(country.regions.last()))
            return false;
    }
    if (!placeIsle(country, random))
        return false;
    country.inland = distanceTo(country.land, 0);
    country.offshore = distanceTo(country.land, 1);
    raiseHeights(look, country, seed);
    return true;
}

} // namespace

Country shapeCountry(const ThemeLook &look, int regionCount, quint32 seed)
{
    Random random(seed);
    Country country;
    // A country that leaves some region too small is shaped anew, with narrower straits.
    ThemeLook eased = look;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        if (tryShape(eased, regionCount, random, country))
            break;
        eased.channel *= 0.9;
        eased.landBias += 0.02 * (attempt % 6 - 2);
    }
    return country;
}

} // namespace art
