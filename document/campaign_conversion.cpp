#include "document/campaign_conversion.h"

#include "document/campaign_data.h"
#include "document/campaign_records.h"
#include "document/prerequisites.h"

#include <QDebug>
#include <QMap>

#include <algorithm>
#include <set>

namespace {

using NewPlaces = QMap<unsigned int, unsigned int>; // by the old place

bool hasMap(const ScenarioData &scenario)
{
    return scenario.mapHeader != nullptr;
}

// All bits are taken out before any is put back, so none moves twice. A bit whose scenario has no
// new place stays. No scenario moves up, so no bit comes to stand past the array's end.
void followScenarios(ScenarioData &scenario, const NewPlaces &places)
{
    std::vector<unsigned int> required;
    for (auto place = places.begin(); place != places.end(); ++place) {
        if (!hasPrerequisite(scenario, place.key()))
            continue;
        required.push_back(place.value());
        setPrerequisite(scenario, place.key(), false);
    }
    for (const unsigned int place : required)
        setPrerequisite(scenario, place, true);
}

// The scenarios with a map that require nothing, and all that lead on from them.
std::set<ScenarioData *> reachableScenarios(CampaignData &campaign)
{
    std::set<ScenarioData *> reachable; // by their addresses: in the campaign's order
    for (std::size_t i = 0; i < campaign.scenarios.size(); ++i) {
        ScenarioData &scenario = campaign.scenarios[i];
        if (!hasMap(scenario) || scenario.prerequisites.count(true) != 0)
            continue;
        qDebug() << "(ADD CAMP" << i << "to list)";
        reachable.insert(&scenario);
        addAllWithPrecondition(campaign, int(i), reachable);
    }
    return reachable;
}

} // namespace

unsigned int scenariosWithMap(const CampaignData &campaign)
{
    return unsigned(std::count_if(campaign.scenarios.begin(), campaign.scenarios.end(), hasMap));
}

void moveToCampaignMap(CampaignData &campaign, unsigned int mapId)
{
    NewPlaces places;
    std::vector<ScenarioData> moved;
    for (std::size_t i = 0; i < campaign.scenarios.size(); ++i) {
        if (!hasMap(campaign.scenarios[i]))
            continue;
        places[unsigned(i)] = unsigned(moved.size());
        moved.push_back(std::move(campaign.scenarios[i]));
    }
    campaign.clear();
    campaign.mapId = quint8(mapId);
    campaign.scenarios = std::move(moved);
    for (ScenarioData &scenario : campaign.scenarios)
        followScenarios(scenario, places);
    campaign.scenarios.resize(campaign.countOfScenarios());
    resizePrerequisites(campaign);
}

// Only what finds a region is linked: a chain of 30,000 takes a hundred megabytes of bits.
void convertToCampaignMap(CampaignData &campaign, unsigned int mapId)
{
    campaign.mapId = quint8(mapId);
    campaign.hasMap = true;
    const unsigned int links = scenariosWithMap(campaign);
    const std::size_t regions = campaign.countOfScenarios();
    std::vector<ScenarioData> chain;
    for (ScenarioData &scenario : campaign.scenarios) {
        if (chain.size() == regions)
            break;
        if (!hasMap(scenario))
            continue;
        scenario.prerequisites = chainPrerequisites(scenario, int(chain.size()) - 1, links);
        chain.push_back(std::move(scenario));
    }
    chain.resize(regions);
    campaign.scenarios = std::move(chain);
    campaign.scenarioCount = quint32(regions);
}

void convertToBackground(CampaignData &campaign, unsigned int backgroundId)
{
    campaign.mapId = 0;
    campaign.hasMap = false;
    campaign.customValue = qint32(backgroundId);
    std::vector<ScenarioData> kept;
    for (ScenarioData *scenario : reachableScenarios(campaign))
        kept.push_back(std::move(*scenario));
    if (kept.empty()) {
        kept.resize(1); // there is always one
        kept.front().prerequisites.clear();
    }
    campaign.scenarios = std::move(kept);
    campaign.scenarioCount = quint32(campaign.scenarios.size());
}
