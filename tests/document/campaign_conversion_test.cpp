// A campaign on other ground: which scenarios are kept, where they stand and what they require.
#include "document/campaign_conversion.h"
#include "tests/document/marked_campaigns.h"

#include <QTest>

class CampaignConversionTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { setConversionTables(); }

    void countsScenariosWithAMap();
    void mapChangeMovesScenariosToTheFront();
    void mapChangeTakesPrerequisitesAlong_data();
    void mapChangeTakesPrerequisitesAlong();
    void mapChangeKeepsTheRestOfTheCampaign();
    void backgroundToMapMakesAChain_data();
    void backgroundToMapMakesAChain();
    void backgroundToMapSetsTheCampaign();
    void longestCampaignIsCutAtTheRegions();
    void mapToBackgroundKeepsWhatARootLeadsTo_data();
    void mapToBackgroundKeepsWhatARootLeadsTo();
    void mapToBackgroundNamesTheRoots();
    void mapToBackgroundLeavesPrerequisitesAlone();
    void mapToBackgroundSetsTheCampaign();
    void mapToBackgroundLeavesOneScenario_data();
    void mapToBackgroundLeavesOneScenario();
    void shortAndMissingArraysAreHarmless();
};

void CampaignConversionTest::countsScenariosWithAMap()
{
    QCOMPARE(scenariosWithMap(CampaignData()), 0U);
    QCOMPARE(scenariosWithMap(chainOf("--")), 0U);
    QCOMPARE(scenariosWithMap(chainOf("m-mm-")), 3U);
}

void CampaignConversionTest::mapChangeMovesScenariosToTheFront()
{
    const CampaignData before = markedCampaign("-m--mm--m", {"", "", "", "", "", "", "", "", ""});
    CampaignData campaign = before;
    EditorData::campaignInfo[5].regionCount = 6;
    moveToCampaignMap(campaign, 5);
    QCOMPARE(int(campaign.mapId), 5);
    QCOMPARE(placesIn(before, campaign), QVector<int>({1, 4, 5, 8, -1, -1}));
}

void CampaignConversionTest::mapChangeTakesPrerequisitesAlong_data()
{
    QTest::addColumn<QString>("maps");
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QStringList>("after"); // on three regions
    QTest::newRow("nothing to move")
        << "mmm" << QStringList{"000", "100", "110"} << QStringList{"000", "100", "110"};
    QTest::newRow("one place down") << "-mmm" << QStringList{"0000", "0000", "0100", "0110"}
                                    << QStringList{"000", "100", "110"};
    // 1 comes to stand where 0 stood, and 2 where 1 stood: neither goes on from there.
    QTest::newRow("into places just left") << "-mmm" << QStringList{"0000", "0011", "0001", "0100"}
                                           << QStringList{"011", "001", "100"};
    QTest::newRow("a bit of a region without a map stays")
        << "m-mm" << QStringList{"0000", "0000", "1000", "0100"}
        << QStringList{"000", "100", "010"};
    QTest::newRow("a moved bit joins one that stays")
        << "m-mm" << QStringList{"0000", "0000", "0000", "0110"}
        << QStringList{"000", "000", "010"};
    QTest::newRow("a bit that stays behind the last region goes")
        << "mm--" << QStringList{"0001", "1010", "0000", "0000"}
        << QStringList{"000", "101", "000"};
    QTest::newRow("what dropped scenarios required is gone")
        << "m-m-" << QStringList{"0000", "1000", "1000", "1010"}
        << QStringList{"000", "100", "000"};
}

void CampaignConversionTest::mapChangeTakesPrerequisitesAlong()
{
    QFETCH(QString, maps);
    QFETCH(QStringList, before);
    QFETCH(QStringList, after);
    CampaignData campaign = markedCampaign(maps, before);
    moveToCampaignMap(campaign, mapOf3);
    QCOMPARE(rowsOf(campaign), after);
}

void CampaignConversionTest::mapChangeKeepsTheRestOfTheCampaign()
{
    CampaignData campaign = markedCampaign("m", {"0"});
    campaign.version = 6;
    campaign.name = "Ember Road";
    campaign.description = "Three steps";
    campaign.difficultySelectable = true;
    campaign.musicId = 7;
    campaign.spareFlag = true;
    campaign.customValue = 3;
    campaign.spareCounter = 9;
    EditorData::info.modified = false;
    moveToCampaignMap(campaign, mapOf3);
    QCOMPARE(campaign.version, 6U);
    QCOMPARE(campaign.name, QString("Ember Road"));
    QCOMPARE(campaign.description, QString("Three steps"));
    QVERIFY(campaign.difficultySelectable);
    QCOMPARE(int(campaign.musicId), 7);
    QVERIFY(campaign.spareFlag);
    QCOMPARE(campaign.customValue, 3);
    QCOMPARE(campaign.spareCounter, 9);
    QVERIFY(campaign.hasMap);
    QVERIFY(!EditorData::info.modified);
}

void CampaignConversionTest::backgroundToMapMakesAChain_data()
{
    QTest::addColumn<QString>("maps");
    QTest::addColumn<QVector<int>>("places"); // on three regions
    QTest::addColumn<QStringList>("rows");
    const QString empty(12, '0');
    QTest::newRow("as many as regions")
        << "mmm" << QVector<int>{0, 1, 2} << QStringList{"000", "100", "010"};
    QTest::newRow("more than regions")
        << "mmmmm" << QVector<int>{0, 1, 2} << QStringList{"00000", "10000", "01000"};
    QTest::newRow("fewer than regions")
        << "m" << QVector<int>{0, -1, -1} << QStringList{"0", empty, empty};
    QTest::newRow("some without a map")
        << "-m-m-" << QVector<int>{1, 3, -1} << QStringList{"00", "10", empty};
    QTest::newRow("none with a map")
        << "--" << QVector<int>{-1, -1, -1} << QStringList{empty, empty, empty};
}

void CampaignConversionTest::backgroundToMapMakesAChain()
{
    QFETCH(QString, maps);
    QFETCH(QVector<int>, places);
    QFETCH(QStringList, rows);
    const CampaignData before = chainOf(maps);
    CampaignData campaign = before;
    campaign.scenarios.front().prerequisites.fill(true); // of no account
    convertToCampaignMap(campaign, mapOf3);
    QCOMPARE(placesIn(before, campaign), places);
    QCOMPARE(rowsOf(campaign), rows);
}

void CampaignConversionTest::backgroundToMapSetsTheCampaign()
{
    CampaignData campaign = chainOf("m-mm");
    campaign.musicId = 7;
    campaign.name = "Ember Road";
    convertToCampaignMap(campaign, mapOf9);
    QVERIFY(campaign.hasMap);
    QCOMPARE(int(campaign.mapId), int(mapOf9));
    QCOMPARE(campaign.scenarioCount, 9U);
    QCOMPARE(campaign.scenarios.size(), size_t(9));
    QCOMPARE(campaign.customValue, 1);
    QCOMPARE(int(campaign.musicId), 7);
    QCOMPARE(campaign.name, QString("Ember Road"));
}

void CampaignConversionTest::longestCampaignIsCutAtTheRegions()
{
    CampaignData campaign = chainOf(QString(100, 'm'));
    campaign.scenarios.resize(30000, campaign.scenarios.front());
    convertToCampaignMap(campaign, mapOf3);
    QCOMPARE(campaign.scenarios.size(), size_t(3));
    QCOMPARE(campaign.scenarios[2].prerequisites.size(), 30000);
    QVERIFY(campaign.scenarios[2].prerequisites.testBit(1));
}

void CampaignConversionTest::mapToBackgroundKeepsWhatARootLeadsTo_data()
{
    QTest::addColumn<QString>("maps");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QVector<int>>("kept");
    QTest::newRow("a chain") << "mmm" << QStringList{"000", "100", "010"} << QVector<int>{0, 1, 2};
    QTest::newRow("a chain backwards")
        << "mmm" << QStringList{"010", "001", "000"} << QVector<int>{0, 1, 2};
    QTest::newRow("two roots") << "mmmm" << QStringList{"0000", "0000", "1000", "0100"}
                               << QVector<int>{0, 1, 2, 3};
    QTest::newRow("an empty array is a root")
        << "mm" << QStringList{"", "10"} << QVector<int>{0, 1};
    QTest::newRow("regions without a map go")
        << "-m-m" << QStringList{"0000", "0000", "0000", "0100"} << QVector<int>{1, 3};
    QTest::newRow("one without a map that a root leads to stays")
        << "m-m" << QStringList{"000", "100", "010"} << QVector<int>{0, 1, 2};
    QTest::newRow("one prerequisite on a kept one is enough")
        << "m-m" << QStringList{"000", "000", "110"} << QVector<int>{0, 2};
    QTest::newRow("what only one without a map leads to goes")
        << "m-m" << QStringList{"000", "000", "010"} << QVector<int>{0};
    QTest::newRow("a cycle without a root goes")
        << "mmmm" << QStringList{"0000", "0010", "0100", "1000"} << QVector<int>{0, 3};
    QTest::newRow("a cycle that a root leads to stays")
        << "mmm" << QStringList{"000", "101", "010"} << QVector<int>{0, 1, 2};
}

void CampaignConversionTest::mapToBackgroundKeepsWhatARootLeadsTo()
{
    QFETCH(QString, maps);
    QFETCH(QStringList, rows);
    QFETCH(QVector<int>, kept);
    const CampaignData before = markedCampaign(maps, rows);
    CampaignData campaign = before;
    convertToBackground(campaign, 1);
    QCOMPARE(placesIn(before, campaign), kept);
    QCOMPARE(campaign.scenarioCount, quint32(kept.size()));
}

void CampaignConversionTest::mapToBackgroundNamesTheRoots()
{
    CampaignData campaign = markedCampaign("m-mm", {"0000", "0000", "1000", "0000"});
    QTest::ignoreMessage(QtDebugMsg, "(ADD CAMP 0 to list)");
    QTest::ignoreMessage(QtDebugMsg, "(ADD CAMP 3 to list)");
    convertToBackground(campaign, 0);
}

void CampaignConversionTest::mapToBackgroundLeavesPrerequisitesAlone()
{
    CampaignData campaign = markedCampaign("-m-mm", {"00000", "00000", "00000", "01000", "0101"});
    convertToBackground(campaign, 0);
    QCOMPARE(rowsOf(campaign), QStringList({"00000", "01000", "0101"}));
}

void CampaignConversionTest::mapToBackgroundSetsTheCampaign()
{
    CampaignData campaign = markedCampaign("m-m", {"000", "000", "000"});
    campaign.musicId = 7;
    campaign.name = "Ember Road";
    convertToBackground(campaign, 5);
    QVERIFY(!campaign.hasMap);
    QCOMPARE(int(campaign.mapId), 0);
    QCOMPARE(campaign.customValue, 5);
    QCOMPARE(campaign.scenarioCount, 2U);
    QCOMPARE(int(campaign.musicId), 7);
    QCOMPARE(campaign.name, QString("Ember Road"));
}

void CampaignConversionTest::mapToBackgroundLeavesOneScenario_data()
{
    QTest::addColumn<QString>("maps");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("no root") << "mmm" << QStringList{"001", "100", "010"};
    QTest::newRow("all require themselves") << "mm" << QStringList{"10", "01"};
    QTest::newRow("no map") << "---" << QStringList{"000", "100", "010"};
    QTest::newRow("no region") << "" << QStringList{};
}

void CampaignConversionTest::mapToBackgroundLeavesOneScenario()
{
    QFETCH(QString, maps);
    QFETCH(QStringList, rows);
    CampaignData campaign = markedCampaign(maps, rows);
    convertToBackground(campaign, 1);
    QCOMPARE(campaign.scenarios.size(), size_t(1));
    QVERIFY(isEmpty(campaign.scenarios.front()));
    QCOMPARE(campaign.scenarios.front().prerequisites.size(), 0);
    // As many as the file will hold.
    QCOMPARE(campaign.countOfScenarios(), 1U);
}

void CampaignConversionTest::shortAndMissingArraysAreHarmless()
{
    CampaignData campaign = markedCampaign("-mmm", {"", "0", "01", ""});
    CampaignData moved = campaign;
    moveToCampaignMap(moved, mapOf3);
    QCOMPARE(rowsOf(moved), QStringList({"000", "100", "000"}));
    moveToCampaignMap(campaign, 77); // a map that the tables lack has no regions
    QCOMPARE(campaign.scenarios.size(), size_t(0));
}

QTEST_MAIN(CampaignConversionTest)
#include "campaign_conversion_test.moc"
