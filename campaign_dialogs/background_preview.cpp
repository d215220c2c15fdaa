#include "campaign_dialogs/background_preview.h"

#include "gamedata/campaign_picture.h"
#include "gamedata/editor_data.h"
#include "gamedata/image_cache.h"
#include "gamedata/region_image.h"
#include "gamedata/report.h"

#include <QDebug>
#include <QLabel>
#include <QPainter>

namespace {

constexpr unsigned previewColour = 2;

QImage computedRegion(unsigned campaignId, unsigned index, const CampaignRegion &region)
{
    if (const QImage *cached = preloadArchive->getSmallGeneratedImage(campaignId, index))
        return *cached;
    qDebug() << "GENERATE REGION";
    QImage image = createGeneratedImage(previewColour, campaignId, index, regionSelected,
                                        region.fillImage, region.borderImage, region.glowImage);
    preloadArchive->saveSmallGeneratedImage(campaignId, index, image);
    return image;
}

QImage readyMadeRegion(const CampaignRegion &region)
{
    return preloadArchive->loadPcxImage32(
        region.imageNames.value(int(regionSelected)).value(int(previewColour)));
}

void drawRegions(QImage &picture, unsigned campaignId)
{
    const CampaignInfo &map = EditorData::campaignMap(campaignId);
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawRect(0, 0, 455, 599);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    for (int i = 0; i < map.regions.size(); ++i) {
        const CampaignRegion &region = map.regions[i];
        const QImage image = map.generated ? computedRegion(campaignId, unsigned(i), region)
                                           : readyMadeRegion(region);
        if (image.isNull())
            endSilently(1);
        painter.drawImage(region.x, region.y, image);
    }
}

} // namespace

// NOLINTNEXTLINE(performance-unnecessary-value-param): the interface takes the name by value
void putBackgroundToLabel(QLabel *label, QString name, bool withRegions, unsigned int campaignId)
{
    QImage picture = campaignBackground(name);
    if (picture.isNull())
        return;
    if (withRegions)
        drawRegions(picture, campaignId);
    // In the screen's own pixels, of which a dense screen has several to the label's one.
    const qreal density = label->devicePixelRatioF();
    QImage scaled =
        picture.scaled(label->size() * density, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(density);
    label->setPixmap(QPixmap::fromImage(scaled));
}
