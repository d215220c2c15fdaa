#include "tools/sample_game/art/routes.h"

#include "tools/sample_game/art/noise.h"
#include "tools/sample_game/art/random.h"

#include <array>
#include <cmath>
#include <queue>

namespace art {

namespace {

constexpr int kScale = 2;
constexpr int kColumns = kMapWidth / kScale;
constexpr int kRows = kMapHeight / kScale;
constexpr double kUnreached = 1e12;
constexpr int kLongestWay = 4000;

struct Step
{
    double cost;
    int x;
    int y;
    bool operator<(const Step &o) const { return cost > o.cost; } // cheapest first out of the queue
};

constexpr std::array<std::array<int, 2>, 8> kMoves = {
    {{1, 0}, {-1, 0}, {0, 1}, {0, -1}, {1, 1}, {1, -1}, {-1, 1}, {-1, -1}}};

// The cost of the cheapest way from each cell to a target, and the next cell on it.
class Ways
{
public:
    explicit Ways(const Field &costs)
        : costs_(costs), reach_(kColumns, kRows, kUnreached), next_(kColumns, kRows, QPoint(-1, -1))
    {
    }

    void addTarget(int x, int y)
    {
        reach_.at(x, y) = 0;
        open_.push({0, x, y});
    }

    void spread()
    {
        while (!open_.empty()) {
            const Step step = open_.top();
            open_.pop();
            if (step.cost > reach_.at(step.x, step.y))
                continue;
            for (const auto &move : kMoves)
                enter(step, step.x + move[0], step.y + move[1], move[0] != 0 && move[1] != 0);
        }
    }

    double costFrom(QPoint cell) const { return reach_.at(cell.x(), cell.y()); }

    QPolygonF wayFrom(QPoint cell) const
    {
        QPolygonF way;
        while (cell.x() >= 0 && way.size() < kLongestWay) {
            way.append(QPointF(cell.x() * kScale + 1.0, cell.y() * kScale + 1.0));
            cell = next_.at(cell.x(), cell.y());
        }
        return way;
    }

private:
    void enter(const Step &from, int x, int y, bool diagonal)
    {
        if (!reach_.contains(x, y) || costs_.at(x, y) >= kUnreached)
            return;
        const double cost = from.cost + costs_.at(x, y) * (diagonal ? 1.41421356 : 1.0);
        if (cost < reach_.at(x, y)) {
            reach_.at(x, y) = cost;
            next_.at(x, y) = {from.x, from.y};
            open_.push({cost, x, y});
        }
    }

    const Field &costs_;
    Field reach_;
    Grid<QPoint> next_;
    std::priority_queue<Step> open_;
};

QPolygonF smoothed(const QPolygonF &way)
{
    QPolygonF result = way;
    for (int round = 0; round < 3; ++round)
        for (int i = 1; i + 1 < result.size(); ++i)
            result[i] = result[i] * 0.5 + (result[i - 1] + result[i + 1]) * 0.25;
    return result;
}

bool nearAny(const QVector<QPoint> &places, QPoint p, int distance)
{
    for (const QPoint &place : places)
        if ((place - p).manhattanLength() < distance)
            return true;
    return false;
}

QVector<QPolygonF> findRivers(const Country &country, Random &random)
{
    Field costs(kColumns, kRows, kUnreached);
    const quint32 seed = random.seed();
    for (int y = 0; y < kRows; ++y)
        for (int x = 0; x < kColumns; ++x)
            if (country.land.at(x * kScale, y * kScale) != 0)
                costs.at(x, y) = 0.25 + 7 * std::pow(fractalNoise(x / 9.0, y / 9.0, 3, seed), 3) +
                                 1.2 * country.height.at(x * kScale, y * kScale);
    Ways ways(costs);
    for (int y = 0; y < kRows; ++y)
        for (int x = 0; x < kColumns; ++x)
            if (country.land.at(x * kScale, y * kScale) == 0)
                ways.addTarget(x, y);
    ways.spread();

    QVector<QPolygonF> rivers;
    QVector<QPoint> sources;
    for (int attempt = 0; attempt < 500 && rivers.size() < 9; ++attempt) {
        const QPoint source = random.cell(kColumns, kRows);
        if (country.inland.at(source.x() * kScale, source.y() * kScale) < 30 ||
            nearAny(sources, source, 34))
            continue;
        sources.append(source);
        rivers.append(smoothed(ways.wayFrom(source)));
    }
    return rivers;
}

// Each town is joined to the nearest of those after it, so that no two are joined twice.
QVector<QPolygonF> findRoads(const Country &country, quint32 seed)
{
    Field costs(kColumns, kRows, kUnreached);
    for (int y = 0; y < kRows; ++y)
        for (int x = 0; x < kColumns; ++x)
            if (country.inland.at(x * kScale, y * kScale) > 3.5)
                costs.at(x, y) = 0.2 + 2.0 * country.height.at(x * kScale, y * kScale) +
                                 9 * std::pow(fractalNoise(x / 11.0, y / 11.0, 3, seed), 3);
    QVector<QPoint> seats;
    for (const RegionShape &region : country.regions)
        seats.append(region.seat / kScale);

    QVector<QPolygonF> roads;
    for (int i = 0; i < seats.size(); ++i) {
        Ways ways(costs);
        ways.addTarget(seats[i].x(), seats[i].y());
        ways.spread();
        int best = -1;
        for (int j = i + 1; j < seats.size(); ++j)
            if (ways.costFrom(seats[j]) < 260 &&
                (best < 0 || ways.costFrom(seats[j]) < ways.costFrom(seats[best])))
                best = j;
        if (best >= 0)
            roads.append(smoothed(ways.wayFrom(seats[best])));
    }
    return roads;
}

} // namespace

Routes findRoutes(const ThemeLook &look, const Country &country, quint32 seed)
{
    Random random(seed);
    Routes routes;
    routes.rivers = findRivers(country, random);
    if (look.dunes)
        routes.rivers.resize(qMin(routes.rivers.size(), 3));
    routes.roads = findRoads(country, random.seed());
    return routes;
}

} // namespace art
