#include "shell/campaign_region_item.h"

#include "document/campaign_data.h"
#include "gamedata/campaign_picture.h"
#include "gamedata/editor_data.h"
#include "gamedata/region_image.h"
#include "gamedata/report.h"
#include "shell/campaign_map_view.h"
#include "shell/main_window.h"

#include <QDebug>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QStyleOptionGraphicsItem>

CampaignRegionItem::CampaignRegionItem() = default;

void CampaignRegionItem::refreshImage()
{
    const RegionPicture picture = regionPicture(campaignId, regionIndex, imageState(), regionColor);
    if (picture.image.isNull()) {
        if (EditorData::campaignMap(campaignId).generated)
            endWithMessage(
                mainWindowText(QT_TRANSLATE_NOOP("MainWindow", "Unable to generate image")));
        const QString text =
            mainWindowText(QT_TRANSLATE_NOOP("MainWindow", "Can't find %1 file in lod file"));
        endWithMessage(text.arg(picture.missingFile));
    }
    setPixmap(QPixmap::fromImage(picture.image));
}

void CampaignRegionItem::updateImage(ScenarioData *scenario)
{
    const bool newColor = regionColor != scenario->regionColor;
    if (newColor) {
        regionColor = scenario->regionColor;
        qDebug() << "Set current color to " << regionColor;
    }
    const bool hasMap = scenario->mapHeader != nullptr;
    const bool newMap = hasScenario != hasMap;
    hasScenario = hasMap;
    if (newColor || newMap)
        refreshImage();
}

// No dashed frame is drawn around the selected region: its picture tells.
void CampaignRegionItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
                               QWidget *widget)
{
    QStyleOptionGraphicsItem plain(*option);
    plain.state &= ~QStyle::State_Selected;
    QGraphicsPixmapItem::paint(painter, &plain, widget);
}

// The base class is passed by: the selection is isSelected alone, not Qt's own.
void CampaignRegionItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (event->button() == Qt::LeftButton || event->button() == Qt::RightButton)
        select();
}

void CampaignRegionItem::select()
{
    EditorData::info.region = regionIndex;
    EditorData::info.currentItem = this;
    if (isSelected)
        return;
    isSelected = true;
    deselectOthers();
    mainWindow->currentRegion = regionIndex;
    mainWindow->updateRegionLabel();
    refreshImage();
}

unsigned CampaignRegionItem::imageState() const
{
    if (isSelected)
        return regionSelected;
    return hasScenario ? regionUnselected : regionUnused;
}

void CampaignRegionItem::deselectOthers()
{
    const QList<QGraphicsItem *> items = scene->items(Qt::DescendingOrder);
    for (QGraphicsItem *item : items) {
        if (item == this || item->data(mapItemKindKey) != regionItemKind)
            continue;
        auto *region = static_cast<CampaignRegionItem *>(item);
        if (!region->isSelected)
            continue;
        region->isSelected = false;
        region->refreshImage();
    }
}
