#include "document/scenario_names.h"

#include "document/campaign_data.h"
#include "gamedata/editor_data.h"

#include <QObject>

namespace {

// Null if the campaign lacks it.
const ScenarioData *scenarioOf(const CampaignData &campaign, unsigned int scenario)
{
    return scenario < campaign.scenarios.size() ? &campaign.scenarios[scenario] : nullptr;
}

QString regionName(unsigned int campaignMap, unsigned int region)
{
    const QVector<CampaignRegion> &regions = EditorData::campaignMap(campaignMap).regions;
    return region < unsigned(regions.size()) ? regions[int(region)].name : QString();
}

QString nameAndRegion(const QString &name, unsigned int campaignMap, unsigned int region)
{
    return QObject::tr("%1 — %2").arg(name, regionName(campaignMap, region));
}

// Not for translators: a number and a name.
QString numbered(unsigned int number, const QString &name)
{
    return QStringLiteral("%1. %2").arg(QString::number(number), name);
}

} // namespace

QString getScenarioFilename(CampaignData *campaign, unsigned int campaignMap, unsigned int scenario)
{
    const ScenarioData *data = scenarioOf(*campaign, scenario);
    const QString name = data ? data->mapFileName : QString();
    if (campaign->hasMap)
        return nameAndRegion(name.isEmpty() ? QObject::tr("Empty") : name, campaignMap, scenario);
    if (name.isEmpty())
        return QObject::tr("%1. Empty").arg(scenario + 1);
    return numbered(scenario + 1, name);
}

QString getScenarioName(CampaignData *campaign, unsigned int campaignMap, unsigned int scenario)
{
    const ScenarioData *data = scenarioOf(*campaign, scenario);
    const QString name =
        data && data->mapHeader ? data->mapHeader->mapName : QObject::tr("No scenario");
    return campaign->hasMap ? nameAndRegion(name, campaignMap, scenario) : numbered(scenario, name);
}
