// Campaign files that are well-formed: what every field of every version is read as.
#include "tests/document/campaign_reading.h"

#include <QDataStream>
#include <QtTest>

#include <zlib.h>

class CampaignReaderTest : public QObject, private CampaignReading
{
    Q_OBJECT

private slots:
    void init();
    void readsEveryField_data();
    void readsEveryField();
    void readsTheMapsBehindTheHeader_data();
    void readsTheMapsBehindTheHeader();
    void subversionZeroIsReadAlike();
    void anyByteButZeroLetsTheDifficultyBeChosen();
    void readsACampaignWithoutAMap();
    void aCampaignWithoutAMapIsACampaignOnTheTable();
    void theMapsNumberIsStoredPlusOne_data();
    void theMapsNumberIsStoredPlusOne();
    void aMapThatTheTableLacksHasNoScenarios();
    void prerequisitesFitTheCountOfScenarios();
    void setsTheEditorsState();
    void anOldFileResetsTheNewFields();
    void whatNoFileHoldsStays();
    void aScenarioReadAgainForgetsWhatItHeld();
    void crossoverBitsOfOldFilesFitTheTables_data();
    void crossoverBitsOfOldFilesFitTheTables();
    void readsTheFileWhateverThePositionOfItsHandle();
};

void CampaignReaderTest::init()
{
    samples::setTables();
}

static QBitArray bits(int size, std::initializer_list<int> set)
{
    QBitArray array(size);
    for (const int bit : set)
        array.setBit(bit);
    return array;
}

void CampaignReaderTest::readsEveryField_data()
{
    addVersions();
}

void CampaignReaderTest::readsEveryField()
{
    QFETCH(quint32, version);
    CampaignData c;
    QVERIFY(!read(c, samples::pack(samples::campaignRecords(version, 0, 0))));
    QCOMPARE(c.version, version);
    QCOMPARE(c.mapId, quint8(3));
    QVERIFY(c.hasMap);
    QCOMPARE(c.name, QString("Ember Road"));
    QCOMPARE(c.description, QString("Three steps"));
    QVERIFY(c.difficultySelectable);
    QCOMPARE(c.musicId, quint8(34));
    QCOMPARE(c.scenarios.size(), size_t(3));
    const ScenarioData &s = c.scenarios[0];
    QCOMPARE(s.mapFileName, QString("one.e3m"));
    QCOMPARE(s.mapSize, 0u);
    QVERIFY(!s.mapHeader);
    QCOMPARE(s.prerequisites, bits(3, {}));
    QCOMPARE(c.scenarios[1].prerequisites, bits(3, {0}));
    QCOMPARE(c.scenarios[2].prerequisites, bits(3, {0, 1}));
    QCOMPARE(s.regionColor, quint8(5));
    QCOMPARE(s.defaultDifficulty, quint8(4));
    QCOMPARE(s.regionText, QString("Begin"));
    QCOMPARE(c.scenarios[1].regionText, QString());
    QVERIFY(s.prologues[0]);
    QCOMPARE(s.prologues[0]->videoId, quint8(7));
    QCOMPARE(s.prologues[0]->musicIndex, quint8(9));
    QCOMPARE(s.prologues[0]->text, QString("Once"));
    QVERIFY(!s.prologues[1] && !s.prologues[2] && !s.epilogues[0] && !s.epilogues[1]);
    QCOMPARE(bool(s.epilogues[2]), version == 10);
    if (version == 10)
        QCOMPARE(s.epilogues[2]->text, QString("At last"));
    QCOMPARE(s.crossover.heroKeeps, bits(5, {0, 4}));
    QCOMPARE(s.crossover.creatures, bits(147, {0, 144}));
    const int lastArtifact = version == 5 ? 128 : version == 6 ? 143 : 149;
    QCOMPARE(s.crossover.artifacts, bits(150, {1, lastArtifact}));
    QCOMPARE(s.startOptions->optionType, 1u);
    QVERIFY(!c.scenarios[1].startOptions);
}

void CampaignReaderTest::readsTheMapsBehindTheHeader_data()
{
    QTest::addColumn<quint32>("version");
    QTest::addColumn<int>("level");
    for (const quint32 version : {5u, 6u, 10u}) {
        for (const int level : {Z_DEFAULT_COMPRESSION, 0, 1, 9})
            QTest::newRow(qPrintable(QString("version %1, level %2").arg(version).arg(level)))
                << version << level;
    }
}

void CampaignReaderTest::readsTheMapsBehindTheHeader()
{
    QFETCH(quint32, version);
    QFETCH(int, level);
    const QByteArray first = samples::mapFile(28);
    const QByteArray last = samples::mapFile(14);
    CampaignData c;
    QVERIFY(!read(c, samples::campaign(version, first, last, level)));
    QCOMPARE(c.scenarios[0].compressedMap, first);
    QCOMPARE(c.scenarios[0].mapSize, quint32(first.size()));
    QCOMPARE(c.scenarios[0].mapHeader->version, 28u);
    QCOMPARE(c.scenarios[0].mapHeader->headerHeroes.customHeroes.size(), size_t(2));
    QVERIFY(!c.scenarios[1].mapHeader);
    QVERIFY(c.scenarios[1].compressedMap.isEmpty());
    QCOMPARE(c.scenarios[2].compressedMap, last);
    QCOMPARE(c.scenarios[2].mapHeader->version, 14u);
}

void CampaignReaderTest::subversionZeroIsReadAlike()
{
    samples::Head head;
    head.subversion = 0;
    head.name = "Zero";
    CampaignData c;
    QVERIFY(!read(c, samples::pack(samples::head(head))));
    QCOMPARE(c.name, QString("Zero"));
    QCOMPARE(c.scenarios.size(), size_t(3));
}

void CampaignReaderTest::anyByteButZeroLetsTheDifficultyBeChosen()
{
    for (const unsigned byte : {0u, 1u, 2u, 255u}) {
        samples::Head head;
        head.difficultySelectable = byte;
        CampaignData c;
        QVERIFY(!read(c, samples::pack(samples::head(head))));
        QCOMPARE(c.difficultySelectable, byte != 0);
    }
}

void CampaignReaderTest::readsACampaignWithoutAMap()
{
    samples::Head head;
    head.hasMap = 0;
    head.customValue = -6;
    head.scenarioCount = 2;
    head.mapIdByte = 25;
    const QByteArray bytes = samples::head(head) + samples::record(10, {"a.e3m"}) +
                             samples::record(10, {"b.e3m", 0, "\1"});
    CampaignData c;
    QVERIFY(!read(c, samples::pack(bytes)));
    QVERIFY(!c.hasMap);
    QCOMPARE(c.customValue, -6);
    QCOMPARE(c.scenarioCount, 2u);
    QCOMPARE(c.mapId, quint8(24));
    QCOMPARE(c.scenarios.size(), size_t(2));
    QCOMPARE(c.scenarios[1].prerequisites, bits(2, {0})); // as stored
}

void CampaignReaderTest::aCampaignWithoutAMapIsACampaignOnTheTable()
{
    samples::Head head;
    head.hasMap = 7;                  // any byte but 0
    head.scenarioCount = 4000000000u; // of no meaning with a map, but kept
    CampaignData c;
    QVERIFY(!read(c, samples::pack(samples::head(head))));
    QVERIFY(c.hasMap);
    QCOMPARE(c.scenarioCount, 4000000000u);
    QCOMPARE(c.scenarios.size(), size_t(3));
}

void CampaignReaderTest::theMapsNumberIsStoredPlusOne_data()
{
    QTest::addColumn<unsigned>("byte");
    QTest::addColumn<int>("mapId");
    QTest::newRow("0") << 1u << 0;
    QTest::newRow("24") << 25u << 24;
    QTest::newRow("255") << 0u << 255;
    QTest::newRow("254") << 255u << 254;
}

void CampaignReaderTest::theMapsNumberIsStoredPlusOne()
{
    QFETCH(unsigned, byte);
    QFETCH(int, mapId);
    samples::Head head;
    head.mapIdByte = byte;
    CampaignData c;
    QVERIFY(!read(c, samples::pack(samples::head(head))));
    QCOMPARE(int(c.mapId), mapId);
    QCOMPARE(EditorData::info.campaign, quint32(mapId));
}

void CampaignReaderTest::aMapThatTheTableLacksHasNoScenarios()
{
    samples::Head head;
    head.mapIdByte = 100;
    CampaignData c;
    QVERIFY(!read(c, samples::pack(samples::head(head) + samples::record(10, {"a.e3m"}))));
    QVERIFY(c.scenarios.empty());
    QCOMPARE(EditorData::campaignInfo.size(), size_t(3));
}

void CampaignReaderTest::prerequisitesFitTheCountOfScenarios()
{
    samples::Head head;
    head.hasMap = 0;
    head.scenarioCount = 20; // two are there
    const QByteArray all("\xFF\xFF\xFF");
    CampaignData c;
    QVERIFY(!read(c, samples::pack(samples::head(head) + samples::record(10, {"a", 0, all}) +
                                   samples::record(10, {"b", 0, all}))));
    QCOMPARE(c.scenarios.size(), size_t(2));
    QCOMPARE(c.scenarioCount, 2u);
    QCOMPARE(c.scenarios[0].prerequisites, bits(2, {0, 1}));
}

void CampaignReaderTest::setsTheEditorsState()
{
    EditorData::info.campaign = 9;
    EditorData::info.region = 2;
    EditorData::info.modified = true;
    CampaignData c;
    QVERIFY(!read(c, samples::pack(samples::campaignRecords(6, 0, 0))));
    QCOMPARE(EditorData::info.campaign, 3u);
    QCOMPARE(EditorData::info.version, 6u);
    QCOMPARE(EditorData::info.region, 0u);
    QVERIFY(EditorData::info.modified);
}

void CampaignReaderTest::anOldFileResetsTheNewFields()
{
    CampaignData c;
    c.hasMap = false;
    c.customValue = 5;
    c.scenarioCount = 7;
    c.scenarios.resize(7);
    QVERIFY(!read(c, samples::pack(samples::campaignRecords(5, 0, 0))));
    QVERIFY(c.hasMap);
    QCOMPARE(c.customValue, 0);
    QCOMPARE(c.scenarioCount, 0u);
    QCOMPARE(c.scenarios.size(), size_t(3));
}

void CampaignReaderTest::whatNoFileHoldsStays()
{
    CampaignData c;
    c.spareFlag = true;
    c.spareCounter = 5;
    QVERIFY(!read(c, samples::pack(samples::campaignRecords(10, 0, 0))));
    QVERIFY(c.spareFlag);
    QCOMPARE(c.spareCounter, 5);
}

void CampaignReaderTest::aScenarioReadAgainForgetsWhatItHeld()
{
    CampaignData c;
    c.initDummyCampaign(3, true, 0, 0);
    c.version = 5;
    ScenarioData s;
    s.mapFileName = "old.e3m";
    s.prologues.fill(std::make_shared<CmpPrologue>());
    s.epilogues.fill(std::make_shared<CmpPrologue>());
    s.mapHeader = std::make_shared<MapHeader>();
    s.compressedMap = "old";
    const auto options = std::make_shared<CmpScenarioStartOptions>();
    s.startOptions = options;
    QDataStream stream(samples::record(5, {}));
    stream.setByteOrder(QDataStream::LittleEndian);
    s.ReadFromStream(stream, &c);
    QCOMPARE(s.mapFileName, QString());
    QVERIFY(s.prologues[0] && !s.prologues[1] && !s.prologues[2]);
    QVERIFY(!s.epilogues[0] && !s.epilogues[1] && !s.epilogues[2]);
    QVERIFY(!s.mapHeader);
    QVERIFY(s.compressedMap.isEmpty());
    QCOMPARE(s.defaultDifficulty, quint8(4));
    QCOMPARE(s.startOptions, options); // a record without any leaves them
}

void CampaignReaderTest::crossoverBitsOfOldFilesFitTheTables_data()
{
    QTest::addColumn<quint32>("version");
    QTest::addColumn<int>("creatures"); // of the game's tables
    QTest::addColumn<int>("artifacts");
    QTest::addColumn<int>("creaturesSet");
    QTest::addColumn<int>("artifactsSet");
    QTest::newRow("5, larger tables") << 5u << 147 << 150 << 145 << 129;
    QTest::newRow("6, larger tables") << 6u << 147 << 150 << 145 << 144;
    QTest::newRow("5, smaller tables") << 5u << 144 << 128 << 144 << 128;
    QTest::newRow("6, smaller tables") << 6u << 9 << 100 << 9 << 100;
}

// All bits of the file's bytes are set, those behind the last one of the array too.
void CampaignReaderTest::crossoverBitsOfOldFilesFitTheTables()
{
    QFETCH(quint32, version);
    QFETCH(int, creatures);
    QFETCH(int, artifacts);
    QFETCH(int, creaturesSet);
    QFETCH(int, artifactsSet);
    EditorData::nCreatures = unsigned(creatures);
    EditorData::nArtifacts = unsigned(artifacts);
    EditorData::campaignInfo[3].regionCount = 1;
    samples::Head head;
    head.version = version;
    ByteWriter w;
    w.text("").u32(0).u8(0).u8(2).u8(1).text(""); // up to the stories
    w.u8(0).u8(0).u8(0x0F);
    w.raw(QByteArray(19, '\xFF')).raw(QByteArray(version == 5 ? 17 : 18, '\xFF'));
    w.raw(samples::bonusOfResources());
    CampaignData c;
    QVERIFY(!read(c, samples::pack(samples::head(head) + w.bytes())));
    QBitArray expectedCreatures(creatures);
    expectedCreatures.fill(true, 0, creaturesSet);
    QCOMPARE(c.scenarios[0].crossover.creatures, expectedCreatures);
    QBitArray expectedArtifacts(artifacts);
    expectedArtifacts.fill(true, 0, artifactsSet);
    QCOMPARE(c.scenarios[0].crossover.artifacts, expectedArtifacts);
    QVERIFY(c.scenarios[0].startOptions); // read from its place
    QCOMPARE(c.scenarios[0].startOptions->optionType, 1u);
}

void CampaignReaderTest::readsTheFileWhateverThePositionOfItsHandle()
{
    QFile file(write(samples::pack(samples::campaignRecords(10, 0, 0))));
    QVERIFY(file.open(QIODevice::ReadOnly));
    file.read(20);
    CampaignData c;
    QVERIFY(c.ReadFromFile(&file));
    QCOMPARE(c.scenarios.size(), size_t(3));
}

QTEST_MAIN(CampaignReaderTest)
#include "campaign_reader_test.moc"
