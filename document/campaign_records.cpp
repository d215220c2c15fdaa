// A scenario's record.
//
//   field                            version
//   mapFileName (text)
//   mapSize (4)
//   prerequisites                    one bit a scenario
//   regionColor (1), defaultDifficulty (1)
//   regionText (text)
//   first prologue
//   second and third prologue        10
//   first epilogue
//   second and third epilogue        10
//   what heroes keep                 5 bits
//   creatures                        145 bits in 5 and 6, nCreatures in 10
//   artifacts                        129 bits in 5, 144 in 6, nArtifacts in 10
//   start options
//
// The creatures stand before the artifacts, other than in CmpScenarioCrossover.
#include "document/campaign_records.h"

#include "document/campaign_primitives.h"
#include "document/start_option_values.h"
#include "gamedata/editor_data.h"
#include "gamedata/limits.h"

#include <algorithm>

namespace {

void readStories(QDataStream &stream, quint32 version, ScenarioData::Prologues &stories)
{
    for (size_t i = 0; i < storyCount(version); ++i)
        ReadPrologueEpilogue(stream, stories[i]);
}

// The last scenario before this one that has a map, or -1. One that isn't in the campaign comes
// behind all others.
int previousWithMap(const CampaignData &campaign, const ScenarioData *scenario)
{
    int previous = -1;
    int index = 0;
    for (const ScenarioData &other : campaign.scenarios) {
        if (&other == scenario)
            break;
        if (other.mapHeader)
            previous = index;
        ++index;
    }
    return previous;
}

} // namespace

void ScenarioData::ReadFromStream(QDataStream &stream, CampaignData *campaign)
{
    clear();
    ReadHString4(stream, mapFileName);
    stream >> mapSize;
    ReadBitArray(stream, prerequisites, campaign->countOfScenarios());
    stream >> regionColor >> defaultDifficulty;
    ReadHString4(stream, regionText);
    readStories(stream, campaign->version, prologues);
    readStories(stream, campaign->version, epilogues);
    ReadBitArray(stream, crossover.heroKeeps, heroKeepsBits);
    const CrossoverBits bits = crossoverBits(campaign->version);
    ReadBitArray(stream, crossover.creatures, bits.creatures);
    ReadBitArray(stream, crossover.artifacts, bits.artifacts);
    ReadStartOptions(stream);
    crossover.artifacts.resize(int(EditorData::nArtifacts));
    crossover.creatures.resize(int(EditorData::nCreatures));
}

void ScenarioData::WriteToStream(QDataStream &stream, CampaignData *campaign)
{
    RecordContext context{prerequisites, recordCount(*campaign), mapSize};
    if (campaign->hasMap) {
        const int regions = EditorData::campaignMap(EditorData::info.campaign).regionCount;
        context.scenarioCount = unsigned(std::max(0, regions));
    } else {
        context.prerequisites =
            chainPrerequisites(*this, previousWithMap(*campaign, this), context.scenarioCount);
    }
    writeScenarioRecord(stream, *this, context);
}

CrossoverBits crossoverBits(quint32 version)
{
    if (version == 5)
        return {145, 129};
    if (version == 6)
        return {145, 144};
    return {EditorData::nCreatures, EditorData::nArtifacts};
}

unsigned int storyCount(quint32 version)
{
    return version >= newestCampaignVersion ? unsigned(std::tuple_size_v<ScenarioData::Prologues>)
                                            : 1;
}

unsigned int recordCount(const CampaignData &campaign)
{
    const unsigned int count = campaign.countOfScenarios();
    return campaign.hasMap ? count : std::min(count, limits::scenarios);
}

qint64 prerequisiteBytes(unsigned int scenarioCount)
{
    return (qint64(scenarioCount) + 7) / 8;
}

qint64 bonusMemory(const ScenarioData &scenario)
{
    if (!scenario.startOptions || scenario.startOptions->optionType != BonusOption)
        return 0;
    const auto set = scenario.startOptions->optionData.value<StartingBonusSet>();
    return qint64(set.bonuses.size()) * limits::bonusBytes;
}

QBitArray chainPrerequisites(const ScenarioData &scenario, int previous, unsigned int count)
{
    QBitArray bits(int(count), false);
    if (scenario.mapHeader && previous >= 0 && previous < bits.size())
        bits.setBit(previous);
    return bits;
}

void writeScenarioRecord(QDataStream &stream, ScenarioData &scenario, RecordContext context)
{
    WriteHString4(stream, scenario.mapFileName);
    stream << context.mapSize;
    WriteBitArray(stream, context.prerequisites, context.scenarioCount);
    stream << scenario.regionColor << scenario.defaultDifficulty;
    WriteHString4(stream, scenario.regionText);
    for (std::shared_ptr<CmpPrologue> &prologue : scenario.prologues)
        WritePrologueEpilogue(stream, prologue);
    for (std::shared_ptr<CmpPrologue> &epilogue : scenario.epilogues)
        WritePrologueEpilogue(stream, epilogue);
    WriteBitArray(stream, scenario.crossover.heroKeeps, heroKeepsBits);
    WriteBitArray(stream, scenario.crossover.creatures, EditorData::nCreatures);
    WriteBitArray(stream, scenario.crossover.artifacts, EditorData::nArtifacts);
    scenario.WriteStartOptions(stream);
}
