// Building the window's map anew while the pictures of its regions are in the cache, against making
// pixmaps of the same pictures.
#include "benchmarks/drawn_masks.h"
#include "benchmarks/groups.h"
#include "benchmarks/rows.h"
#include "gamedata/campaign_picture.h"
#include "gamedata/editor_data.h"
#include "gamedata/image_cache.h"
#include "gamedata/region_image.h"
#include "shell/campaign_map_view.h"
#include "shell/campaign_region_item.h"
#include "shell/main_window.h"

#include <QGraphicsScene>
#include <QPixmap>

#include <memory>
#include <stdexcept>
#include <vector>

namespace {

constexpr unsigned drawnMap = 201;
constexpr unsigned regionCount = 20;
constexpr unsigned colour = 2;

// Twenty regions on the background of a map of the game, and their pictures in the cache. Answers
// all the pictures, the background first.
std::vector<QImage> layOut()
{
    const CampaignInfo *shown = nullptr;
    for (const auto &[number, map] : EditorData::campaignInfo)
        if (!map.backgroundName.isEmpty())
            shown = &map;
    if (shown == nullptr)
        throw std::runtime_error("the game has no campaign map");
    const QString background = shown->backgroundName;
    CampaignInfo &map = EditorData::campaignInfo[drawnMap];
    map.backgroundName = background;
    map.generated = true;
    map.regionCount = int(regionCount);
    map.regions.resize(int(regionCount));

    std::vector<QImage> pictures{campaignBackground(background)};
    const QImage picture = drawnMasks({160, 140}).fill;
    for (unsigned region = 0; region < regionCount; ++region) {
        map.regions[int(region)].x = int(region % 4 * 90);
        map.regions[int(region)].y = int(region / 4 * 90);
        pictures.push_back(picture.copy());
        for (const unsigned state : {regionUnselected, regionSelected, regionUnused})
            preloadArchive->saveLargeGeneratedImage(drawnMap, region, state, colour,
                                                    pictures.back());
    }
    return pictures;
}

rows::Measure makingPixmaps(const std::vector<QImage> &pictures)
{
    return rows::timedOften([pictures] {
        std::vector<QPixmap> pixmaps;
        pixmaps.reserve(pictures.size());
        for (const QImage &picture : pictures)
            pixmaps.push_back(QPixmap::fromImage(picture));
        return pixmaps;
    });
}

rows::Pair wholeMap()
{
    const std::vector<QImage> pictures = layOut();
    const auto window = std::make_shared<MainWindow>(nullptr);
    window->campaignId = drawnMap;
    window->refreshCampaignView();
    const auto *view = window->findChild<MyQGraphicsView *>();
    if (view == nullptr || view->scene()->items().size() != int(regionCount) + 1)
        throw std::runtime_error("the map isn't shown");
    return {rows::timedOften([window] { window->refreshCampaignView(); }), makingPixmaps(pictures)};
}

rows::Pair regionsAlone()
{
    std::vector<QImage> pictures = layOut();
    pictures.erase(pictures.begin());
    const auto items = std::make_shared<std::vector<CampaignRegionItem>>(regionCount);
    for (unsigned region = 0; region < regionCount; ++region) {
        (*items)[region].campaignId = drawnMap;
        (*items)[region].regionIndex = region;
    }
    return {rows::timedOften([items] {
                for (CampaignRegionItem &item : *items)
                    item.refreshImage();
            }),
            makingPixmaps(pictures)};
}

} // namespace

void addRedrawRows()
{
    rows::Row row;
    row.work = "redraw a map of 20 regions, pictures cached";
    row.reference = "turning the same pictures into pixmaps";
    row.goal = 2;
    row.turns = 51;
    row.prepare = wholeMap;
    rows::add(row);
    row.work = "redraw its regions alone";
    row.prepare = regionsAlone;
    rows::add(row);
}
