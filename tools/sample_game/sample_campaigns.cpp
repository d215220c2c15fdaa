#include "tools/sample_game/sample_campaigns.h"

#include "tools/sample_game/campaign_maps.h"
#include "tools/sample_game/sample_maps.h"

#include <numeric>

namespace sample {

namespace {

constexpr int kWellsMap = 15;
constexpr int kWellsRegions = 7;
constexpr int kReadyMadeRegions = 5;
constexpr int kWinterMap = 8;
constexpr int kWinterRegions = 4;
constexpr int kEmberMap = 27;
constexpr int kEmberRegions = 6;
constexpr int kFastDeflate = 1; // not the level of the editor's own files

// A chain through the scenarios with maps; the one in between waits for its map.
CampaignPlan withoutMap()
{
    CampaignPlan plan;
    plan.hasMap = false;
    plan.background = 2;
    plan.name = QStringLiteral("The Ferryman's Year");
    plan.description = QStringLiteral("Four seasons on one river. Winter is still being written.");
    plan.music = kLullaby;
    plan.scenarios = {scenarioOn(MillPond), ScenarioPlan(), scenarioOn(NineWells),
                      scenarioOn(SnowPass)};
    plan.scenarios[2].prerequisites = {0};
    plan.scenarios[3].prerequisites = {2};
    plan.scenarios[0].prologues = {{1, kLullaby, QStringLiteral("Spring, and the ice goes out.")}};
    plan.scenarios[3].epilogues = {{20, kSnowbound, QStringLiteral("The river closed behind us.")}};
    return plan;
}

CampaignPlan ofOldVersion(int version)
{
    CampaignPlan plan;
    plan.version = version;
    plan.mapId = kWellsMap;
    plan.name = QStringLiteral("Caravan of the Ninth Well");
    plan.description = QStringLiteral("A campaign kept in the format of version %1.").arg(version);
    plan.music = kRoadEast;
    plan.scenarios.resize(kWellsRegions);
    plan.scenarios[0] = scenarioOn(OldFord);
    plan.scenarios[1] = scenarioOn(NineWells);
    plan.scenarios[3] = scenarioOn(KarrunDrums);
    plan.scenarios[0].colour = 4;
    plan.scenarios[1].prerequisites = {0};
    plan.scenarios[3].prerequisites = {1};
    plan.scenarios[0].prologues = {{7, kRoadEast, QStringLiteral("The drums began at noon.")}};
    plan.scenarios[3].epilogues = {{3, kCampfire, QStringLiteral("The drums had stopped.")}};
    plan.scenarios[1].artifacts = {7, 100, 128};
    plan.scenarios[1].creatures = {84, 85, 144};
    plan.scenarios[3].start.kind = StartKind::Crossover;
    plan.scenarios[3].start.offers = {{0, 1}};
    return plan;
}

CampaignPlan version6()
{
    CampaignPlan plan = ofOldVersion(6);
    plan.scenarios[1].artifacts = {7, 100, 128, 143};
    plan.scenarios[0].start.kind = StartKind::Bonus;
    plan.scenarios[0].start.bonuses = {{BonusKind::Resource, 0, 0, 15}};
    return plan;
}

CampaignPlan readyMadePictures()
{
    CampaignPlan plan;
    plan.mapId = kReadyMadeMap;
    plan.name = QStringLiteral("Salt and Sail");
    plan.description = QString::fromUtf8("Five isles, one lighthouse, no café.");
    plan.music = kRiverMarch;
    plan.scenarios.resize(kReadyMadeRegions);
    plan.scenarios[0] = scenarioOn(Saltharbour);
    plan.scenarios[1] = scenarioOn(BarrowNight);
    plan.scenarios[4] = scenarioOn(TollBridge);
    plan.scenarios[1].prerequisites = {0};
    plan.scenarios[4].prerequisites = {0};
    plan.scenarios[0].colour = 1;
    plan.scenarios[1].colour = 5;
    plan.scenarios[4].colour = 7;
    return plan;
}

CampaignPlan noMapsYet()
{
    CampaignPlan plan;
    plan.mapId = kWinterMap;
    plan.name = QStringLiteral("The White Page");
    plan.music = kSnowbound;
    plan.scenarios.resize(kWinterRegions);
    return plan;
}

CampaignPlan foreignPacker()
{
    CampaignPlan plan;
    plan.mapId = kEmberMap;
    plan.name = QStringLiteral("Cinders for the Kiln");
    plan.description = QStringLiteral("Packed by another program, in more haste.");
    plan.subVersion = 0;
    plan.deflateLevel = kFastDeflate;
    plan.music = kCampfire;
    plan.scenarios.resize(kEmberRegions);
    plan.scenarios[0] = scenarioOn(AshRoad);
    plan.scenarios[2] = scenarioOn(KarrunDrums);
    plan.scenarios[0].colour = 0;
    plan.scenarios[2].prerequisites = {0};
    plan.scenarios[2].artifacts = range(60, 120);
    plan.scenarios[0].regionText = QStringLiteral("The kilns at the coast never go out.");
    return plan;
}

} // namespace

ScenarioPlan scenarioOn(int sampleMap)
{
    const MapPlan &map = sampleMaps().at(size_t(sampleMap));
    ScenarioPlan scenario;
    scenario.mapFileName = map.fileName;
    scenario.mapFile = mapFile(map);
    return scenario;
}

std::vector<int> range(int first, int last)
{
    std::vector<int> numbers(size_t(last - first + 1));
    std::iota(numbers.begin(), numbers.end(), first);
    return numbers;
}

std::vector<NamedCampaign> sampleCampaigns()
{
    return {{QStringLiteral("sample.e3c"), absentQueen()},
            {QStringLiteral("without_map.e3c"), withoutMap()},
            {QStringLiteral("version_5.e3c"), ofOldVersion(5)},
            {QStringLiteral("version_6.e3c"), version6()},
            {QStringLiteral("ready_made_pictures.e3c"), readyMadePictures()},
            {QStringLiteral("no_maps_yet.e3c"), noMapsYet()},
            {QStringLiteral("foreign_packer.e3c"), foreignPacker()}};
}

} // namespace sample
