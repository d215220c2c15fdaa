#include "document/campaign_data.h"

#include "gamedata/limits.h"
#include "tests/document/samples.h"
#include "tests/support/processor_time.h"
#include "tests/support/sanitized.h"

#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <malloc.h>

class CampaignDamageTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void anyPrefixOfAFileReads_data();
    void anyPrefixOfAFileReads();
    void anyPrefixOfTheRecordsReads_data();
    void anyPrefixOfTheRecordsReads();
    void anyByteMayBeWrong();
    void withoutAMapTheListEndsWhereTheDataEnds();
    void aDamagedBodyHarmsNothingElse();
    void aMapThatIsNoneHasAHeaderOfZeros_data();
    void aMapThatIsNoneHasAHeaderOfZeros();
    void theStatedSizeOfAMapIsBelievedUpToTheRatio();
    void nothingBeyondTheStatedSizeIsRead();
    void aMapsHeaderIsReadUpToItsLimit();
    void allHeadersOfACampaignShareAnAllowance();
    void aMapThatIsCutKeepsWhatIsThere();
    void aMapThatIsNotThereIsNone();
    void aMapAsLargeAsTheLimitIsHeld();
    void behindAPlainHeaderTheMapsFollowAtOnce();
    void whereTheMemberDoesNotEndWellTheRuleFindsTheMaps();
    void theRestOfTheMemberIsPassedOverUpToTheLimit();
    void textsShareAnAllowance();
    void bonusesCountAsText();
    void absurdNumbersStayCheap_data();
    void absurdNumbersStayCheap();

private:
    std::optional<QString> read(CampaignData &campaign, const QByteArray &bytes)
    {
        QFile file(samples::writeFile(m_folder.filePath("c.e3c"), bytes));
        file.open(QIODevice::ReadOnly);
        return campaign.readCampaign(&file);
    }

    QTemporaryDir m_folder;
};

void CampaignDamageTest::init()
{
    samples::setTables();
}

static void addVersions()
{
    QTest::addColumn<quint32>("version");
    for (const quint32 version : {5u, 6u, 10u})
        QTest::newRow(qPrintable(QString("version %1").arg(version))) << version;
}

// What must hold of every campaign that was read, whatever its file.
static void verifySound(CampaignData &campaign)
{
    QCOMPARE(campaign.scenarios.size(), size_t(campaign.countOfScenarios()));
    std::vector<quint32> sizes;
    for (const ScenarioData &scenario : campaign.scenarios) {
        QCOMPARE(scenario.mapSize, quint32(scenario.compressedMap.size()));
        QCOMPARE(bool(scenario.mapHeader), scenario.mapSize > 0);
        QCOMPARE(scenario.prerequisites.size(), int(campaign.scenarios.size()));
        QCOMPARE(scenario.crossover.artifacts.size(), 150);
        QCOMPARE(scenario.crossover.creatures.size(), 147);
        QCOMPARE(scenario.crossover.heroKeeps.size(), 5);
    }
    size_t maps = 0;
    for (const ScenarioData &scenario : campaign.scenarios)
        maps += scenario.mapSize > 0 ? 1 : 0;
    QCOMPARE(campaign.toPieces().size(), maps + 1);
}

void CampaignDamageTest::anyPrefixOfAFileReads_data()
{
    addVersions();
}

void CampaignDamageTest::anyPrefixOfAFileReads()
{
    QFETCH(quint32, version);
    const QByteArray first = samples::mapFile(28);
    const QByteArray last = samples::mapFile(14);
    const QByteArray bytes = samples::campaign(version, first, last);
    const int front = bytes.size() - first.size() - last.size();
    for (int size = 0; size < bytes.size(); ++size) {
        CampaignData c;
        const auto failure = read(c, bytes.left(size));
        if (failure) {
            QVERIFY(size < front);
            QVERIFY(c.scenarios.empty());
            continue;
        }
        verifySound(c);
        if (size < front)
            continue;
        QCOMPARE(c.scenarios[0].compressedMap, bytes.left(size).mid(front, first.size()));
        QCOMPARE(c.scenarios[2].compressedMap, bytes.left(size).mid(front + first.size()));
    }
}

void CampaignDamageTest::anyPrefixOfTheRecordsReads_data()
{
    addVersions();
}

void CampaignDamageTest::anyPrefixOfTheRecordsReads()
{
    QFETCH(quint32, version);
    const QByteArray map = samples::mapFile(28);
    const QByteArray records = samples::campaignRecords(version, quint32(map.size()), 0);
    for (int size = 1; size < records.size(); ++size) {
        CampaignData c;
        const auto failure = read(c, samples::pack(records.left(size)) + map);
        const int versions = version == 10 ? 8 : 4;
        QCOMPARE(bool(failure), size < 4); // the version reads as zero
        if (failure)
            continue;
        verifySound(c);
        if (size > versions && c.mapId == 3)
            QCOMPARE(c.scenarios.size(), size_t(3));
        if (c.scenarios.size() == 3 && c.scenarios[0].mapSize != 0)
            QCOMPARE(c.scenarios[0].compressedMap, map);
    }
}

void CampaignDamageTest::anyByteMayBeWrong()
{
    const QByteArray map = samples::mapFile(32, 7);
    const QByteArray records = samples::campaignRecords(10, quint32(map.size()), 0);
    for (int at = 0; at < records.size(); ++at) {
        for (const char wrong : {'\xFF', '\x80', '\1'}) {
            QByteArray bytes = records;
            bytes[at] = char(bytes[at] ^ wrong);
            CampaignData c;
            if (!read(c, samples::pack(bytes) + map))
                verifySound(c);
        }
    }
}

void CampaignDamageTest::withoutAMapTheListEndsWhereTheDataEnds()
{
    samples::Head head;
    head.hasMap = 0;
    head.scenarioCount = 30000;
    const samples::Scenario scenario{"a.e3m", 0, QByteArray(3750, '\xFF'), "text"};
    const QByteArray bytes = samples::head(head) + samples::record(10, scenario) +
                             samples::record(10, scenario).left(20);
    CampaignData c;
    QVERIFY(!read(c, samples::pack(bytes)));
    QCOMPARE(c.scenarios.size(), size_t(2));
    verifySound(c);
    QCOMPARE(c.scenarios[0].regionText, QString("text"));
    QCOMPARE(c.scenarios[1].mapFileName, QString("a.e3m"));
    QCOMPARE(c.scenarios[1].regionText, QString());
    QVERIFY(!read(c, samples::pack(samples::head(head))));
    QCOMPARE(c.scenarioCount, 0u);
}

void CampaignDamageTest::aDamagedBodyHarmsNothingElse()
{
    QByteArray first = samples::pack(samples::mapHeader(28) + samples::noise(50000));
    first[first.size() - 3000] = char(~first[first.size() - 3000]);
    const QByteArray last = samples::mapFile(14);
    CampaignData c;
    QVERIFY(!read(c, samples::campaign(10, first, last)));
    verifySound(c);
    QCOMPARE(c.scenarios[0].compressedMap, first);
    QCOMPARE(c.scenarios[0].mapHeader->headerHeroes.customHeroes.size(), size_t(2));
    QCOMPARE(c.scenarios[2].compressedMap, last);
    QCOMPARE(c.scenarios[2].mapHeader->mapName, QString("Frostmere"));
}

void CampaignDamageTest::aMapThatIsNoneHasAHeaderOfZeros_data()
{
    QTest::addColumn<QByteArray>("map");
    QTest::newRow("a byte") << QByteArray("\x1f");
    QTest::newRow("three bytes") << QByteArray("\x1f\x8b\x08");
    QTest::newRow("noise") << samples::noise(500);
    QTest::newRow("a plain map") << samples::mapHeader(28);
    QTest::newRow("zeros") << QByteArray(100, '\0');
}

void CampaignDamageTest::aMapThatIsNoneHasAHeaderOfZeros()
{
    QFETCH(QByteArray, map);
    const QByteArray last = samples::mapFile(14);
    CampaignData c;
    QVERIFY(!read(c, samples::campaign(10, map, last)));
    verifySound(c);
    QCOMPARE(c.scenarios[0].compressedMap, map);
    QCOMPARE(c.scenarios[0].mapHeader->version, 0u);
    QCOMPARE(c.scenarios[0].mapHeader->mapName, QString());
    QCOMPARE(c.scenarios[2].compressedMap, last);
    QCOMPARE(c.scenarios[2].mapHeader->version, 14u);
}

static QByteArray withStatedSize(QByteArray map, qint64 size)
{
    qToLittleEndian(quint32(size), map.data() + map.size() - 4);
    return map;
}

void CampaignDamageTest::theStatedSizeOfAMapIsBelievedUpToTheRatio()
{
    const QByteArray map = samples::mapFile(28);
    CampaignData c;
    QVERIFY(!read(c, samples::campaign(10, withStatedSize(map, qint64(1032) * map.size()),
                                       withStatedSize(map, qint64(1032) * map.size() + 1))));
    verifySound(c);
    QCOMPARE(c.scenarios[0].mapHeader->mapName, QString("Frostmere"));
    QCOMPARE(c.scenarios[2].mapHeader->mapName, QString());
    QCOMPARE(c.scenarios[2].mapHeader->version, 0u);
}

void CampaignDamageTest::nothingBeyondTheStatedSizeIsRead()
{
    const QByteArray header = samples::mapHeader(28);
    const int endOfName = header.indexOf("Frostmere") + 9;
    CampaignData c;
    QVERIFY(!read(c, samples::campaign(10, withStatedSize(samples::mapFile(28), endOfName),
                                       withStatedSize(samples::mapFile(28), 3))));
    QCOMPARE(c.scenarios[0].mapHeader->mapName, QString("Frostmere"));
    QCOMPARE(c.scenarios[0].mapHeader->mapDescription, QString());
    QCOMPARE(c.scenarios[0].mapHeader->players[0].canHuman, quint8(0));
    QCOMPARE(c.scenarios[2].mapHeader->version, 0u);
}

// A map of a few kilobytes whose name goes on for longer than is believed.
static QByteArray mapOfALongName()
{
    const QByteArray front = ByteWriter().u32(28).u8(1).i32(72).u8(0).u32(2147483647u).bytes();
    return samples::packWithZeros(front, qint64(5) << 20);
}

void CampaignDamageTest::aMapsHeaderIsReadUpToItsLimit()
{
    constexpr int inFront = 4 + 1 + 4 + 1 + 4;
    CampaignData c;
    QVERIFY(!read(c, samples::campaign(10, mapOfALongName(), {})));
    verifySound(c);
    QCOMPARE(c.scenarios[0].mapHeader->mapName.size(), int(limits::mapHeaderBytes) - inFront);
}

// What the first map takes of it the last one doesn't get, but for a share of its own size.
void CampaignDamageTest::allHeadersOfACampaignShareAnAllowance()
{
    const QByteArray first = mapOfALongName();
    const QByteArray last = samples::pack(samples::mapHeader(28) + samples::noise(2000));
    CampaignData c;
    QVERIFY(!read(c, samples::campaign(10, first, last)));
    verifySound(c);
    QCOMPARE(c.scenarios[2].mapHeader->mapName, QString("Frostmere")); // 8 times its size is much
    QVERIFY(!read(c, samples::campaign(10, first, first)));
    verifySound(c);
    constexpr int inFront = 4 + 1 + 4 + 1 + 4;
    QCOMPARE(qint64(c.scenarios[2].mapHeader->mapName.size()),
             2 * limits::mapHeaderRatio * first.size() - inFront);
}

void CampaignDamageTest::aMapThatIsCutKeepsWhatIsThere()
{
    const QByteArray map = samples::pack(samples::mapHeader(28) + samples::noise(50000));
    CampaignData c;
    QByteArray bytes = samples::campaign(10, {}, map);
    bytes.chop(40000);
    QVERIFY(!read(c, bytes));
    verifySound(c);
    QCOMPARE(c.scenarios[2].compressedMap, map.left(map.size() - 40000));
    QCOMPARE(c.scenarios[2].mapHeader->mapName, QString("Frostmere"));
}

void CampaignDamageTest::aMapThatIsNotThereIsNone()
{
    CampaignData c;
    QVERIFY(!read(c, samples::pack(samples::campaignRecords(10, 4294967295u, 4294967295u))));
    verifySound(c);
    QCOMPARE(c.scenarios[0].mapSize, 0u);
    QVERIFY(!c.scenarios[0].mapHeader);
    const QByteArray map = samples::mapFile(28);
    QVERIFY(!read(c, samples::pack(samples::campaignRecords(10, 4294967295u, 5)) + map));
    verifySound(c);
    QCOMPARE(c.scenarios[0].compressedMap, map); // it claims all that follows
    QVERIFY(!c.scenarios[2].mapHeader);
}

void CampaignDamageTest::aMapAsLargeAsTheLimitIsHeld()
{
    for (const qint64 beyond : {0, 1}) {
        const qint64 size = limits::mapBytes + beyond;
        const QByteArray front = samples::pack(samples::campaignRecords(10, quint32(size), 0));
        QFile file(samples::writeFile(m_folder.filePath("large.e3c"), front));
        QVERIFY(file.resize(front.size() + size)); // a hole in the file
        CampaignData c;
        const auto failure = c.readCampaign(&file);
        QCOMPARE(bool(failure), beyond == 1);
        if (beyond == 1)
            QCOMPARE(*failure, QString("Incorrect or damaged file."));
        else
            QCOMPARE(c.scenarios[0].mapSize, quint32(limits::mapBytes));
    }
}

void CampaignDamageTest::behindAPlainHeaderTheMapsFollowAtOnce()
{
    const QByteArray map = samples::mapFile(28);
    CampaignData c;
    QVERIFY(!read(c, samples::campaignRecords(10, quint32(map.size()), 0) + map));
    verifySound(c);
    QCOMPARE(c.scenarios[0].compressedMap, map);
    QCOMPARE(c.scenarios[0].mapHeader->mapName, QString("Frostmere"));
}

void CampaignDamageTest::whereTheMemberDoesNotEndWellTheRuleFindsTheMaps()
{
    // Behind the records stand bytes that nobody reads, and the check sum is wrong.
    const QByteArray records = samples::campaignRecords(10, 200, 0);
    QByteArray bytes = samples::pack(records + samples::noise(40000));
    bytes[bytes.size() - 6] = char(~bytes[bytes.size() - 6]);
    CampaignData c;
    QVERIFY(!read(c, bytes));
    QCOMPARE(c.scenarios[0].compressedMap, bytes.mid(samples::pack(records).size(), 200));
}

void CampaignDamageTest::theRestOfTheMemberIsPassedOverUpToTheLimit()
{
    const QByteArray map = samples::mapFile(28);
    const QByteArray records = samples::campaignRecords(10, quint32(map.size()), 0);
    for (const qint64 beyond : {qint64(0), qint64(64) * 1024}) {
        const qint64 zeros = limits::campaignHeaderBytes - records.size() + beyond;
        CampaignData c;
        const auto failure = read(c, samples::packWithZeros(records, zeros) + map);
        QCOMPARE(bool(failure), beyond != 0);
        if (failure)
            QCOMPARE(*failure, QString("Incorrect or damaged file."));
        else
            QCOMPARE(c.scenarios[0].compressedMap, map);
    }
}

void CampaignDamageTest::textsShareAnAllowance()
{
    samples::Head head;
    head.mapIdByte = 25; // no scenarios
    head.description.clear();
    const qint64 around = samples::head(head).size();
    head.description = QByteArray(int(limits::campaignTextBytes - around), 'x');
    CampaignData c;
    QVERIFY(!read(c, samples::pack(samples::head(head), 1)));
    QCOMPARE(c.description.size(), head.description.size());
    head.description += 'x';
    QCOMPARE(*read(c, samples::pack(samples::head(head), 1)),
             QString("Incorrect or damaged file."));
    QVERIFY(c.scenarios.empty());

    // The header's text and that of the scenarios are counted together.
    head.mapIdByte = 4;
    head.description.chop(1000);
    const samples::Scenario small{"", 0, QByteArray(1, '\0'), QByteArray(100, 'x')};
    const samples::Scenario large{"", 0, QByteArray(1, '\0'), QByteArray(1000, 'x')};
    QVERIFY(!read(c, samples::pack(samples::head(head) + samples::record(10, small), 1)));
    QVERIFY(read(c, samples::pack(samples::head(head) + samples::record(10, small) +
                                      samples::record(10, large),
                                  1)));
}

// A bonus of two bytes takes a hundred in memory.
void CampaignDamageTest::bonusesCountAsText()
{
    const QByteArray options = ByteWriter().u8(1).u8(0).u8(255).raw(QByteArray(510, '\2')).bytes();
    const samples::Scenario scenario{"", 0, QByteArray(1, '\0'), "", options};
    const int each = 255 * int(limits::bonusBytes) + samples::record(10, scenario).size();
    const int most = int(limits::campaignTextBytes) / each;
    for (const int count : {most - 1, most + 1}) {
        samples::Head head;
        head.hasMap = 0;
        head.scenarioCount = quint32(count);
        const samples::Scenario wide{"", 0, QByteArray((count + 7) / 8, '\0'), "", options};
        CampaignData c;
        const auto failure =
            read(c, samples::pack(samples::head(head) + samples::record(10, wide).repeated(count)));
        QCOMPARE(bool(failure), count > most);
    }
}

void CampaignDamageTest::absurdNumbersStayCheap_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const qint64 tooMany = qint64(200) << 20; // bytes, more than any limit
    samples::Head head;
    head.mapIdByte = 0;
    const QByteArray upToName = samples::head(head).left(8 + 1 + 8 + 1);
    QTest::newRow("name of 2^31 - 1 bytes")
        << samples::pack(upToName + ByteWriter().u32(2147483647u).bytes());
    QTest::newRow("name of 2^32 - 1 bytes")
        << samples::pack(upToName + ByteWriter().u32(4294967295u).bytes());
    QTest::newRow("200 MB of name")
        << samples::packWithZeros(upToName + ByteWriter().u32(2147483647u).bytes(), tooMany);
    QTest::newRow("200 MB behind the records")
        << samples::packWithZeros(samples::campaignRecords(10, 0, 0), tooMany);
    QTest::newRow("200 MB between the records and a map")
        << samples::packWithZeros(samples::campaignRecords(10, 5, 0), tooMany);
    head.hasMap = 0;
    head.scenarioCount = 30000;
    QTest::newRow("30,000 scenarios that aren't there") << samples::pack(samples::head(head));
    QTest::newRow("30,000 scenarios of zeros")
        << samples::packWithZeros(samples::head(head), tooMany);
    QTest::newRow("30,000 scenarios of zeros, one with a map") << samples::packWithZeros(
        samples::head(head) + ByteWriter().u32(0).u32(5).bytes(), tooMany);
    head.scenarioCount = 4294967295u;
    QTest::newRow("2^32 - 1 scenarios") << samples::packWithZeros(samples::head(head), tooMany);

    const QByteArray toMapName = ByteWriter().u32(28).u8(1).i32(72).u8(0).bytes();
    const QByteArray nameBomb =
        samples::packWithZeros(toMapName + ByteWriter().u32(2147483647u).bytes(), tooMany / 4);
    QTest::newRow("maps with 50 MB of name") << samples::campaign(10, nameBomb, nameBomb);
    QByteArray manyHeroes = samples::mapHeader(28);
    manyHeroes =
        manyHeroes.left(manyHeroes.indexOf("Tamsin") - 9) + ByteWriter().u32(4294967295u).bytes();
    const QByteArray heroBomb = samples::packWithZeros(manyHeroes, tooMany / 4);
    QTest::newRow("maps with 2^32 - 1 heroes") << samples::campaign(10, heroBomb, heroBomb);
    const QByteArray mapWith = samples::mapHeader(32);
    const int atBits = mapWith.indexOf(QByteArray("\xA3\0\0\0\5", 5));
    const QByteArray bitBomb = samples::packWithZeros(
        mapWith.left(atBits) + ByteWriter().u32(4294967295u).bytes(), tooMany / 4);
    QTest::newRow("maps with 2^32 - 1 bits") << samples::campaign(10, bitBomb, bitBomb);
    const QByteArray placeholderBomb = samples::packWithZeros(
        mapWith.left(atBits) + ByteWriter().u32(0).u32(4294967295u).bytes(), tooMany / 4);
    QTest::newRow("maps with 2^32 - 1 placeholders")
        << samples::campaign(10, placeholderBomb, placeholderBomb);
}

// The largest resident size since the last reset, in bytes.
static qint64 peakMemory()
{
    QFile status("/proc/self/status");
    status.open(QIODevice::ReadOnly);
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).simplified().split(' ').first().toLongLong() * 1024;
    }
    return -1;
}

static qint64 resetPeakMemory()
{
    malloc_trim(0); // or the heap's free pages would hide what is taken anew
    QFile refs("/proc/self/clear_refs");
    refs.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    refs.write("5");
    return peakMemory();
}

void CampaignDamageTest::absurdNumbersStayCheap()
{
    QFETCH(QByteArray, bytes);
    QFile file(samples::writeFile(m_folder.filePath("absurd.e3c"), bytes));
    const qint64 before = resetPeakMemory();
    QVERIFY(before > 0);
    const ProcessorTime time;
    CampaignData c;
    const auto failure = c.readCampaign(&file);
    const qint64 milliseconds = time.milliseconds();
    const qint64 grown = peakMemory() - before;
    qInfo("%lld ms, %lld MB", milliseconds, grown >> 20);
    if (!failure)
        verifySound(c);
    if (!sanitized) {
        QVERIFY2(milliseconds < 1000, qPrintable(QString::number(milliseconds)));
        QVERIFY2(grown < qint64(100) * 1024 * 1024, qPrintable(QString::number(grown)));
    }
}

QTEST_GUILESS_MAIN(CampaignDamageTest)
#include "campaign_damage_test.moc"
