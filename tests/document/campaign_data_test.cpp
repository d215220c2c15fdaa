// The records of a campaign in memory: their defaults, their clearing, and empty campaigns.
#include "document/campaign_data.h"

#include "tests/document/samples.h"

#include <QtTest>

class CampaignDataTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aNewScenarioHasItsDefaults();
    void clearingAScenarioKeepsDifficultyAndStartOptions();
    void settingTheBasicBitsClearsNone();
    void aNewCampaignHasItsDefaults();
    void clearingACampaignKeepsItsHead();
    void makesAnEmptyCampaignOnAMap();
    void makesAnEmptyCampaignWithoutAMap();
    void makesNoMoreScenariosThanTheEditorAllows();
    void countsScenariosByTheMapOrByTheNumber();
    void aMapThatTheTableLacksHasNoScenariosAndStaysAbsent();
    void copiesShareStoriesUntilReplaced();
    void recordsOfAMapAreZeroUntilRead();
    void aCustomHeroIsTheTablesLastOne();
};

void CampaignDataTest::init()
{
    samples::setTables();
}

static QBitArray bits(const char *text)
{
    QBitArray array(int(qstrlen(text)));
    for (int i = 0; i < array.size(); ++i)
        array.setBit(i, text[i] == '1');
    return array;
}

void CampaignDataTest::aNewScenarioHasItsDefaults()
{
    const ScenarioData scenario;
    QCOMPARE(scenario.mapFileName, QString());
    QCOMPARE(scenario.mapSize, 0u);
    QCOMPARE(scenario.prerequisites, QBitArray(12, false));
    QCOMPARE(scenario.regionColor, quint8(2));
    QCOMPARE(scenario.defaultDifficulty, quint8(1));
    QCOMPARE(scenario.regionText, QString());
    for (int i = 0; i < 3; ++i) {
        QVERIFY(!scenario.prologues[size_t(i)]);
        QVERIFY(!scenario.epilogues[size_t(i)]);
    }
    QCOMPARE(scenario.crossover.heroKeeps, bits("11110"));
    QCOMPARE(scenario.crossover.artifacts, QBitArray(150, false));
    QCOMPARE(scenario.crossover.creatures, QBitArray(147, false));
    QVERIFY(!scenario.startOptions);
    QVERIFY(!scenario.mapHeader);
    QVERIFY(scenario.compressedMap.isEmpty());
}

void CampaignDataTest::clearingAScenarioKeepsDifficultyAndStartOptions()
{
    ScenarioData scenario;
    scenario.mapFileName = "a.e3m";
    scenario.mapSize = 3;
    scenario.prerequisites = QBitArray(30, true);
    scenario.regionColor = 6;
    scenario.defaultDifficulty = 4;
    scenario.regionText = "text";
    scenario.prologues.fill(std::make_shared<CmpPrologue>());
    scenario.epilogues.fill(std::make_shared<CmpPrologue>());
    scenario.crossover.heroKeeps = bits("00001");
    scenario.crossover.artifacts = QBitArray(200, true);
    scenario.crossover.creatures = QBitArray(10, true);
    const auto options = std::make_shared<CmpScenarioStartOptions>();
    scenario.startOptions = options;
    scenario.mapHeader = std::make_shared<MapHeader>();
    scenario.compressedMap = "map";

    scenario.clear();

    QCOMPARE(scenario.defaultDifficulty, quint8(4));
    QCOMPARE(scenario.startOptions, options);
    QCOMPARE(scenario.mapFileName, QString());
    QCOMPARE(scenario.mapSize, 0u);
    QCOMPARE(scenario.prerequisites, QBitArray(12, false));
    QCOMPARE(scenario.regionColor, quint8(2));
    QCOMPARE(scenario.regionText, QString());
    for (size_t i = 0; i < 3; ++i)
        QVERIFY(!scenario.prologues[i] && !scenario.epilogues[i]);
    QCOMPARE(scenario.crossover.heroKeeps, bits("11110"));
    QCOMPARE(scenario.crossover.artifacts, QBitArray(150, false));
    QCOMPARE(scenario.crossover.creatures, QBitArray(147, false));
    QVERIFY(!scenario.mapHeader);
    QVERIFY(scenario.compressedMap.isEmpty());
}

void CampaignDataTest::settingTheBasicBitsClearsNone()
{
    ScenarioData scenario;
    scenario.crossover.heroKeeps = bits("00001");
    scenario.crossover.artifacts.setBit(3);
    scenario.crossover.creatures = QBitArray(2, true);
    scenario.prerequisites = QBitArray(4, true);
    scenario.setBasicBitsets();
    QCOMPARE(scenario.crossover.heroKeeps, bits("11111"));
    QVERIFY(scenario.crossover.artifacts.testBit(3));
    QCOMPARE(scenario.crossover.creatures.size(), 147);
    QCOMPARE(scenario.crossover.creatures.count(true), 2);
    QCOMPARE(scenario.prerequisites, bits("111100000000"));
}

void CampaignDataTest::aNewCampaignHasItsDefaults()
{
    const CampaignData campaign;
    QVERIFY(campaign.hasMap);
    QVERIFY(!campaign.spareFlag);
    QVERIFY(campaign.scenarios.empty());
    QCOMPARE(campaign.name, QString());
    QCOMPARE(campaign.description, QString());
    QCOMPARE(campaign.customValue, 0);
    QCOMPARE(campaign.scenarioCount, 0u);
    QCOMPARE(campaign.version, 0u);
    QCOMPARE(campaign.mapId, quint8(0));
    QVERIFY(!campaign.difficultySelectable);
    QCOMPARE(campaign.musicId, quint8(0));
    QCOMPARE(campaign.spareCounter, 0);
}

void CampaignDataTest::clearingACampaignKeepsItsHead()
{
    CampaignData campaign;
    campaign.mapId = 3;
    campaign.name = "Ember Road";
    campaign.customValue = 5;
    campaign.scenarioCount = 2;
    campaign.scenarios.resize(2);
    campaign.clear();
    QVERIFY(campaign.scenarios.empty());
    QCOMPARE(campaign.scenarioCount, 0u);
    QCOMPARE(campaign.mapId, quint8(3));
    QCOMPARE(campaign.name, QString("Ember Road"));
    QVERIFY(campaign.hasMap);
    QCOMPARE(campaign.customValue, 5);
}

void CampaignDataTest::makesAnEmptyCampaignOnAMap()
{
    CampaignData campaign;
    campaign.name = "old";
    campaign.description = "old";
    campaign.difficultySelectable = true;
    campaign.customValue = 7;
    campaign.scenarioCount = 9;
    campaign.scenarios.resize(5);
    campaign.scenarios[0].regionText = "old";
    campaign.initDummyCampaign(3, true, 1, 8);
    QCOMPARE(campaign.version, 10u);
    QCOMPARE(campaign.mapId, quint8(3));
    QCOMPARE(campaign.name, QString());
    QCOMPARE(campaign.description, QString());
    QVERIFY(!campaign.difficultySelectable);
    QCOMPARE(campaign.musicId, quint8(34));
    QCOMPARE(campaign.spareCounter, 1);
    QVERIFY(campaign.hasMap);
    QCOMPARE(campaign.customValue, 7);
    QCOMPARE(campaign.scenarioCount, 0u);
    QCOMPARE(campaign.scenarios.size(), size_t(3));
    QCOMPARE(campaign.scenarios[0].regionText, QString());
    for (const ScenarioData &scenario : campaign.scenarios)
        QCOMPARE(scenario.prerequisites, QBitArray(3, false));
    QCOMPARE(EditorData::info.campaign, 3u);
}

void CampaignDataTest::makesAnEmptyCampaignWithoutAMap()
{
    CampaignData campaign;
    campaign.initDummyCampaign(24, false, 6, 20);
    QVERIFY(!campaign.hasMap);
    QCOMPARE(campaign.mapId, quint8(24));
    QCOMPARE(campaign.customValue, 6);
    QCOMPARE(campaign.scenarioCount, 20u);
    QCOMPARE(campaign.scenarios.size(), size_t(20));
    QCOMPARE(campaign.scenarios[19].prerequisites, QBitArray(20, false));
    QCOMPARE(EditorData::info.campaign, 24u);
}

void CampaignDataTest::makesNoMoreScenariosThanTheEditorAllows()
{
    CampaignData campaign;
    campaign.initDummyCampaign(24, false, 0, 4000000000u);
    QCOMPARE(campaign.scenarios.size(), size_t(30000));
    QCOMPARE(campaign.scenarioCount, 30000u);
}

void CampaignDataTest::countsScenariosByTheMapOrByTheNumber()
{
    CampaignData campaign;
    campaign.mapId = 3;
    campaign.scenarioCount = 8;
    QCOMPARE(campaign.countOfScenarios(), 3u);
    EditorData::campaignInfo[3].regionCount = -1;
    QCOMPARE(campaign.countOfScenarios(), 0u);
    campaign.hasMap = false;
    QCOMPARE(campaign.countOfScenarios(), 8u);
}

void CampaignDataTest::aMapThatTheTableLacksHasNoScenariosAndStaysAbsent()
{
    CampaignData campaign;
    campaign.initDummyCampaign(99, true, 0, 0);
    QVERIFY(campaign.scenarios.empty());
    QCOMPARE(EditorData::campaignInfo.count(99), size_t(0));
}

void CampaignDataTest::copiesShareStoriesUntilReplaced()
{
    ScenarioData scenario;
    scenario.prologues[0] = std::make_shared<CmpPrologue>();
    scenario.prologues[0]->text = "first";
    ScenarioData copy = scenario;
    QCOMPARE(copy.prologues[0], scenario.prologues[0]);
    copy.prologues[0] = std::make_shared<CmpPrologue>(*copy.prologues[0]);
    copy.prologues[0]->text = "second";
    QCOMPARE(scenario.prologues[0]->text, QString("first"));
}

void CampaignDataTest::recordsOfAMapAreZeroUntilRead()
{
    const MapHeader header;
    QCOMPARE(header.version, 0u);
    QCOMPARE(header.subVersion, 0u);
    for (const PlayerAttributes &player : header.players) {
        for (const int value :
             {int(player.canHuman), int(player.canComputer), int(player.behaviour),
              int(player.allowedTownsLow), int(player.allowedTowns), int(player.townIsRandom),
              int(player.hasMainTown), int(player.generatesHero), int(player.mainTownType),
              int(player.randomHero), int(player.mainHeroId), int(player.mainHeroPortrait),
              int(player.placeholderCount)})
            QCOMPARE(value, 0);
        QCOMPARE(player.mainTownPosition, (std::array<quint8, 3>{}));
        QCOMPARE(player.mainHeroName, QString());
        QVERIFY(player.heroInfo.empty());
    }
    QVERIFY(header.headerHeroes.available.isEmpty());
}

void CampaignDataTest::aCustomHeroIsTheTablesLastOne()
{
    QCOMPARE(HeaderHero().heroId, quint8(162));
    QCOMPARE(HeaderHero().portrait, quint8(0));
    QCOMPARE(HeaderHero().playerMask, quint8(0));
    EditorData::heroes.clear();
    QCOMPARE(HeaderHero().heroId, quint8(255));
    for (int hero = 0; hero < 300; ++hero)
        EditorData::heroes[hero] = "hero";
    QCOMPARE(HeaderHero().heroId, quint8(43)); // 299 without its upper bits
}

QTEST_GUILESS_MAIN(CampaignDataTest)
#include "campaign_data_test.moc"
