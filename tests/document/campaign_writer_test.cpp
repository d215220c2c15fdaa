// The bytes of a campaign file as they are written.
#include "document/campaign_data.h"
#include "tests/document/campaign_pieces.h"
#include "tests/document/samples.h"

#include <QDataStream>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

class CampaignWriterTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void writesTheBytesOfTheFormat();
    void theMapsNumberIsWrittenPlusOne_data();
    void theMapsNumberIsWrittenPlusOne();
    void aCampaignWithoutMapsIsOneMember();
    void theMemberIsThatOfTheGzFunctionsAndItsEndFollowsTheRule();
    void readingAndWritingGivesTheSameBytes();
    void anOlderFileIsWrittenInTheNewestFormat_data();
    void anOlderFileIsWrittenInTheNewestFormat();
    void aCampaignWithoutAMapIsAChain();
    void aScenarioOutsideTheCampaignFollowsTheLastMap();
    void aSingleRecordTakesItsBitsFromTheMapInWork();
    void recordsFollowTheCampaignsOwnMap();
    void missingScenariosAreWrittenAsNewOnes();
    void scenariosBeyondTheCountStayOut();
    void anAbsurdCountInMemoryDoesNoHarm();
    void mapsAreWrittenInTheirPromisedSize();
    void theVersionInMemoryDoesNotMatter();
    void thirtyThousandScenariosSurvive();

private:
    CampaignData readBack(const std::vector<QByteArray> &pieces);

    QTemporaryDir m_folder;
};

void CampaignWriterTest::init()
{
    samples::setTables();
}

CampaignData CampaignWriterTest::readBack(const std::vector<QByteArray> &pieces)
{
    QFile file(samples::writeFile(m_folder.filePath("back.e3c"), joined(pieces)));
    file.open(QIODevice::ReadOnly);
    CampaignData campaign;
    const auto failure = campaign.readCampaign(&file);
    if (failure)
        qWarning("%s", qPrintable(*failure));
    return campaign;
}

void CampaignWriterTest::writesTheBytesOfTheFormat()
{
    EditorData::campaignInfo[3].regionCount = 1;
    CampaignData c;
    c.initDummyCampaign(3, true, 0, 0);
    c.customValue = -2;
    c.scenarioCount = 9; // written as it is
    c.name = "Ember";
    c.difficultySelectable = true;
    ScenarioData &s = c.scenarios[0];
    s.mapFileName = "a.e3m";
    s.compressedMap = "the map's bytes";
    s.mapSize = 15;
    s.prerequisites.setBit(0);
    s.regionText = "Go";
    s.prologues[1] = std::make_shared<CmpPrologue>(CmpPrologue{3, 4, "Dawn"});
    s.epilogues[0] = std::make_shared<CmpPrologue>(CmpPrologue{5, 6, ""});
    s.crossover.creatures.setBit(146);
    s.crossover.artifacts.setBit(149);

    const std::vector<QByteArray> pieces = c.toPieces();
    QCOMPARE(pieces.size(), size_t(2));
    QCOMPARE(pieces[1], QByteArray("the map's bytes"));
    const QByteArray expected = ByteWriter()
                                    .u32(10)
                                    .u32(1)
                                    .u8(1)
                                    .i32(-2)
                                    .u32(9)
                                    .u8(4)
                                    .text("Ember")
                                    .u32(0)
                                    .u8(1)
                                    .u8(34)
                                    .text("a.e3m")
                                    .u32(15)
                                    .u8(1)
                                    .u8(2)
                                    .u8(1)
                                    .text("Go")
                                    .u8(0)
                                    .u8(1)
                                    .u8(3)
                                    .u8(4)
                                    .text("Dawn")
                                    .u8(0)
                                    .u8(1)
                                    .u8(5)
                                    .u8(6)
                                    .u32(0)
                                    .u8(0)
                                    .u8(0)
                                    .u8(0x0F)
                                    .zeros(18)
                                    .u8(1 << 2)
                                    .zeros(18)
                                    .u8(1 << 5)
                                    .u8(0)
                                    .bytes();
    QCOMPARE(unpacked(pieces[0]), expected);
}

void CampaignWriterTest::theMapsNumberIsWrittenPlusOne_data()
{
    QTest::addColumn<unsigned>("mapId");
    QTest::addColumn<int>("byte");
    QTest::newRow("0") << 0u << 1;
    QTest::newRow("24") << 24u << 25;
    QTest::newRow("254") << 254u << 255;
    QTest::newRow("255") << 255u << 0;
}

void CampaignWriterTest::theMapsNumberIsWrittenPlusOne()
{
    QFETCH(unsigned, mapId);
    QFETCH(int, byte);
    CampaignData c;
    c.initDummyCampaign(mapId, true, 0, 0);
    constexpr int inFront = 4 + 4 + 1 + 4 + 4;
    QCOMPARE(int(uchar(unpacked(c.toPieces()[0]).at(inFront))), byte);
}

void CampaignWriterTest::aCampaignWithoutMapsIsOneMember()
{
    CampaignData c;
    c.initDummyCampaign(3, true, 0, 0);
    QCOMPARE(c.toPieces().size(), size_t(1));
}

void CampaignWriterTest::theMemberIsThatOfTheGzFunctionsAndItsEndFollowsTheRule()
{
    CampaignData c;
    c.initDummyCampaign(4, true, 0, 0);
    for (ScenarioData &scenario : c.scenarios)
        scenario.regionText = QString::fromLatin1(samples::noise(30000).toHex());
    const QByteArray member = c.toPieces()[0];
    QByteArray header = unpacked(member);
    const QString path = m_folder.filePath("gz");
    std::unique_ptr<gzFile_s, gz_deleter> handle(gzopen(path.toLocal8Bit().constData(), "wb"));
    gzwrite(handle.get(), header.constData(), unsigned(header.size()));
    handle.reset();
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(member, file.readAll());
    QCOMPARE(get_gz_compressed_size(reinterpret_cast<uchar *>(header.data()), header.size()) + 12,
             member.size());
}

void CampaignWriterTest::readingAndWritingGivesTheSameBytes()
{
    const QByteArray file = samples::campaign(10, samples::mapFile(32, 7), samples::mapFile(21));
    CampaignData c = readBack({file});
    QCOMPARE(joined(c.toPieces()), file);
    QCOMPARE(joined(readBack(c.toPieces()).toPieces()), file);
}

void CampaignWriterTest::anOlderFileIsWrittenInTheNewestFormat_data()
{
    QTest::addColumn<quint32>("version");
    QTest::newRow("5") << 5u;
    QTest::newRow("6") << 6u;
}

void CampaignWriterTest::anOlderFileIsWrittenInTheNewestFormat()
{
    QFETCH(quint32, version);
    const QByteArray first = samples::mapFile(28);
    const QByteArray last = samples::mapFile(14);
    CampaignData old = readBack({samples::campaign(version, first, last)});
    CampaignData c = readBack(old.toPieces());
    QCOMPARE(c.version, 10u);
    QCOMPARE(c.name, old.name);
    QCOMPARE(c.description, old.description);
    QCOMPARE(c.musicId, old.musicId);
    QCOMPARE(c.scenarios.size(), size_t(3));
    QCOMPARE(c.scenarios[0].compressedMap, first);
    QCOMPARE(c.scenarios[2].compressedMap, last);
    for (size_t i = 0; i < 3; ++i) {
        const ScenarioData &before = old.scenarios[i];
        const ScenarioData &after = c.scenarios[i];
        QCOMPARE(after.mapFileName, before.mapFileName);
        QCOMPARE(after.prerequisites, before.prerequisites);
        QCOMPARE(after.regionText, before.regionText);
        QCOMPARE(after.prologues[0]->text, QString("Once"));
        QCOMPARE(after.crossover.creatures, before.crossover.creatures);
        QCOMPARE(after.crossover.artifacts, before.crossover.artifacts);
        QCOMPARE(bool(after.startOptions), bool(before.startOptions));
    }
    QVERIFY(c.scenarios[0].crossover.artifacts.testBit(version == 5 ? 128 : 143));
    const QByteArray header = unpacked(old.toPieces()[0]);
    QCOMPARE(header.left(9), QByteArray("\x0A\0\0\0\1\0\0\0\1", 9));
}

static CampaignData chain(const QByteArray &maps)
{
    CampaignData c;
    c.initDummyCampaign(24, false, 0, unsigned(maps.size()));
    for (size_t i = 0; i < c.scenarios.size(); ++i) {
        c.scenarios[i].prerequisites.fill(true); // of no effect
        if (maps[int(i)] == 'm')
            c.scenarios[i].mapHeader = std::make_shared<MapHeader>();
    }
    return c;
}

void CampaignWriterTest::aCampaignWithoutAMapIsAChain()
{
    CampaignData c = chain("m-mm");
    const CampaignData back = readBack(c.toPieces());
    QBitArray expected(4);
    QCOMPARE(back.scenarios[0].prerequisites, expected);
    QCOMPARE(back.scenarios[1].prerequisites, expected);
    expected.setBit(0);
    QCOMPARE(back.scenarios[2].prerequisites, expected);
    expected.clearBit(0);
    expected.setBit(2);
    QCOMPARE(back.scenarios[3].prerequisites, expected);
    QCOMPARE(c.scenarios[0].prerequisites, QBitArray(4, true)); // memory stays as it was
}

static QByteArray recordOf(ScenarioData &scenario, CampaignData &campaign)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    scenario.WriteToStream(stream, &campaign);
    return bytes;
}

void CampaignWriterTest::aScenarioOutsideTheCampaignFollowsTheLastMap()
{
    CampaignData c = chain("m-mm");
    QCOMPARE(recordOf(c.scenarios[3], c).mid(8, 1), QByteArray("\4"));
    ScenarioData copy = c.scenarios[0];
    QCOMPARE(recordOf(copy, c).mid(8, 1), QByteArray("\x08"));
}

void CampaignWriterTest::aSingleRecordTakesItsBitsFromTheMapInWork()
{
    CampaignData c;
    c.initDummyCampaign(3, true, 0, 0);
    const int size = recordOf(c.scenarios[0], c).size();
    EditorData::info.campaign = 4; // nine regions, a byte more
    QCOMPARE(recordOf(c.scenarios[0], c).size(), size + 1);
}

void CampaignWriterTest::recordsFollowTheCampaignsOwnMap()
{
    CampaignData c;
    c.initDummyCampaign(3, true, 0, 0);
    const QByteArray inStep = joined(c.toPieces());
    EditorData::info.campaign = 4;
    QCOMPARE(joined(c.toPieces()), inStep);
    QCOMPARE(EditorData::info.campaign, 4u);
}

void CampaignWriterTest::missingScenariosAreWrittenAsNewOnes()
{
    CampaignData c;
    c.initDummyCampaign(3, true, 0, 0);
    c.scenarios[0].regionText = "first";
    c.scenarios.resize(1);
    const CampaignData back = readBack(c.toPieces());
    QCOMPARE(back.scenarios.size(), size_t(3));
    QCOMPARE(back.scenarios[0].regionText, QString("first"));
    QCOMPARE(back.scenarios[2].regionColor, quint8(2));
    QCOMPARE(back.scenarios[2].defaultDifficulty, quint8(1));
}

void CampaignWriterTest::scenariosBeyondTheCountStayOut()
{
    CampaignData c;
    c.initDummyCampaign(24, false, 0, 2);
    c.scenarios.resize(5);
    c.scenarios[4].compressedMap = "map";
    c.scenarios[4].mapSize = 3;
    QCOMPARE(c.toPieces().size(), size_t(1));
    QCOMPARE(readBack(c.toPieces()).scenarios.size(), size_t(2));
}

void CampaignWriterTest::anAbsurdCountInMemoryDoesNoHarm()
{
    EditorData::nArtifacts = 0;
    EditorData::nCreatures = 0;
    CampaignData c;
    c.hasMap = false;
    c.scenarioCount = 4294967295u;
    QCOMPARE(readBack(c.toPieces()).scenarioCount, 30000u);
}

void CampaignWriterTest::mapsAreWrittenInTheirPromisedSize()
{
    CampaignData c;
    c.initDummyCampaign(3, true, 0, 0);
    c.scenarios[0].compressedMap = "longer than said";
    c.scenarios[0].mapSize = 6;
    c.scenarios[1].compressedMap = "not said at all";
    c.scenarios[2].compressedMap = "less";
    c.scenarios[2].mapSize = 400;
    const std::vector<QByteArray> pieces = c.toPieces();
    QCOMPARE(pieces.size(), size_t(3));
    QCOMPARE(pieces[1], QByteArray("longer"));
    QCOMPARE(pieces[2], QByteArray("less"));
    const CampaignData back = readBack(pieces);
    QCOMPARE(back.scenarios[0].mapSize, 6u);
    QCOMPARE(back.scenarios[1].mapSize, 0u);
    QCOMPARE(back.scenarios[2].mapSize, 4u);
    QCOMPARE(back.scenarios[2].compressedMap, QByteArray("less"));
}

void CampaignWriterTest::theVersionInMemoryDoesNotMatter()
{
    CampaignData c;
    c.initDummyCampaign(3, true, 0, 0);
    const QByteArray bytes = joined(c.toPieces());
    c.version = 5;
    QCOMPARE(joined(c.toPieces()), bytes);
}

void CampaignWriterTest::thirtyThousandScenariosSurvive()
{
    CampaignData c;
    c.initDummyCampaign(24, false, 0, 30000);
    for (ScenarioData &scenario : c.scenarios)
        scenario.mapHeader = std::make_shared<MapHeader>();
    c.scenarios[29999].regionText = "the last";
    const CampaignData back = readBack(c.toPieces());
    QCOMPARE(back.scenarios.size(), size_t(30000));
    QCOMPARE(back.scenarios[29999].regionText, QString("the last"));
    QCOMPARE(back.scenarios[29999].prerequisites.size(), 30000);
    QCOMPARE(back.scenarios[29999].prerequisites.count(true), 1);
    QVERIFY(back.scenarios[29999].prerequisites.testBit(29998));
}

QTEST_GUILESS_MAIN(CampaignWriterTest)
#include "campaign_writer_test.moc"
