// Campaign files that are damaged: cut anywhere, wrong in any byte, with maps that are none.
#include "tests/document/campaign_reading.h"

#include <QtTest>

class CampaignDamageTest : public QObject, private CampaignReading
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
    void aMapThatIsCutKeepsWhatIsThere();
    void aMapThatIsNotThereIsNone();
    void behindAPlainHeaderTheMapsFollowAtOnce();
    void whereTheMemberDoesNotEndWellTheRuleFindsTheMaps();
};

void CampaignDamageTest::init()
{
    samples::setTables();
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

QTEST_GUILESS_MAIN(CampaignDamageTest)
#include "campaign_damage_test.moc"
