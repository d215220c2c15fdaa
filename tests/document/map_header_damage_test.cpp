// Headers of maps that are damaged: cut anywhere, of versions that aren't, with absurd counts.
#include "gamedata/limits.h"
#include "tests/document/map_header_reading.h"
#include "tests/support/processor_time.h"
#include "tests/support/sanitized.h"

#include <QtTest>

class MapHeaderDamageTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { samples::setTables(); }
    void theVersionsFieldIsNeverRefused_data();
    void theVersionsFieldIsNeverRefused();
    void anyPrefixReads_data();
    void anyPrefixReads();
    void absurdCountsEndWithTheData_data();
    void absurdCountsEndWithTheData();
    void anUnreadHeaderReplacesTheOneBefore();
};

void MapHeaderDamageTest::theVersionsFieldIsNeverRefused_data()
{
    QTest::addColumn<quint32>("version");
    for (const quint32 version : {0u, 13u, 1000u, 4294967295u})
        QTest::newRow(qPrintable(QString::number(version))) << version;
}

// Below 14 nothing is there that needs a version above 14; the bits are 160 all the same.
void MapHeaderDamageTest::theVersionsFieldIsNeverRefused()
{
    QFETCH(quint32, version);
    ScenarioData scenario;
    qint64 pos = 0;
    ByteWriter w;
    w.u32(version);
    if (version >= 32)
        w.u32(0);
    w.u8(1).i32(36);
    readHeader(scenario, w.zeros(1000).bytes(), false, &pos);
    QCOMPARE(scenario.mapHeader->version, version);
    QCOMPARE(scenario.mapHeader->mapDimension, 36);
    QCOMPARE(scenario.mapHeader->headerHeroes.available.size(), version < 32 ? 160 : 0);
    // In front of the players: dimension to difficulty is 14 bytes, and a level limit if new.
    // A player is 7 bytes and a portrait and an empty name if old, 7 more with lists if new.
    const qint64 expected = version < 32
                                ? 5 + 14 + 8 * (8 + 5) + 5 + 4 + 1 + 20 + 31
                                : 9 + 15 + 8 * (8 + 5 + 2 + 5) + 5 + 4 + 1 + 4 + 4 + 1 + 31;
    QCOMPARE(pos, expected);
}

void MapHeaderDamageTest::anyPrefixReads_data()
{
    addVersions();
}

// What is missing reads as zeros, so every prefix has the fields that lie in it.
void MapHeaderDamageTest::anyPrefixReads()
{
    QFETCH(quint32, version);
    QFETCH(quint32, subVersion);
    const QByteArray bytes = samples::mapHeader(version, subVersion);
    const QByteArray inFront = bytes.left(bytes.indexOf("Frostmere") + 9);
    for (int size = 0; size < bytes.size(); ++size) {
        const auto header = headerOf(bytes.left(size));
        QVERIFY(header);
        QCOMPARE(header->version, size >= 4 ? version : 0u);
        if (size >= inFront.size())
            QCOMPARE(header->mapName, QString("Frostmere"));
    }
}

void MapHeaderDamageTest::absurdCountsEndWithTheData_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray full = samples::mapHeader(32);
    const auto with = [&](const QByteArray &before, int offset) {
        const int at = full.indexOf(before) + offset;
        return full.left(at) + ByteWriter().u32(4294967295u).bytes() + full.mid(at + 4);
    };
    QTest::newRow("map name") << with("Frostmere", -4);
    QTest::newRow("map name of the largest signed length")
        << full.left(full.indexOf("Frostmere") - 4) + ByteWriter().u32(2147483647u).bytes();
    QTest::newRow("description") << with("A cold shore", -4);
    QTest::newRow("main hero's name") << with("Orla", -4);
    QTest::newRow("heroes of a player") << with("Tamsin", -9);
    QTest::newRow("hero's name") << with("Tamsin", -4);
    QTest::newRow("bits") << with(QByteArray("\xA3\0\0\0\5", 5), 0);
    QTest::newRow("placeholders") << with(QByteArray("\3\0\0\0\7\x08\x09", 7), 0);
    QTest::newRow("custom hero's name") << with("Brannoc", -4);
}

void MapHeaderDamageTest::absurdCountsEndWithTheData()
{
    QFETCH(QByteArray, bytes);
    const ProcessorTime time;
    const auto header = headerOf(bytes);
    QVERIFY(time.milliseconds() < (sanitized ? unhurriedMilliseconds : 1000));
    QVERIFY(header);
    const HeaderHeroes &heroes = header->headerHeroes;
    QVERIFY(header->mapName.size() + header->mapDescription.size() <= bytes.size());
    QVERIFY(header->players[0].heroInfo.size() <= size_t(bytes.size()));
    QCOMPARE(heroes.available.size(), int(heroes.availableCount));
    QVERIFY(heroes.availableCount <= limits::bitsWithoutData);
    QVERIFY(heroes.placeholders.size() <= size_t(bytes.size()));
}

void MapHeaderDamageTest::anUnreadHeaderReplacesTheOneBefore()
{
    ScenarioData scenario;
    readHeader(scenario, samples::mapHeader(28), false, nullptr);
    const auto before = scenario.mapHeader;
    QCOMPARE(readHeader(scenario, {}, false, nullptr), 0u);
    QVERIFY(scenario.mapHeader != before);
    QCOMPARE(before->mapName, QString("Frostmere"));
    QCOMPARE(scenario.mapHeader->mapName, QString());
}

QTEST_GUILESS_MAIN(MapHeaderDamageTest)
#include "map_header_damage_test.moc"
