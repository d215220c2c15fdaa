// What the main window shows of the document: the scene with the regions, the title, the name of
// the selected region.
#include "shell/main_window.h"

#include "gamedata/campaign_picture.h"
#include "gamedata/editor_data.h"
#include "shell/campaign_map_view.h"
#include "shell/campaign_region_item.h"
#include "ui_MainWindow.h"

#include <QGraphicsPixmapItem>
#include <QLabel>

namespace {

constexpr quint32 newItemState = 2;
constexpr int colourWithoutScenario = 2;

QString untitledFile()
{
    return QStringLiteral("Untitled.e3c");
}

// A text as a title bar shows it: Qt takes a single "[*]" for the place of its own modified mark.
QString forTitleBar(QString text)
{
    const QString place = QStringLiteral("[*]");
    return text.replace(place, place + place);
}

} // namespace

void MainWindow::refreshCampaignView()
{
    QGraphicsScene *scene = mapBrowser->getGraphicsView()->scene();
    scene->clear();
    regionItems.clear();
    EditorData::info.currentItem = nullptr;
    const CampaignInfo &map = EditorData::campaignMap(campaignId);
    const QImage background =
        campaignBackground(campaign.hasMap ? map.backgroundName
                                           : nameOf(EditorData::backgrounds, campaign.customValue));
    if (background.isNull())
        return;
    addBackground(background);
    if (!campaign.hasMap)
        return;
    regionItems.reserve(map.regions.size());
    for (int i = 0; i < map.regions.size(); ++i)
        addRegion(i);
}

void MainWindow::addBackground(const QImage &picture)
{
    auto *item = new QGraphicsPixmapItem(QPixmap::fromImage(picture));
    item->setData(mapItemKindKey, backgroundItemKind);
    item->setFlag(QGraphicsItem::ItemIsSelectable, false);
    mapBrowser->getGraphicsView()->scene()->addItem(item);
}

void MainWindow::addRegion(int index)
{
    QGraphicsScene *scene = mapBrowser->getGraphicsView()->scene();
    const CampaignRegion &region = EditorData::campaignMap(campaignId).regions[index];
    auto item = std::make_unique<CampaignRegionItem>();
    item->mainWindow = this;
    item->scene = scene;
    item->state = newItemState;
    item->regionIndex = quint32(index);
    item->campaignId = campaignId;
    item->setData(mapItemKindKey, regionItemKind);
    item->setPos(region.x, region.y);
    item->setFlag(QGraphicsItem::ItemIsSelectable, true);
    item->isSelected = item->regionIndex == currentRegion;
    item->regionColor = quint32(getRegionColor(index));
    const auto number = std::size_t(index);
    item->hasScenario =
        number < campaign.scenarios.size() && campaign.scenarios[number].mapHeader != nullptr;
    item->refreshImage();
    scene->addItem(item.get());
    regionItems.append(item.release());
}

int MainWindow::getRegionColor(int region)
{
    if (region < 0 || std::size_t(region) >= campaign.scenarios.size())
        return colourWithoutScenario;
    return campaign.scenarios[std::size_t(region)].regionColor;
}

void MainWindow::updateRegionLabel()
{
    const auto &regions = EditorData::campaignMap(campaignId).regions;
    const bool named = campaign.hasMap && currentRegion < quint32(regions.size());
    regionLabel->setText(named ? regions[int(currentRegion)].name : QString());
    // A screen reader tells it when it changes.
    mapBrowser->getGraphicsView()->setAccessibleDescription(regionLabel->text());
}

void MainWindow::resetWindowTitle()
{
    setWindowTitle(forTitleBar(tr("%1 - %2").arg(untitledFile(), cmpEditorTitle())));
}

void MainWindow::updateWindowTitle()
{
    if (currentFile.isEmpty()) {
        resetWindowTitle();
        return;
    }
    const QString mark = EditorData::info.modified ? QStringLiteral("*") : QString();
    setWindowTitle(
        forTitleBar(tr("%1%3 - %2").arg(strippedName(currentFile), cmpEditorTitle(), mark)));
}
