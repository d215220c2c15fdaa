// The campaign on show, with stories and start options of every kind.
#include "tools/sample_game/sample_campaigns.h"

#include "tools/sample_game/campaign_maps.h"
#include "tools/sample_game/sample_maps.h"

namespace sample {

namespace {

constexpr int kRed = 0;
constexpr int kBlue = 1;
constexpr int kGreen = 3;
constexpr int kRegions = 10;

// Two kinds of resource bonus that stand for several resources.
constexpr int kCommonResources = 0xfd;
constexpr int kCrowns = 6;

// The regions' scenarios; two wait for an author, and the last is the lighthouse isle.
enum Scenario
{
    Landing,
    Bridge,
    Pond,
    Ford,
    Court,
    Road,
    Weir,
    Open1,
    Open2,
    Harbour
};

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

StartOptions bonuses(int player, const std::vector<Bonus> &list)
{
    StartOptions start;
    start.kind = StartKind::Bonus;
    start.player = player;
    start.bonuses = list;
    return start;
}

StartOptions offers(StartKind kind, const std::vector<Offer> &list)
{
    StartOptions start;
    start.kind = kind;
    start.offers = list;
    return start;
}

ScenarioPlan landing()
{
    ScenarioPlan scenario = scenarioOn(LanternLanding);
    scenario.colour = 0;
    scenario.difficulty = 0;
    scenario.regionText = text("Where the ferries tie up, and where the story begins.");
    scenario.start = bonuses(kRed, {{BonusKind::Resource, 0, kCrowns, 2500},
                                    {BonusKind::Creature, kMostPowerfulHero, 0, 30},
                                    {BonusKind::Building, 0, 7}});
    scenario.prologues = {
        {1, kRiverMarch,
         text("The ferryman would take no silver. \"Hold the landing,\" he said, "
              "\"and I shall call us even.\"")},
        {7, kRiverMarch,
         text("Thirty of the reed levy came down in the rain. They had heard that "
              "there would be soup.")},
        {6, kCampfire,
         text("The council sent a smith instead of soldiers. It was the cleverest "
              "thing it had done in years.")}};
    scenario.epilogues = {{13, kLullaby,
                           text("That night lanterns came down the river, one for each ferry lost. "
                                "Nobody had lit them.")}};
    return scenario;
}

ScenarioPlan bridge()
{
    ScenarioPlan scenario = scenarioOn(TollBridge);
    scenario.prerequisites = {Landing};
    scenario.colour = 1;
    scenario.difficulty = 1;
    scenario.regionText =
        text("The toll house stands in the middle, so that both banks may hate it.");
    scenario.start = offers(StartKind::Crossover, {{kRed, Landing}});
    scenario.heroKeeps = {0, 1, 2, 3, 4};
    scenario.artifacts = {7, 15, 21, 34, 148};
    scenario.creatures = {0, 1, 2, 3, 4, 5};
    scenario.prologues = {{2, kRoadEast,
                           text("\"Two crowns for a cart,\" said Thrale, \"and I can "
                                "count wheels in the dark.\"")}};
    return scenario;
}

ScenarioPlan pond()
{
    ScenarioPlan scenario = scenarioOn(MillPond);
    scenario.prerequisites = {Landing};
    scenario.colour = 3;
    scenario.difficulty = 1;
    scenario.regionText = text("The mill wheel turns against the stream since midsummer.");
    scenario.start = offers(StartKind::Hero, {{kRed, kFernald}, {kRed, kRandomHero}, {kGreen, 20}});
    scenario.prologues = {
        {4, kLullaby, text("Fernald put his ear to the water and went pale.")},
        {3, kLullaby, text("A stranger took the oath at the mill. The pond repeated every word.")},
        {4, kCampfire, text("From the other bank it looked like any pond. That was the trick.")}};
    scenario.epilogues = {{9, kRoadEast,
                           text("The miller has sold the mill. The pond was not "
                                "mentioned in the deed.")}};
    return scenario;
}

ScenarioPlan ford()
{
    ScenarioPlan scenario = scenarioOn(OldFord);
    scenario.prerequisites = {Bridge};
    scenario.colour = 2;
    scenario.difficulty = 2;
    scenario.regionText = text("Older than the bridge, and cheaper.");
    scenario.start = bonuses(kRed, {{BonusKind::Spell, kMostPowerfulHero, 6},
                                    {BonusKind::Artifact, kMostPowerfulHero, 48},
                                    {BonusKind::Scroll, kMostPowerfulHero, 52}});
    scenario.prologues = {
        {10, kRiverMarch, text("The old chart shows a ford where the water is deepest now.")},
        {0, kRiverMarch, text("The boots were dry. They had been dry for a hundred years.")}};
    return scenario;
}

ScenarioPlan court()
{
    ScenarioPlan scenario = scenarioOn(HeronCourt);
    scenario.prerequisites = {Bridge, Pond};
    scenario.colour = 5;
    scenario.difficulty = 3;
    scenario.regionText = text("Herons nest in the throne room. It has improved the conversation.");
    scenario.start = offers(StartKind::Crossover, {{kRed, Bridge}, {kBlue, Pond}});
    scenario.heroKeeps = {0, 1, 2, 3, 4};
    scenario.artifacts = range(7, 40);
    scenario.creatures = range(0, 27);
    scenario.prologues = {
        {6, kSnowbound, text("There was a place laid for the queen. There always is.")},
        {11, kSnowbound,
         text("Uncle Glimmond had already had the coins struck with his own face.")}};
    return scenario;
}

ScenarioPlan road()
{
    ScenarioPlan scenario = scenarioOn(AshRoad);
    scenario.prerequisites = {Pond};
    scenario.colour = 4;
    scenario.difficulty = 2;
    scenario.regionText = text("Grey snow, warm to the touch.");
    scenario.start = bonuses(kRed, {{BonusKind::PrimarySkill, kGeneratedHero, 0, 0, {2, 1, 0, 1}},
                                    {BonusKind::SecondarySkill, 54, 5, 2},
                                    {BonusKind::Resource, 0, kCommonResources, 10}});
    scenario.prologues = {{8, kCampfire,
                           text("Jorrum the Débonair bowed so low that his hat caught "
                                "fire.")}};
    scenario.epilogues = {
        {12, kRoadEast, text("Behind the kilns the road went on, and it was green.")}};
    return scenario;
}

ScenarioPlan weir()
{
    ScenarioPlan scenario = scenarioOn(SealedWeir);
    scenario.prerequisites = {Ford, Court};
    scenario.colour = 6;
    scenario.difficulty = 3;
    scenario.regionText = text("Seven gates hold back the upper river. Six of them leak.");
    scenario.start = offers(StartKind::Hero, {{kRed, kTammas}, {kRed, kKnell}, {kGreen, 131}});
    scenario.prologues = {
        {9, kRiverMarch, text("Tammas had helped to build the weir. He knew which stone to pull.")},
        {5, kLullaby, text("Knell asked the drowned for the keys. They wanted candles in return.")},
        {10, kSnowbound,
         text("The regent of the fens offered help, a map and a very small boat.")}};
    scenario.epilogues = {
        {0, kRiverMarch, text("The river came down like a parade.")},
        {17, kLullaby,
         text("The bells of the drowned belfry rang, and this time they were answered.")},
        {1, kRoadEast, text("The very small boat turned out to be exactly large enough.")}};
    return scenario;
}

ScenarioPlan harbour()
{
    ScenarioPlan scenario = scenarioOn(Saltharbour);
    scenario.prerequisites = {Road, Weir};
    scenario.colour = 7;
    scenario.difficulty = 4;
    scenario.regionText = text("The last place in the realm where the queen was seen: on a ship, "
                               "steering.");
    scenario.heroKeeps = {0, 1, 2, 3, 4};
    scenario.artifacts = range(4, 165);
    scenario.creatures = range(0, 185);
    scenario.prologues = {{13, kRiverMarch, text("At dawn the fleet had wind. So had we.")}};
    scenario.epilogues = {{11, kClockworkWaltz,
                           text("\"I was not taken,\" said the queen. \"I went. "
                                "Somebody had to see where the river ends.\"")}};
    return scenario;
}

ScenarioPlan openRegion(int colour, const char *regionText)
{
    ScenarioPlan scenario;
    scenario.colour = colour;
    scenario.regionText = text(regionText);
    return scenario;
}

} // namespace

CampaignPlan absentQueen()
{
    CampaignPlan plan;
    plan.mapId = kDefaultMap;
    plan.name = text("The Absent Queen");
    plan.description = text("The queen of the River Realm left by the back door one spring "
                            "morning, and the river stopped. Follow her from the ferry landing to "
                            "the open sea, and mind the uncles.");
    plan.difficultySelectable = true;
    plan.music = kRoadEast;
    plan.scenarios.resize(kRegions);
    plan.scenarios[Landing] = landing();
    plan.scenarios[Bridge] = bridge();
    plan.scenarios[Pond] = pond();
    plan.scenarios[Ford] = ford();
    plan.scenarios[Court] = court();
    plan.scenarios[Road] = road();
    plan.scenarios[Weir] = weir();
    plan.scenarios[Open1] = openRegion(1, "Nobody has written about this valley yet.");
    plan.scenarios[Open2] = openRegion(4, "");
    plan.scenarios[Harbour] = harbour();
    return plan;
}

} // namespace sample
