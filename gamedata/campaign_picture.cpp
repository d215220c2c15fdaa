#include "gamedata/campaign_picture.h"

#include "gamedata/editor_data.h"
#include "gamedata/image_cache.h"
#include "gamedata/pcx_image.h"
#include "gamedata/region_image.h"

#include <memory>

namespace {

QImage computedPicture(const CampaignRegion &shape, unsigned map, unsigned region, unsigned state,
                       unsigned colour)
{
    if (const QImage *cached = preloadArchive->getLargeGeneratedImage(map, region, state, colour))
        return *cached;
    QImage image = createGeneratedImage(colour, map, region, state, shape.fillImage,
                                        shape.borderImage, shape.glowImage);
    preloadArchive->saveLargeGeneratedImage(map, region, state, colour, image);
    return image;
}

// Names that the layout doesn't hold read as empty.
QString readyMadeName(const CampaignRegion &shape, unsigned state, unsigned colour)
{
    return shape.imageNames.value(int(state)).value(int(colour));
}

QImage readBackground(const QString &name)
{
    int size = 0;
    const std::unique_ptr<char[]> record(EditorData::getLodFileData(name, &size));
    if (!record)
        return {};
    const QImage image = ReadFromArray(record.get(), size);
    return image.isNull() ? image : image.copy(QRect(QPoint(0, 0), campaignPictureSize));
}

} // namespace

QImage campaignBackground(const QString &name)
{
    QMap<QString, QImage> &kept = preloadArchive->backgrounds;
    const auto found = kept.constFind(name);
    if (found != kept.constEnd())
        return *found;
    QImage image = readBackground(name);
    if (!image.isNull())
        kept.insert(name, image);
    return image;
}

RegionPicture regionPicture(unsigned map, unsigned region, unsigned state, unsigned colour)
{
    const CampaignInfo &info = EditorData::campaignMap(map);
    if (region >= unsigned(info.regions.size()))
        return {};
    const CampaignRegion &shape = info.regions[int(region)];
    if (info.generated)
        return {computedPicture(shape, map, region, state, colour), {}};
    const QString name = readyMadeName(shape, state, colour);
    const QImage image = preloadArchive->loadPcxImage32(name);
    return {image, image.isNull() ? name : QString()};
}
