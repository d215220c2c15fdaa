// Campaign files that claim more than any campaign has: read up to the limits, soon and in little
// memory.
#include "document/embedded_map.h"
#include "gamedata/limits.h"
#include "tests/document/campaign_reading.h"
#include "tests/support/processor_time.h"
#include "tests/support/sanitized.h"

#include <QtEndian>
#include <QtTest>

#include <malloc.h>

class CampaignLimitsTest : public QObject, private CampaignReading
{
    Q_OBJECT

private slots:
    void init() { samples::setTables(); }
    void theStatedSizeOfAMapIsBelievedUpToTheRatio();
    void nothingBeyondTheStatedSizeIsRead();
    void aMapsHeaderIsReadUpToItsLimit();
    void allHeadersOfACampaignShareAnAllowance();
    void aMapAsLargeAsTheLimitIsHeld();
    void allMapsOfACampaignAreHeldUpToALimit();
    void holesOfAFileTakeNoMemory();
    void theRestOfTheMemberIsPassedOverUpToTheLimit();
    void textsShareAnAllowance();
    void bonusesCountAsText();
    void absurdNumbersStayCheap_data();
    void absurdNumbersStayCheap();
};

static QByteArray withStatedSize(QByteArray map, qint64 size)
{
    qToLittleEndian(quint32(size), map.data() + map.size() - 4);
    return map;
}

// A map of a few kilobytes whose name goes on for longer than is believed.
static QByteArray mapOfALongName()
{
    const QByteArray front = ByteWriter().u32(28).u8(1).i32(72).u8(0).u32(2147483647u).bytes();
    return samples::packWithZeros(front, qint64(5) << 20);
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

void CampaignLimitsTest::theStatedSizeOfAMapIsBelievedUpToTheRatio()
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

void CampaignLimitsTest::nothingBeyondTheStatedSizeIsRead()
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

void CampaignLimitsTest::aMapsHeaderIsReadUpToItsLimit()
{
    constexpr int inFront = 4 + 1 + 4 + 1 + 4;
    CampaignData c;
    QVERIFY(!read(c, samples::campaign(10, mapOfALongName(), {})));
    verifySound(c);
    QCOMPARE(c.scenarios[0].mapHeader->mapName.size(), int(limits::mapHeaderBytes) - inFront);
}

// What the first map takes of it the last one doesn't get, but for a share of its own size.
void CampaignLimitsTest::allHeadersOfACampaignShareAnAllowance()
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

void CampaignLimitsTest::aMapAsLargeAsTheLimitIsHeld()
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

void CampaignLimitsTest::allMapsOfACampaignAreHeldUpToALimit()
{
    std::vector<ScenarioData> scenarios(size_t(limits::campaignMapBytes / limits::mapBytes) + 1);
    for (ScenarioData &scenario : scenarios)
        scenario.mapSize = quint32(limits::mapBytes);
    QVERIFY(canBeHeld(scenarios, limits::campaignMapBytes)); // of the last one nothing is there
    QVERIFY(!canBeHeld(scenarios, limits::campaignMapBytes + 1));
    QVERIFY(canBeHeld(scenarios, 0));
    QVERIFY(canBeHeld(scenarios, -1)); // the maps would begin behind the file's end
    scenarios[0].mapSize += 1;
    QVERIFY(canBeHeld(scenarios, limits::mapBytes));
    QVERIFY(!canBeHeld(scenarios, limits::mapBytes + 1));
}

void CampaignLimitsTest::holesOfAFileTakeNoMemory()
{
    constexpr int maps = 100;
    samples::Head head;
    head.hasMap = 0;
    head.scenarioCount = maps;
    const samples::Scenario scenario{"a.e3m", quint32(limits::mapBytes), QByteArray(13, '\0')};
    const QByteArray front =
        samples::pack(samples::head(head) + samples::record(10, scenario).repeated(maps));
    QFile file(samples::writeFile(m_folder.filePath("hollow.e3c"), front));
    if (!file.resize(front.size() + maps * limits::mapBytes))
        QSKIP("This file system holds no file of 25 GB, not even a hollow one.");
    const qint64 before = resetPeakMemory();
    CampaignData c;
    const auto failure = c.readCampaign(&file);
    const qint64 grown = peakMemory() - before;
    QVERIFY(failure);
    QCOMPARE(*failure, QString("Incorrect or damaged file."));
    if (!sanitized)
        QVERIFY2(grown < qint64(100) * 1024 * 1024, qPrintable(QString::number(grown)));
}

void CampaignLimitsTest::theRestOfTheMemberIsPassedOverUpToTheLimit()
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

void CampaignLimitsTest::textsShareAnAllowance()
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
void CampaignLimitsTest::bonusesCountAsText()
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

void CampaignLimitsTest::absurdNumbersStayCheap_data()
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

void CampaignLimitsTest::absurdNumbersStayCheap()
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

QTEST_GUILESS_MAIN(CampaignLimitsTest)
#include "campaign_limits_test.moc"
