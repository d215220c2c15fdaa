#include "shell/region_keys.h"

#include "shell/campaign_map_view.h"
#include "shell/campaign_region_item.h"

#include <QGraphicsView>
#include <QKeyEvent>

#include <algorithm>
#include <array>
#include <optional>

namespace {

using Regions = QVector<CampaignRegionItem *>; // in their order

struct Arrow
{
    int key;
    QPoint direction;
};

constexpr std::array<Arrow, 4> arrows{{
    {Qt::Key_Left, {-1, 0}},
    {Qt::Key_Right, {1, 0}},
    {Qt::Key_Up, {0, -1}},
    {Qt::Key_Down, {0, 1}},
}};

// A region that lies aside counts as farther away, and as none in this direction past this slope.
constexpr int asidePenalty = 2;

Regions regionsOn(const QGraphicsScene &scene)
{
    Regions regions;
    const QList<QGraphicsItem *> items = scene.items(Qt::AscendingOrder);
    for (QGraphicsItem *item : items) {
        if (item->data(mapItemKindKey) == regionItemKind)
            regions.append(static_cast<CampaignRegionItem *>(item));
    }
    return regions;
}

// The selected one's place in the list, -1 if none is.
int selectedOf(const Regions &regions)
{
    const auto found = std::find_if(regions.begin(), regions.end(),
                                    [](const auto *region) { return region->isSelected; });
    return found == regions.end() ? -1 : int(found - regions.begin());
}

QPointF middleOf(const CampaignRegionItem *region)
{
    return region->sceneBoundingRect().center();
}

// How far it is from one place to another in a direction; nothing if that isn't the direction.
std::optional<double> distance(QPointF from, QPointF to, QPoint direction)
{
    const QPointF way = to - from;
    const double ahead = QPointF::dotProduct(way, direction);
    const double aside = qAbs(way.x() * direction.y()) + qAbs(way.y() * direction.x());
    if (ahead <= 0 || aside > asidePenalty * ahead)
        return {};
    return ahead + asidePenalty * aside;
}

// The nearest in a direction, or the one itself where there is none.
int neighbourOf(const Regions &regions, int region, QPoint direction)
{
    int nearest = region;
    std::optional<double> least;
    for (int i = 0; i < regions.size(); ++i) {
        const auto length = distance(middleOf(regions[region]), middleOf(regions[i]), direction);
        if (length && (!least || *length < *least)) {
            nearest = i;
            least = length;
        }
    }
    return nearest;
}

// The region that a key leads to; nothing for a key that leads nowhere.
std::optional<int> targetOf(const Regions &regions, int key)
{
    const int last = regions.size() - 1;
    const int selected = selectedOf(regions);
    if (key == Qt::Key_Home)
        return 0;
    if (key == Qt::Key_End)
        return last;
    if (key == Qt::Key_PageUp)
        return std::max(selected - 1, 0);
    if (key == Qt::Key_PageDown)
        return std::min(selected + 1, last);
    const auto *const arrow = std::find_if(arrows.begin(), arrows.end(),
                                           [key](const Arrow &known) { return known.key == key; });
    if (arrow == arrows.end())
        return {};
    return selected < 0 ? 0 : neighbourOf(regions, selected, arrow->direction);
}

} // namespace

RegionKeys::RegionKeys(QGraphicsView *newView) : QObject(newView), view(newView)
{
    view->installEventFilter(this);
}

bool RegionKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto &press = *static_cast<QKeyEvent *>(event);
    if ((press.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    const Regions regions = regionsOn(*view->scene());
    const std::optional<int> target =
        regions.isEmpty() ? std::nullopt : targetOf(regions, press.key());
    if (!target)
        return false;
    CampaignRegionItem *region = regions[*target];
    region->select();
    view->ensureVisible(region, 0, 0);
    return true;
}
