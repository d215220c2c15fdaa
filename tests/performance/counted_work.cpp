// Does one piece of work with the counting of instructions on, so that an observer counts it alone.
// On a processor for which the program has wider vectors than usual it says "wide".
//
// Usage: counted_work open GAMEFOLDER CAMPAIGN
//        counted_work refresh GAMEFOLDER CAMPAIGN, with its maps beside it afterwards
//        counted_work load GAMEFOLDER
//        counted_work compose GAMEFOLDER
#include "document/campaign_data.h"
#include "document/map_exchange.h"
#include "gamedata/campaign_picture.h"
#include "gamedata/editor_data.h"
#include "gamedata/game_dir.h"
#include "gamedata/game_loading.h"
#include "gamedata/image_cache.h"
#include "gamedata/region_blend.h"
#include "gamedata/region_image.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>

#include <cstdio>
#include <cstring>
#include <valgrind/callgrind.h>

namespace {

template<typename Work>
auto counted(Work work)
{
    CALLGRIND_TOGGLE_COLLECT;
    auto result = work();
    CALLGRIND_TOGGLE_COLLECT;
    return result;
}

bool openCampaign(const QString &path)
{
    QFile file(path);
    CampaignData campaign;
    const auto fault = counted([&] { return campaign.readCampaign(&file); });
    return !fault && !campaign.scenarios.empty() && campaign.scenarios.back().mapHeader;
}

bool refreshMaps(const QString &path)
{
    QFile file(path);
    CampaignData campaign;
    if (campaign.readCampaign(&file))
        return false;
    bool well = true;
    const auto tell = [&](const QString &) { well = false; };
    const QString folder = QFileInfo(path).path();
    exportMapsTo(folder, campaign, path, tell);
    return counted([&] { return refreshMapsFrom(folder, campaign, tell).complete; }) && well;
}

bool load()
{
    return counted([] {
        loadGame();
        return !EditorData::lod_archives.empty();
    });
}

// A disc of greys: border outside, glow inside.
QImage mask(int from, int to)
{
    constexpr int side = 160;
    constexpr int middle = side / 2;
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const int square = (x - middle) * (x - middle) + (y - middle) * (y - middle);
            if (square >= from * from && square < to * to)
                image.setPixelColor(x, y, QColor(x, x, x));
        }
    }
    return image;
}

bool compose()
{
    constexpr unsigned map = 200;
    CampaignInfo &info = EditorData::campaignInfo[int(map)];
    info.regions.resize(1);
    info.regionCount = 1;
    preloadArchive->images32["fill"] = mask(0, 80);
    preloadArchive->images32["border"] = mask(70, 80);
    preloadArchive->images32["glow"] = mask(0, 75);
    QImage pattern(campaignPictureSize, QImage::Format_ARGB32);
    pattern.fill(QColor(90, 90, 90));
    preloadArchive->images32["cmpdash.pcx"] = pattern;
    const QString fill = "fill";
    const QString border = "border";
    const QString glow = "glow";
    return counted([&] {
        bool made = true;
        for (const unsigned state : {regionUnselected, regionSelected, regionUnused})
            made = !createGeneratedImage(2, map, 0, state, fill, border, glow).isNull() && made;
        return made;
    });
}

bool doWork(int argc, char **argv)
{
    setGameRoot(QFile::decodeName(argv[2]));
    if (std::strcmp(argv[1], "load") == 0)
        return load();
    loadGame();
    if (std::strcmp(argv[1], "compose") == 0)
        return compose();
    if (argc != 4)
        return false;
    const QString campaign = QFile::decodeName(argv[3]);
    if (std::strcmp(argv[1], "refresh") == 0)
        return refreshMaps(campaign);
    return std::strcmp(argv[1], "open") == 0 && openCampaign(campaign);
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    if (argc < 3 || !doWork(argc, argv))
        return 1;
    if (region_blend::usableBlenders().size() > 1)
        std::puts("wide");
    return 0;
}
