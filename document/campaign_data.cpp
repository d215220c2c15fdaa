#include "document/campaign_data.h"

#include "gamedata/editor_data.h"
#include "gamedata/limits.h"

#include <algorithm>

namespace {

constexpr quint8 defaultMusic = 34;
constexpr int heroKeepsSet = 4; // the first of them
constexpr int defaultPrerequisites = 12;

} // namespace

ScenarioData::ScenarioData()
{
    setBasicBitsets();
}

void ScenarioData::clear()
{
    mapFileName.clear();
    mapSize = 0;
    prerequisites.clear();
    regionColor = 2;
    regionText.clear();
    prologues.fill(nullptr);
    epilogues.fill(nullptr);
    crossover = {};
    compressedMap.clear();
    mapHeader.reset();
    setBasicBitsets();
}

void ScenarioData::setBasicBitsets()
{
    crossover.heroKeeps.resize(heroKeepsBits);
    crossover.artifacts.resize(int(EditorData::nArtifacts));
    crossover.creatures.resize(int(EditorData::nCreatures));
    prerequisites.resize(defaultPrerequisites);
    crossover.heroKeeps.fill(true, 0, heroKeepsSet);
}

CampaignData::CampaignData()
{
    registerStartOptionTypes();
}

void CampaignData::clear()
{
    scenarios.clear();
    scenarioCount = 0;
}

void CampaignData::initDummyCampaign(unsigned int newMapId, bool newHasMap,
                                     unsigned int newCustomValue, unsigned int newScenarioCount)
{
    clear();
    version = newestCampaignVersion;
    mapId = quint8(newMapId);
    name.clear();
    description.clear();
    difficultySelectable = false;
    musicId = defaultMusic;
    spareCounter = 1;
    hasMap = newHasMap;
    if (!hasMap) {
        customValue = qint32(newCustomValue);
        scenarioCount = std::min(newScenarioCount, limits::scenarios);
    }
    const unsigned int count = countOfScenarios();
    scenarios.resize(count);
    const QBitArray clearBits(int(count), false); // shared by all until somebody sets a bit
    for (ScenarioData &scenario : scenarios)
        scenario.prerequisites = clearBits;
    EditorData::info.campaign = mapId;
}

unsigned int CampaignData::countOfScenarios() const
{
    if (!hasMap)
        return scenarioCount;
    return unsigned(std::max(0, EditorData::campaignMap(mapId).regionCount));
}
