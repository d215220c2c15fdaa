#include "cli/picture_commands.h"

#include "cli/campaign_commands.h"
#include "cli/picture_file.h"
#include "document/campaign_data.h"
#include "gamedata/campaign_picture.h"
#include "gamedata/editor_data.h"
#include "gamedata/game_loading.h"
#include "gamedata/region_image.h"
#include "gamedata/report.h"

#include <QPainter>

#include <limits>

namespace {

constexpr unsigned colourCount = 8;
constexpr int wholeSize = std::numeric_limits<int>::max();

ExitStatus pictureMissing(const RegionPicture &picture, const CampaignInfo &map)
{
    if (map.generated)
        return failed(mainWindowText("Unable to generate image"));
    return failed(mainWindowText("Can't find %1 file in lod file").arg(picture.missingFile));
}

QString backgroundName(const CampaignData &campaign)
{
    return campaign.hasMap ? EditorData::campaignMap(campaign.mapId).backgroundName
                           : nameOf(EditorData::backgrounds, campaign.customValue);
}

// As the map stands in the window after opening: the first region is the selected one.
unsigned stateOf(const CampaignData &campaign, unsigned region)
{
    if (region == 0)
        return regionSelected;
    const bool hasScenario =
        region < campaign.scenarios.size() && campaign.scenarios[region].mapHeader != nullptr;
    return hasScenario ? regionUnselected : regionUnused;
}

unsigned colourOf(const CampaignData &campaign, unsigned region)
{
    return region < campaign.scenarios.size() ? campaign.scenarios[region].regionColor
                                              : ScenarioData().regionColor;
}

ExitStatus drawRegions(QImage &target, const CampaignData &campaign)
{
    const CampaignInfo &map = EditorData::campaignMap(campaign.mapId);
    QPainter painter(&target);
    for (unsigned region = 0; region < unsigned(map.regions.size()); ++region) {
        const RegionPicture picture = regionPicture(
            campaign.mapId, region, stateOf(campaign, region), colourOf(campaign, region));
        if (picture.image.isNull())
            return pictureMissing(picture, map);
        const CampaignRegion &shape = map.regions[int(region)];
        painter.drawImage(QPoint(shape.x, shape.y), picture.image);
    }
    return exitDone;
}

// As file managers ask for thumbnails: nothing is gained by drawing one larger than the map is.
QImage withinSize(const QImage &picture, int longest)
{
    if (picture.width() <= longest && picture.height() <= longest)
        return picture;
    const QSize size = picture.size().scaled(longest, longest, Qt::KeepAspectRatio);
    return picture.scaled(size.expandedTo(QSize(1, 1)), Qt::IgnoreAspectRatio,
                          Qt::SmoothTransformation);
}

// The numbers on the command line of "region", in their order.
struct RegionChoice
{
    unsigned map = 0;
    unsigned region = 0;
    unsigned state = 0;
    unsigned colour = 0;
};

ExitStatus readNumbers(const QStringList &arguments, RegionChoice &choice)
{
    int next = 0;
    for (unsigned *number : {&choice.map, &choice.region, &choice.state, &choice.colour}) {
        const QString &text = arguments[next++];
        bool isNumber = false;
        *number = text.toUInt(&isNumber);
        if (!isNumber)
            return wrongUsage(QStringLiteral("\"%1\" is not a number.").arg(text));
    }
    return exitDone;
}

ExitStatus checkRanges(const RegionChoice &choice)
{
    const auto map = EditorData::campaignInfo.find(int(choice.map));
    if (map == EditorData::campaignInfo.end())
        return wrongUsage(QStringLiteral("There is no campaign map %1.").arg(choice.map));
    if (choice.region >= unsigned(map->second.regions.size())) {
        return wrongUsage(QStringLiteral("Campaign map %1 has no region %2.")
                              .arg(QString::number(choice.map), QString::number(choice.region)));
    }
    if (choice.state > regionUnused)
        return wrongUsage(
            QStringLiteral("The state goes from 0 to 2, %1 is none.").arg(choice.state));
    if (choice.colour >= colourCount)
        return wrongUsage(QStringLiteral("Colours go from 0 to 7, %1 is none.").arg(choice.colour));
    return exitDone;
}

} // namespace

ExitStatus runRender(const QStringList &arguments, const CommandOptions &options)
{
    const QString size = options.value(QStringLiteral("size"));
    const int longest = options.contains(QStringLiteral("size")) ? size.toInt() : wholeSize;
    if (longest < 1)
        return wrongUsage(QStringLiteral("\"%1\" is no size in pixels.").arg(size));
    loadGame();
    CampaignData campaign;
    if (const ExitStatus status = readCampaignFile(arguments[0], campaign))
        return status;
    const QString background = backgroundName(campaign);
    QImage picture = campaignBackground(background);
    if (picture.isNull())
        return failed(mainWindowText("Can't find %1 file in lod file").arg(background));
    if (campaign.hasMap) {
        if (const ExitStatus status = drawRegions(picture, campaign))
            return status;
    }
    return savePicture(arguments[1], withinSize(picture, longest));
}

ExitStatus runRegion(const QStringList &arguments)
{
    RegionChoice choice;
    if (const ExitStatus status = readNumbers(arguments, choice))
        return status;
    loadGame();
    if (const ExitStatus status = checkRanges(choice))
        return status;
    const RegionPicture picture =
        regionPicture(choice.map, choice.region, choice.state, choice.colour);
    if (picture.image.isNull())
        return pictureMissing(picture, EditorData::campaignMap(choice.map));
    return savePicture(arguments[4], picture.image);
}
