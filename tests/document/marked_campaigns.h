// Campaigns of which every scenario can be told from all others, for tests that move them about.
#pragma once

#include "document/campaign_data.h"
#include "tests/document/prerequisite_graphs.h"
#include "tests/document/samples.h"

#include <QVector>

// Campaign maps of these many regions, by number.
constexpr unsigned mapOf3 = 3;
constexpr unsigned mapOf9 = 4;
constexpr unsigned mapOf20 = 20;
constexpr unsigned mapOf21 = 21;

inline void setConversionTables()
{
    samples::setTables();
    EditorData::campaignInfo[int(mapOf20)].regionCount = 20;
    EditorData::campaignInfo[int(mapOf21)].regionCount = 21;
}

// Every field has a value of its own.
inline ScenarioData markedScenario(unsigned mark, bool withMap)
{
    ScenarioData scenario;
    scenario.mapFileName = withMap ? QString("map%1.e3m").arg(mark) : QString();
    scenario.compressedMap = withMap ? QByteArray(int(mark) + 1, char(mark)) : QByteArray();
    scenario.mapSize = quint32(scenario.compressedMap.size());
    scenario.regionColor = quint8(mark % 8);
    scenario.defaultDifficulty = quint8(mark % 5);
    scenario.regionText = QString("region %1").arg(mark);
    for (unsigned i = 0; i < 3; ++i) {
        const QString text = QString("story %1 of %2").arg(i).arg(mark);
        scenario.prologues[i] =
            std::make_shared<CmpPrologue>(CmpPrologue{quint8(mark), quint8(i), text});
        scenario.epilogues[i] =
            std::make_shared<CmpPrologue>(CmpPrologue{quint8(i), quint8(mark), text});
    }
    scenario.crossover.heroKeeps.setBit(4, mark % 2 == 0);
    scenario.crossover.artifacts.setBit(int(mark));
    scenario.crossover.creatures.setBit(int(mark) + 1);
    scenario.startOptions = std::make_shared<CmpScenarioStartOptions>();
    scenario.mapHeader = withMap ? std::make_shared<MapHeader>() : nullptr;
    return scenario;
}

// Everything but the prerequisites; shared records have to be the very same.
inline bool isSame(const ScenarioData &a, const ScenarioData &b)
{
    return a.mapFileName == b.mapFileName && a.mapSize == b.mapSize &&
           a.regionColor == b.regionColor && a.defaultDifficulty == b.defaultDifficulty &&
           a.regionText == b.regionText && a.prologues == b.prologues &&
           a.epilogues == b.epilogues && a.crossover.heroKeeps == b.crossover.heroKeeps &&
           a.crossover.artifacts == b.crossover.artifacts &&
           a.crossover.creatures == b.crossover.creatures && a.startOptions == b.startOptions &&
           a.mapHeader == b.mapHeader && a.compressedMap == b.compressedMap;
}

inline bool isEmpty(const ScenarioData &scenario)
{
    return isSame(scenario, ScenarioData());
}

// Rows as in campaignOf; the scenarios with an "m" have a map.
inline CampaignData markedCampaign(const QString &maps, const QStringList &rows)
{
    CampaignData campaign;
    campaign.mapId = quint8(mapOf9);
    const CampaignData graph = campaignOf(rows);
    for (int i = 0; i < maps.size(); ++i) {
        campaign.scenarios.push_back(markedScenario(unsigned(i), maps[i] == 'm'));
        campaign.scenarios.back().prerequisites = graph.scenarios[size_t(i)].prerequisites;
    }
    return campaign;
}

inline CampaignData chainOf(const QString &maps)
{
    CampaignData campaign;
    campaign.hasMap = false;
    campaign.customValue = 1;
    campaign.scenarioCount = quint32(maps.size());
    for (int i = 0; i < maps.size(); ++i)
        campaign.scenarios.push_back(markedScenario(unsigned(i), maps[i] == 'm'));
    return campaign;
}

// Which scenarios of the old campaign these are, by their marks; -1 for an empty one.
inline QVector<int> placesIn(const CampaignData &before, const CampaignData &after)
{
    QVector<int> places;
    for (const ScenarioData &scenario : after.scenarios) {
        int place = -1;
        for (size_t i = 0; i < before.scenarios.size(); ++i) {
            if (isSame(scenario, before.scenarios[i]))
                place = int(i);
        }
        places << (place < 0 && !isEmpty(scenario) ? -2 : place);
    }
    return places;
}
