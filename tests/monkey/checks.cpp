#include "tests/monkey/checks.h"

#include "gamedata/editor_data.h"
#include "scenario/scenario_info.h"
#include "shell/campaign_region_item.h"
#include "tests/monkey/window_state.h"

#include <QApplication>
#include <QFileInfo>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QListWidget>

#include <climits>

namespace {

constexpr int itemKind = 256;
constexpr int regionKind = 1;

QString faultOfOptions(const ScenarioData &scenario)
{
    if (!scenario.startOptions)
        return {};
    const CmpScenarioStartOptions &options = *scenario.startOptions;
    const QVariant &data = options.optionData;
    const bool fits = options.optionType == 0 ||
                      (options.optionType == 1 && data.canConvert<StartingBonusSet>()) ||
                      (options.optionType == 2 && data.canConvert<HeroCrossoverSet>()) ||
                      (options.optionType == 3 && data.canConvert<StartingHeroSet>());
    return fits ? QString() : QStringLiteral("the start options are of another type than told");
}

QString faultOfScenario(const ScenarioData &scenario, int scenarioCount)
{
    if (scenario.crossover.heroKeeps.size() != heroKeepsBits ||
        unsigned(scenario.crossover.artifacts.size()) != EditorData::nArtifacts ||
        unsigned(scenario.crossover.creatures.size()) != EditorData::nCreatures)
        return QStringLiteral("an array of the crossover has the wrong width");
    if (scenario.mapSize != quint32(scenario.compressedMap.size()))
        return QStringLiteral("mapSize isn't the size of the map");
    if (scenario.mapHeader && scenario.compressedMap.isEmpty())
        return QStringLiteral("a map's header stands without its map");
    for (int i = scenarioCount; i < scenario.prerequisites.size(); ++i) {
        if (scenario.prerequisites.testBit(i))
            return QStringLiteral("a scenario is required that isn't there");
    }
    return faultOfOptions(scenario);
}

QString expectedTitle(MainWindow &window)
{
    const QString file = fileOf(window);
    if (file.isEmpty())
        return QStringLiteral("Untitled.e3c - ") + cmpEditorTitle();
    const QString mark = EditorData::info.modified ? QStringLiteral("*") : QString();
    return QFileInfo(file).fileName() + mark + QStringLiteral(" - ") + cmpEditorTitle();
}

QString faultOfRegion(const CampaignRegionItem &item, MainWindow &window)
{
    const CampaignData &campaign = documentOf(window);
    const auto index = std::size_t(item.regionIndex);
    if (index >= campaign.scenarios.size())
        return QStringLiteral("a region on show has no scenario");
    const ScenarioData &scenario = campaign.scenarios[index];
    if (item.regionColor != scenario.regionColor)
        return QStringLiteral("region %1 has another colour on the map").arg(index);
    if (item.isSelected != (index == window.currentRegion))
        return QStringLiteral("region %1 shows a selection that isn't").arg(index);
    return {};
}

QString faultOfMap(MainWindow &window)
{
    const CampaignData &campaign = documentOf(window);
    const auto *view = window.findChild<QGraphicsView *>(QStringLiteral("graphicsView"));
    const auto items = view->scene()->items(Qt::AscendingOrder);
    int regions = 0;
    for (QGraphicsItem *item : items) {
        if (item->data(itemKind).toInt() != regionKind)
            continue;
        ++regions;
        QString fault = faultOfRegion(*static_cast<CampaignRegionItem *>(item), window);
        if (!fault.isEmpty())
            return fault;
    }
    const int expected = campaign.hasMap ? EditorData::campaignMap(campaign.mapId).regionCount : 0;
    const bool shown = !items.isEmpty(); // nothing is if the background is missing
    return shown && regions != expected ? QStringLiteral("the map shows %1 regions").arg(regions)
                                        : QString();
}

} // namespace

QString faultOfCampaign(const CampaignData &campaign)
{
    const auto count = int(campaign.scenarios.size());
    if (campaign.hasMap && count != EditorData::campaignMap(campaign.mapId).regionCount)
        return QStringLiteral("%1 scenarios on map %2").arg(count).arg(campaign.mapId);
    if (!campaign.hasMap && campaign.scenarioCount != quint32(count))
        return QStringLiteral("scenarioCount is %1 of %2").arg(campaign.scenarioCount).arg(count);
    for (int i = 0; i < count; ++i) {
        const QString fault =
            faultOfScenario(campaign.scenarios[std::size_t(i)], campaign.hasMap ? count : INT_MAX);
        if (!fault.isEmpty())
            return QStringLiteral("scenario %1: %2").arg(QString::number(i), fault);
    }
    return {};
}

QString faultOfWindow(MainWindow &window)
{
    const CampaignData &campaign = documentOf(window);
    if (QApplication::overrideCursor())
        return QStringLiteral("the cursor still says that something is being done");
    if (window.windowTitle().replace(QLatin1String("[*][*]"), QLatin1String("[*]")) !=
        expectedTitle(window))
        return QStringLiteral("the title is \"%1\"").arg(window.windowTitle());
    if (EditorData::info.region != 0 && EditorData::info.region >= campaign.scenarios.size())
        return QStringLiteral("region %1 is selected").arg(EditorData::info.region);
    if (campaign.hasMap && window.campaignId != campaign.mapId)
        return QStringLiteral("map %1 is on show").arg(window.campaignId);
    return faultOfMap(window);
}

QString faultOfScenarioDialog(ScenarioInfo &dialog)
{
    const auto *list = dialog.findChild<QListWidget *>(QStringLiteral("listWidget"));
    if (std::size_t(list->count()) != dialog.editedCampaign().scenarios.size())
        return QStringLiteral("%1 rows for %2 scenarios")
            .arg(list->count())
            .arg(dialog.editedCampaign().scenarios.size());
    for (int row = 0; row < list->count(); ++row) {
        if (list->item(row)->data(Qt::UserRole).toInt() != row)
            return QStringLiteral("row %1 stands for another scenario").arg(row);
    }
    return {};
}
