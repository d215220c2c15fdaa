#include "tools/sample_game/art/scenery.h"

#include "tools/sample_game/art/brush.h"
#include "tools/sample_game/art/buildings.h"
#include "tools/sample_game/art/glyphs.h"
#include "tools/sample_game/art/noise.h"
#include "tools/sample_game/art/ornaments.h"
#include "tools/sample_game/art/random.h"
#include "tools/sample_game/art/routes.h"

#include <algorithm>

namespace art {

namespace {

enum class Stand
{
    Mountain,
    FireMount,
    Hill,
    Dune,
    Tree,
    Building,
    Lighthouse
};

struct Thing
{
    Stand stand = Stand::Tree;
    QPointF foot;
    double size = 0;
    int kind = 0;
};

void keepClear(Mask &taken, QPointF centre, double rx, double ry)
{
    for (int y = qRound(centre.y() - ry); y <= qRound(centre.y() + ry); ++y)
        for (int x = qRound(centre.x() - rx); x <= qRound(centre.x() + rx); ++x) {
            const double dx = (x - centre.x()) / rx;
            const double dy = (y - centre.y()) / ry;
            if (taken.contains(x, y) && dx * dx + dy * dy <= 1)
                taken.at(x, y) = 1;
        }
}

class Planting
{
public:
    Planting(const ThemeLook &look, const Country &country, const Routes &routes, quint32 seed)
        : look_(look), country_(country), random_(seed), noiseSeed_(random_.seed()),
          taken_(kMapWidth, kMapHeight)
    {
        for (const QPolygonF &river : routes.rivers)
            for (const QPointF &p : river)
                keepClear(taken_, p, 3.5, 3.5);
        for (const QPolygonF &road : routes.roads)
            for (const QPointF &p : road)
                keepClear(taken_, p, 3, 3);
    }

    QVector<Thing> plantAll()
    {
        placeTowns();
        plant(look_.mountainous * 1.1, 9, [&](QPoint p) { tryMountain(p); });
        plant(1.0, 6, [&](QPoint p) { tryTree(p); });
        plant(1.0, 13, [&](QPoint p) { tryHill(p); });
        std::sort(things_.begin(), things_.end(), [](const Thing &a, const Thing &b) {
            return a.foot.y() != b.foot.y() ? a.foot.y() < b.foot.y() : a.foot.x() < b.foot.x();
        });
        return things_;
    }

private:
    void placeTowns()
    {
        for (int i = 0; i < country_.regions.size(); ++i) {
            const QPointF seat = country_.regions[i].seat;
            const bool isle = i + 1 == country_.regions.size();
            const double size = isle ? 34 : 25;
            things_.append({isle ? Stand::Lighthouse : Stand::Building, seat + QPointF(0, 9), size,
                            i == 0 ? 0 : random_.below(kBuildingKinds)});
            keepClear(taken_, seat + QPointF(0, -1), size * 0.75, size * 0.72);
        }
    }

    template<typename Try>
    void plant(double share, int step, Try attempt)
    {
        for (int y = kFrameWidth; y < kMapHeight - kFrameWidth; y += step)
            for (int x = kFrameWidth; x < kMapWidth - kFrameWidth; x += step) {
                const QPoint p = QPoint(x, y) + random_.cell(step, step);
                if (random_.chance(share) && country_.land.contains(p.x(), p.y()) &&
                    country_.land.at(p.x(), p.y()) != 0)
                    attempt(p);
            }
    }

    bool isFree(QPoint p, int reach) const
    {
        for (int dx = -reach; dx <= reach; dx += reach)
            for (int dy = -reach; dy <= 0; dy += reach)
                if (!taken_.contains(p.x() + dx, p.y() + dy) ||
                    taken_.at(p.x() + dx, p.y() + dy) != 0)
                    return false;
        return true;
    }

    void tryMountain(QPoint p)
    {
        const double range = ridgedNoise(p.x() / 95.0, p.y() / 95.0, 3, noiseSeed_);
        const double inland = country_.inland.at(p.x(), p.y());
        if (range < 0.70 - 0.2 * look_.mountainous || inland < 9 || !isFree(p, 6))
            return;
        const double size = 10 + 14 * smoothStep(0.45, 0.85, range) + random_.range(-2, 3);
        const bool fire = look_.fireMounts && size > 20 && fires_ < 4 && random_.chance(0.3);
        fires_ += fire ? 1 : 0;
        things_.append({fire ? Stand::FireMount : Stand::Mountain, p, size * (fire ? 1.35 : 1.0)});
        keepClear(taken_, p, size * 0.42, size * 0.3);
    }

    void tryTree(QPoint p)
    {
        const double wood = fractalNoise(p.x() / 42.0, p.y() / 42.0, 3, noiseSeed_ + 1);
        const double edge = 0.72 - 0.38 * look_.wooded;
        if (wood < edge || country_.inland.at(p.x(), p.y()) < 5 || !isFree(p, 3) ||
            !random_.chance(smoothStep(edge, edge + 0.06, wood)))
            return;
        things_.append({Stand::Tree, p, random_.range(7.5, 10.5)});
    }

    void tryHill(QPoint p)
    {
        if (country_.inland.at(p.x(), p.y()) < 10 || !isFree(p, 6) || !random_.chance(0.38))
            return;
        things_.append({look_.dunes ? Stand::Dune : Stand::Hill, p, random_.range(8, 13)});
        keepClear(taken_, p, 9, 6);
    }

    const ThemeLook &look_;
    const Country &country_;
    Random random_;
    quint32 noiseSeed_;
    Mask taken_;
    int fires_ = 0;
    QVector<Thing> things_;
};

void drawThing(QPainter &painter, const ThemeLook &look, const Thing &thing, Random &random)
{
    switch (thing.stand) {
    case Stand::Mountain:
        return drawMountain(painter, look, thing.foot, thing.size, random);
    case Stand::FireMount:
        return drawFireMount(painter, look, thing.foot, thing.size, random);
    case Stand::Hill:
        return drawHill(painter, look, thing.foot, thing.size);
    case Stand::Dune:
        return drawDune(painter, look, thing.foot, thing.size);
    case Stand::Tree:
        return drawTree(painter, look, thing.foot, thing.size, random);
    case Stand::Building:
        return drawBuilding(painter, look, thing.kind, thing.foot, thing.size);
    case Stand::Lighthouse:
        return drawLighthouse(painter, look, thing.foot, thing.size);
    }
}

void drawRoutes(QPainter &painter, const ThemeLook &look, const Routes &routes)
{
    for (const QPolygonF &river : routes.rivers) {
        strokeLine(painter, river, toColor(look.ink, 110), 3.0);
        for (int i = 0; i + 1 < river.size(); ++i)
            strokeLine(painter, polygon({river[i], river[i + 1]}), toColor(look.river),
                       0.9 + 1.5 * i / river.size());
    }
    for (const QPolygonF &road : routes.roads) {
        strokeLine(painter, road, toColor(look.ink, 150), 2.9);
        QPen pen(toColor(look.road), 1.6, Qt::CustomDashLine, Qt::FlatCap, Qt::RoundJoin);
        pen.setDashPattern({3.2, 1.3});
        painter.setPen(pen);
        painter.drawPolyline(road);
    }
}

// The open sea's middle, and how far the nearest land or frame is.
QPointF openSea(const Mask &busy, double *room)
{
    const Field distance = distanceTo(busy, 1);
    QPointF best;
    *room = 0;
    for (int y = 0; y < kMapHeight; ++y)
        for (int x = 0; x < kMapWidth; ++x)
            if (distance.at(x, y) > *room) {
                *room = distance.at(x, y);
                best = {static_cast<double>(x), static_cast<double>(y)};
            }
    return best;
}

void drawSeaOrnaments(QPainter &painter, const ThemeLook &look, const Country &country)
{
    Mask busy = country.land;
    for (int y = 0; y < kMapHeight; ++y)
        for (int x = 0; x < kMapWidth; ++x)
            if (qMin(qMin(x, kMapWidth - 1 - x), qMin(y, kMapHeight - 1 - y)) < kFrameWidth)
                busy.at(x, y) = 1;
    double room = 0;
    QPointF place = openSea(busy, &room);
    const double radius = qBound(24.0, room + 4, 42.0);
    drawCompass(painter, look, place, radius);
    keepClear(busy, place, radius + 4, radius + 4);
    for (int i = 0; i < 3; ++i) {
        place = openSea(busy, &room);
        if (room < 15)
            return;
        const double size = qMin(room * 1.4, 46.0);
        if (i == 1)
            drawSerpent(painter, look, place + QPointF(0, size * 0.2), size);
        else
            drawShip(painter, look, place + QPointF(0, size * 0.4), size);
        keepClear(busy, place, size, size);
    }
}

} // namespace

void paintScenery(QImage &map, const ThemeLook &look, const Country &country, quint32 seed)
{
    Random random(seed);
    const Routes routes = findRoutes(look, country, random.seed());
    QPainter painter(&map);
    painter.setRenderHint(QPainter::Antialiasing);
    drawRoutes(painter, look, routes);
    const QVector<Thing> things = Planting(look, country, routes, random.seed()).plantAll();
    for (const Thing &thing : things)
        drawThing(painter, look, thing, random);
    drawSeaOrnaments(painter, look, country);
}

} // namespace art
